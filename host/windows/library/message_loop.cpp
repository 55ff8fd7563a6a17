#include "host/windows/library/message_loop.h"

#include <string_view>

#include "adapters/automation/module_lifetime.h"
#include "adapters/automation/type_information.h"

namespace orvendal {
namespace {

constexpr std::wstring_view kScreenClass = L"OrvendalForm";

// False if the program quits.
bool DispatchAll() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return false;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return true;
}

// The library's own dialogs are of the same kind, but made by this module.
BOOL CALLBACK FindScreen(HWND window, LPARAM found) noexcept {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  const auto module = reinterpret_cast<HMODULE>(GetClassLongPtrW(window, GCLP_HMODULE));
  if (name != kScreenClass || module == OwnModule()) return TRUE;
  *reinterpret_cast<bool*>(found) = true;
  return FALSE;
}

}  // namespace

void PumpMessages(long milliseconds) {
  const module_lifetime::Hold hold;
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds > 0 ? milliseconds : 0);
  while (DispatchAll()) {
    const ULONGLONG now = GetTickCount64();
    if (now >= end) return;
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - now), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  }
}

bool HasScreen() {
  bool found = false;
  EnumThreadWindows(GetCurrentThreadId(), FindScreen, reinterpret_cast<LPARAM>(&found));
  return found;
}

}  // namespace orvendal
