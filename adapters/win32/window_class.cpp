#include "adapters/win32/window_class.h"

#include <mutex>

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {
std::mutex registration;
}

WindowClass* WindowClass::first_ = nullptr;

void WindowClass::Enter() {
  const std::lock_guard lock(registration);
  if (!listed_) {
    next_ = first_;
    first_ = this;
    listed_ = true;
  }
  if (!registered_) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.style = style_;
    description.lpfnWndProc = procedure_;
    description.hInstance = ThisModule();
    description.hIcon = LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_APPLICATION));
    description.lpszClassName = name_;
    if (RegisterClassExW(&description) == 0) {
      throw RuntimeError(error_number::kInternal, "The system refuses a window class");
    }
    registered_ = true;
  }
  ++users_;
}

void WindowClass::Leave() {
  const std::lock_guard lock(registration);
  --users_;
  UnregisterIfUnused();
}

bool WindowClass::SweepAll() {
  const std::lock_guard lock(registration);
  bool none_left = true;
  for (WindowClass* each = first_; each != nullptr; each = each->next_) {
    each->UnregisterIfUnused();
    none_left = none_left && !each->registered_;
  }
  return none_left;
}

void WindowClass::UnregisterIfUnused() {
  if (registered_ && users_ == 0 && UnregisterClassW(name_, ThisModule())) registered_ = false;
}

}  // namespace orvendal
