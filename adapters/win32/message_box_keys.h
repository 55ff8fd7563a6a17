#pragma once

#include <windows.h>

#include <functional>

#include "platform/forms/answer_keys.h"

namespace orvendal {

/// Looks at the keys of the message boxes of this thread before they have them, as long as it lives, and
/// gives them those that AnswerKeys leaves.
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

  AnswerKeys answer_keys_;
  const DWORD thread_ = GetCurrentThreadId();
  MessageBoxKeys* outer_ = nullptr;
  HHOOK hook_ = nullptr;
  HWND blank_on_ = nullptr;
  UINT_PTR pause_ = 0;
};

}  // namespace orvendal
