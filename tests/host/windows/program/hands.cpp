#include "tests/host/windows/program/hands.h"

#include <windows.h>

namespace orvendal {
namespace {

constexpr wchar_t kClass[] = L"OrvendalForm";
constexpr DWORD kPatience = 40000;  // milliseconds
constexpr int kDesignWidth = 1024;
constexpr int kDesignHeight = 768;

HWND Find(const std::wstring& title) {
  for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, kClass, title.c_str())) != nullptr;) {
    if (IsWindowVisible(window) && IsWindowEnabled(window)) return window;
  }
  return nullptr;
}

// The window once it is there, or not: nullptr after too long.
bool Await(const std::wstring& title, bool there, HWND& window) {
  const DWORD start = GetTickCount();
  while (((window = Find(title)) != nullptr) != there) {
    if (GetTickCount() - start > kPatience) return false;
    Sleep(50);
  }
  return true;
}

LPARAM PlaceIn(HWND window, int x, int y) {
  RECT client{};
  GetClientRect(window, &client);
  return MAKELPARAM(x * client.right / kDesignWidth, y * client.bottom / kDesignHeight);
}

void Press(HWND window, UINT down, LPARAM place) {
  PostMessageW(window, down, MK_LBUTTON, place);
  PostMessageW(window, WM_LBUTTONUP, 0, place);
}

// What was posted may have posted more, a character after its key above all: waits until the thread has come
// back to its loop a few times.
void Settle(HWND window) {
  for (int turn = 0; turn < 3; ++turn) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &answer);
    Sleep(100);
  }
}

void Key(HWND window, WPARAM key) {
  PostMessageW(window, WM_KEYDOWN, key, 1);
  PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  Settle(window);
}

}  // namespace

std::wstring UseScreen(const std::vector<std::wstring>& commands) {
  HWND window = nullptr;
  for (std::size_t at = 0; at < commands.size(); ++at) {
    const std::wstring& command = commands[at];
    const auto next = [&] { return at + 1 < commands.size() ? commands[++at] : std::wstring(); };
    if (command == L"window" || command == L"gone") {
      const std::wstring title = next();
      if (!Await(title, command == L"window", window)) return command + L" " + title;
    } else if (command == L"click" || command == L"double") {
      const int x = std::stoi(next());
      const LPARAM place = PlaceIn(window, x, std::stoi(next()));
      Press(window, WM_LBUTTONDOWN, place);
      if (command == L"double") Press(window, WM_LBUTTONDBLCLK, place);
    } else if (command == L"type") {
      for (const wchar_t character : next()) PostMessageW(window, WM_CHAR, character, 1);
      Settle(window);  // a key that came close behind would be taken for a bar-code reader's
    } else if (command == L"key") {
      Key(window, next() == L"escape" ? VK_ESCAPE : VK_RETURN);
    } else if (command == L"close") {
      PostMessageW(window, WM_CLOSE, 0, 0);
    } else {
      return L"what is " + command + L"?";
    }
  }
  return {};
}

}  // namespace orvendal
