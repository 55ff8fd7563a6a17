#pragma once

// The system's headers of COM and Automation, without the macros that get in the way.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <objbase.h>
#include <oleauto.h>
#include <olectl.h>
#undef DrawText
#undef GetCurrentTime
