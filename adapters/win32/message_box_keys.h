#pragma once

#include <windows.h>

#include <functional>

#include "platform/forms/key_run.h"

namespace orvendal {

/// Looks at the keys of the message boxes of this thread before they have them, as long as it lives: what a
/// bar-code reader types answers nothing. No letter alone presses a button, the reader's Enter is dropped
/// with a `beep`, and a blank presses a button only when no other key has come close behind it.
///
/// `keys` are those that came before, and take the boxes' own.
class MessageBoxKeys {
 public:
  MessageBoxKeys(KeyRun& keys, std::function<void()> beep);
  ~MessageBoxKeys();
  MessageBoxKeys(const MessageBoxKeys&) = delete;
  MessageBoxKeys& operator=(const MessageBoxKeys&) = delete;

 private:
  static LRESULT CALLBACK Look(int code, WPARAM removed, LPARAM message) noexcept;
  static void CALLBACK PauseIsOver(HWND, UINT, UINT_PTR timer, DWORD) noexcept;
  static MessageBoxKeys* OfThread();
  bool Takes(const MSG& message);
  void HoldBlank(HWND button);
  void LetGoOfBlank();

  KeyRun& keys_;
  std::function<void()> beep_;
  const DWORD thread_ = GetCurrentThreadId();
  MessageBoxKeys* outer_ = nullptr;
  HHOOK hook_ = nullptr;
  HWND blank_on_ = nullptr;
  UINT_PTR pause_ = 0;
  bool warned_ = false;
};

}  // namespace orvendal
