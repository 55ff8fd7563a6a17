#include "adapters/win32/message_box_keys.h"

#include <optional>
#include <string_view>

namespace orvendal {
namespace {

constexpr wchar_t kFirstPrintable = 32;
constexpr LPARAM kDeadKey = LPARAM{1} << 31;

// All of this process, whatever their threads; no thread-local variable, which would outlive the module.
SRWLOCK lock = SRWLOCK_INIT;
MessageBoxKeys* innermost = nullptr;

bool IsOfMessageBox(HWND window) {
  constexpr std::wstring_view kDialogClass = L"#32770";
  wchar_t name[16] = L"";
  const HWND root = GetAncestor(window, GA_ROOT);
  return root != nullptr && GetClassNameW(root, name, 16) > 0 && name == kDialogClass;
}

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

// What the key stands for, whatever is held with it; 0 for none.
wchar_t CharacterOf(WPARAM key) {
  if (key == VK_PACKET) return L'?';
  const UINT character = MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_CHAR);
  return static_cast<wchar_t>(character & ~static_cast<UINT>(kDeadKey));
}

bool IsModifier(WPARAM key) {
  return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU || key == VK_CAPITAL || key == VK_NUMLOCK;
}

}  // namespace

MessageBoxKeys::MessageBoxKeys(KeyRun& keys, std::function<void()> beep)
    : answer_keys_(keys, std::move(beep)) {
  AcquireSRWLockExclusive(&lock);
  outer_ = innermost;
  innermost = this;
  ReleaseSRWLockExclusive(&lock);
  hook_ = SetWindowsHookExW(WH_GETMESSAGE, Look, nullptr, thread_);
}

MessageBoxKeys::~MessageBoxKeys() {
  LetGoOfBlank();
  if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
  AcquireSRWLockExclusive(&lock);
  // Boxes of different threads do not end in order.
  for (MessageBoxKeys** link = &innermost; *link != nullptr; link = &(*link)->outer_) {
    if (*link != this) continue;
    *link = outer_;
    break;
  }
  ReleaseSRWLockExclusive(&lock);
}

MessageBoxKeys* MessageBoxKeys::OfThread() {
  AcquireSRWLockShared(&lock);
  MessageBoxKeys* found = innermost;
  while (found != nullptr && found->thread_ != GetCurrentThreadId()) found = found->outer_;
  ReleaseSRWLockShared(&lock);
  return found;
}

LRESULT CALLBACK MessageBoxKeys::Look(int code, WPARAM removed, LPARAM message) noexcept {
  MessageBoxKeys* keys = OfThread();
  auto* of_box = reinterpret_cast<MSG*>(message);
  const bool looks = code == HC_ACTION && removed == PM_REMOVE && keys != nullptr;
  if (looks && IsOfMessageBox(of_box->hwnd) && keys->Takes(*of_box)) of_box->message = WM_NULL;
  return CallNextHookEx(nullptr, code, removed, message);
}

// With Alt a key is a command, and with Ctrl too; those come as other messages or stay as they are.
bool MessageBoxKeys::Takes(const MSG& message) {
  if (message.message != WM_KEYDOWN && message.message != WM_CHAR) return false;
  const bool is_key = message.message == WM_KEYDOWN;
  if (IsDown(VK_MENU) || (is_key && IsModifier(message.wParam))) return false;
  const wchar_t character = is_key ? CharacterOf(message.wParam) : static_cast<wchar_t>(message.wParam);
  const bool is_character = character >= kFirstPrintable && !IsDown(VK_CONTROL);
  // The character of a key that went through belongs to that key.
  if (!is_key && !is_character) return false;

  const AnswerKeys::Verdict verdict =
      answer_keys_.Take(is_character ? std::optional<char32_t>(character) : std::nullopt, message.time);
  LetGoOfBlank();
  if (verdict.holds_blank) HoldBlank(message.hwnd);
  return verdict.taken;
}

void MessageBoxKeys::HoldBlank(HWND button) {
  blank_on_ = button;
  pause_ = SetTimer(nullptr, 0, static_cast<UINT>(KeyRun::kShortestPause), PauseIsOver);
}

void MessageBoxKeys::LetGoOfBlank() {
  if (pause_ != 0) KillTimer(nullptr, pause_);
  pause_ = 0;
  blank_on_ = nullptr;
}

void CALLBACK MessageBoxKeys::PauseIsOver(HWND, UINT, UINT_PTR timer, DWORD) noexcept {
  MessageBoxKeys* keys = OfThread();
  if (keys == nullptr || keys->pause_ != timer) return;
  const HWND button = keys->blank_on_;
  keys->LetGoOfBlank();
  if (GetFocus() == button) PostMessageW(button, BM_CLICK, 0, 0);
}

}  // namespace orvendal
