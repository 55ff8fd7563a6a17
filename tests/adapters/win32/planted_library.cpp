// What somebody could lay beside a program under the name of a library of the system: the same functions, and
// answers that give it away.

#include "tests/adapters/win32/planted_library.h"

extern "C" {

__declspec(dllexport) LRESULT WINAPI
    LresultFromObject(REFIID /*iid*/, WPARAM /*wparam*/, LPUNKNOWN /*object*/) {
  return orvendal::kPlantedAnswer;
}

__declspec(dllexport) HRESULT WINAPI
    AccessibleObjectFromWindow(HWND /*window*/, DWORD /*object*/, REFIID /*iid*/, void** /*found*/) {
  return static_cast<HRESULT>(orvendal::kPlantedAnswer);
}
}
