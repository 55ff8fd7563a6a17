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
  /// After the window is destroyed. Inside a message of the window itself the system keeps the class until
  /// the next Leave or SweepAll.
  void Leave();
  /// Takes away the classes that nobody uses. Whether none is left.
  static bool SweepAll();

 private:
  void UnregisterIfUnused();
  static WindowClass* first_;

  const wchar_t* name_;
  UINT style_;
  WNDPROC procedure_;
  int users_ = 0;
  bool registered_ = false;
  bool listed_ = false;
  WindowClass* next_ = nullptr;
};

}  // namespace orvendal
