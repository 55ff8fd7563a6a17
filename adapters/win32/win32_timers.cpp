#include "adapters/win32/win32_timers.h"

#include <algorithm>

#include "adapters/win32/module_use.h"
#include "adapters/win32/window_class.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

WindowClass Win32Timers::kClass(L"OrvendalTimers", 0, Win32Timers::Procedure);

Win32Timers::~Win32Timers() {
  running_.clear();
  DestroyIfIdle();
}

void Win32Timers::Set(Timer& timer, int milliseconds) {
  Stop(timer);
  if (window_ == nullptr) {
    kClass.Enter();
    window_ =
        CreateWindowExW(0, kClass.Name(), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, ThisModule(), nullptr);
    if (window_ == nullptr) {
      kClass.Leave();
      throw RuntimeError(error_number::kInternal, "The system refuses a timer");
    }
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  const UINT_PTR identifier = ++last_identifier_;
  if (SetTimer(window_, identifier, static_cast<UINT>(milliseconds), nullptr) == 0) {
    DestroyIfIdle();
    throw RuntimeError(error_number::kInternal, "The system refuses a timer");
  }
  running_[identifier] = &timer;
}

void Win32Timers::Stop(Timer& timer) {
  const auto found = std::find_if(running_.begin(), running_.end(),
                                  [&](const auto& running) { return running.second == &timer; });
  if (found == running_.end()) return;
  KillTimer(window_, found->first);
  running_.erase(found);
  DestroyIfIdle();
}

void Win32Timers::DestroyIfIdle() {
  if (window_ == nullptr || !running_.empty()) return;
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
  window_ = nullptr;
  kClass.Leave();
}

void Win32Timers::Elapse(UINT_PTR identifier) {
  const auto found = running_.find(identifier);
  if (found != running_.end()) elapsed_(*found->second);
}

LRESULT CALLBACK Win32Timers::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
  const ModuleUse use;
  auto* timers = reinterpret_cast<Win32Timers*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message != WM_TIMER || timers == nullptr) return DefWindowProcW(window, message, wparam, lparam);
  timers->Elapse(wparam);
  return 0;
}

}  // namespace orvendal
