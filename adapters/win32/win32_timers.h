#pragma once

#include <functional>
#include <map>

#include "adapters/win32/windows_api.h"

namespace orvendal {

class Timer;

/// The timers of the forms of one host, on the thread that made them.
///
/// A window that is never seen takes their messages, so that they run whatever becomes of the forms' own
/// windows. Invariant: that window exists exactly while a timer runs.
class Win32Timers {
 public:
  /// `elapsed` is called for each timer that has elapsed, and throws nothing. It may stop any timer.
  explicit Win32Timers(std::function<void(Timer&)> elapsed) : elapsed_(std::move(elapsed)) {}
  ~Win32Timers();
  Win32Timers(const Win32Timers&) = delete;
  Win32Timers& operator=(const Win32Timers&) = delete;

  /// Runs it anew from now on.
  void Set(Timer& timer, int milliseconds);
  void Stop(Timer& timer);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
  static class WindowClass kClass;
  void Elapse(UINT_PTR identifier);
  void DestroyIfIdle();

  std::function<void(Timer&)> elapsed_;
  HWND window_ = nullptr;
  std::map<UINT_PTR, Timer*> running_;
  UINT_PTR last_identifier_ = 0;
};

}  // namespace orvendal
