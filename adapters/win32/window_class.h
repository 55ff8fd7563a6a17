#pragma once

#include "adapters/win32/windows_api.h"

namespace orvendal {

/// A window class of this module that is registered while somebody uses it, so that none stays behind when
/// the module is unloaded. Objects of it are static and may be used from any thread.
class WindowClass {
 public:
  constexpr WindowClass(const wchar_t* name, UINT style, WNDPROC procedure)
      : name_(name), style_(style), procedure_(procedure) {}

  const wchar_t* Name() const { return name_; }
  /// Raises error 51 if the system refuses.
  void Enter();
  /// After the window is destroyed. In the middle of its destruction the class stays until the next Leave or
  /// Sweep.
  void Leave();
  /// Takes the class away if nobody uses it.
  void Sweep();

 private:
  void UnregisterIfUnused();

  const wchar_t* name_;
  UINT style_;
  WNDPROC procedure_;
  int users_ = 0;
  bool registered_ = false;
};

}  // namespace orvendal
