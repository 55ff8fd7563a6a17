#include "adapters/win32/thread_dpi.h"

#include <cstdint>

namespace orvendal {
namespace {

struct ThreadDpiFunctions {
  HANDLE(WINAPI* get)() = UserFunction<HANDLE(WINAPI*)()>("GetThreadDpiAwarenessContext");
  HANDLE(WINAPI* set)(HANDLE) = UserFunction<HANDLE(WINAPI*)(HANDLE)>("SetThreadDpiAwarenessContext");
  BOOL(WINAPI* is_valid)(HANDLE) = UserFunction<BOOL(WINAPI*)(HANDLE)>("IsValidDpiAwarenessContext");
};

const ThreadDpiFunctions& Functions() {
  static const ThreadDpiFunctions functions;
  return functions;
}

// The system's marks for displays of different resolution, newest first.
constexpr std::intptr_t kEachDisplaySecondVersion = -4;
constexpr std::intptr_t kEachDisplay = -3;

HANDLE FindSharpest() {
  const ThreadDpiFunctions& functions = Functions();
  if (functions.is_valid == nullptr) return nullptr;
  for (const std::intptr_t mark : {kEachDisplaySecondVersion, kEachDisplay}) {
    const HANDLE handle = reinterpret_cast<HANDLE>(mark);
    if (functions.is_valid(handle)) return handle;
  }
  return nullptr;
}

}  // namespace

DpiContext DpiContext::OfThread() {
  return DpiContext(Functions().get == nullptr ? nullptr : Functions().get());
}

DpiContext DpiContext::Sharpest() {
  static const HANDLE sharpest = FindSharpest();
  return DpiContext(sharpest);
}

DpiScope::DpiScope(DpiContext context) noexcept {
  if (context.handle_ != nullptr && Functions().set != nullptr) before_ = Functions().set(context.handle_);
}

DpiScope::~DpiScope() {
  if (before_ != nullptr) Functions().set(before_);
}

}  // namespace orvendal
