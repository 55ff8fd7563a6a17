#pragma once

// A function of the system that the linker leads through a test (orvendal_wrap_imports of CMake): the names
// of the pointers through which this program calls it and through which the test reaches the function itself.
// `bytes` is the size of its arguments where pointers have 32 bits.
#ifdef _WIN64
#define IMPORT_WRAP(function, bytes) "__wrap___imp_" #function
#define IMPORT_REAL(function, bytes) "__real___imp_" #function
#else
#define IMPORT_WRAP(function, bytes) "___wrap__imp__" #function "@" #bytes
#define IMPORT_REAL(function, bytes) "___real__imp__" #function "@" #bytes
#endif
