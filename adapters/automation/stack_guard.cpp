// The guard that the compiler puts on stack frames, in place of the toolchain's own: that one loads a library
// of cryptography while the module is being loaded, which no DllMain may.
#include <windows.h>

#include <cstdint>
#include <initializer_list>

extern "C" {

std::uintptr_t __stack_chk_guard = 0;

[[noreturn]] void __stack_chk_fail() {
  OutputDebugStringA("*** stack smashing detected ***");
  // The system's way to end at once, with its code for an overwritten cookie.
  __asm__ volatile("int $0x29" : : "c"(2));
  __builtin_unreachable();
}

}  // extern "C"

namespace {

// From what nobody outside knows to the tick: the moment, the process, and where the system put the module
// and the stack. Nothing that is guarded runs while constructors are called one after another.
__attribute__((constructor, optimize("no-stack-protector"))) void MakeGuard() {
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  LARGE_INTEGER ticks;
  QueryPerformanceCounter(&ticks);
  std::uint64_t mixed = (static_cast<std::uint64_t>(now.dwHighDateTime) << 32) ^ now.dwLowDateTime;
  for (const std::uint64_t part :
       {static_cast<std::uint64_t>(ticks.QuadPart), static_cast<std::uint64_t>(GetCurrentProcessId()),
        static_cast<std::uint64_t>(GetCurrentThreadId()),
        static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&ticks)),
        static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&__stack_chk_guard))}) {
    mixed = (mixed ^ part) * 0x9E3779B97F4A7C15U;
    mixed ^= mixed >> 29;
  }
  // A text that runs over ends at a zero, so it cannot write one and go on.
  __stack_chk_guard = static_cast<std::uintptr_t>(mixed) & ~static_cast<std::uintptr_t>(0xFF);
}

}  // namespace
