#pragma once

#include "adapters/win32/windows_api.h"

namespace orvendal {

/// How a thread counts pixels. Systems that cannot change it have one way only, and nothing happens there.
class DpiContext {
 public:
  /// The calling thread's, as whoever calls has it.
  static DpiContext OfThread();
  /// The sharpest that the system has: the pixels of each display.
  static DpiContext Sharpest();

 private:
  friend class DpiScope;
  explicit DpiContext(HANDLE handle) : handle_(handle) {}
  HANDLE handle_;  // nullptr where the system has none
};

/// Counts pixels so on this thread while it lives, and as before afterwards.
class DpiScope {
 public:
  explicit DpiScope(DpiContext context) noexcept;
  ~DpiScope();
  DpiScope(const DpiScope&) = delete;
  DpiScope& operator=(const DpiScope&) = delete;

 private:
  HANDLE before_ = nullptr;
};

}  // namespace orvendal
