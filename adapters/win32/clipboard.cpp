#include "adapters/win32/clipboard.h"

#include <cstring>

namespace orvendal {
namespace {

constexpr int kAttempts = 10;
constexpr DWORD kPause = 10;  // milliseconds

// Programs that watch the clipboard hold it for a moment after each change.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND window) {
    for (int attempt = 0; attempt < kAttempts && !opened_; ++attempt) {
      if (attempt > 0) Sleep(kPause);
      opened_ = OpenClipboard(window) != FALSE;
    }
  }
  ~OpenedClipboard() {
    if (opened_) CloseClipboard();
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  bool IsOpen() const { return opened_; }

 private:
  bool opened_ = false;
};

}  // namespace

std::string ReadClipboard(HWND window) {
  const OpenedClipboard clipboard(window);
  if (!clipboard.IsOpen()) return {};
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  const void* data = memory == nullptr ? nullptr : GlobalLock(memory);
  if (data == nullptr) return {};
  // Another program wrote it: the closing zero may be missing.
  const std::wstring_view whole(static_cast<const wchar_t*>(data), GlobalSize(memory) / sizeof(wchar_t));
  const std::string text = Utf8(whole.substr(0, whole.find(L'\0')));
  GlobalUnlock(memory);
  return text;
}

void WriteClipboard(HWND window, const std::string& text) {
  const std::wstring wide = Wide(text);
  const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  void* data = memory == nullptr ? nullptr : GlobalLock(memory);
  if (data == nullptr) {
    GlobalFree(memory);
    return;
  }
  std::memcpy(data, wide.c_str(), bytes);
  GlobalUnlock(memory);
  const OpenedClipboard clipboard(window);
  const bool taken =
      clipboard.IsOpen() && EmptyClipboard() && SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
  if (!taken) GlobalFree(memory);
}

}  // namespace orvendal
