#pragma once

#include "adapters/win32/windows_api.h"

// What the module of unload_probe.cpp exports.
extern "C" {
__declspec(dllexport) void ProbeOpen();
__declspec(dllexport) HWND ProbeWindow();
__declspec(dllexport) bool ProbeHasTicked();
__declspec(dllexport) void ProbeClose();
__declspec(dllexport) bool ProbeIsInUse();
}
