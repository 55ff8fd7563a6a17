#include "tests/adapters/win32/win32_fixture.h"

#include <oleacc.h>

#include "adapters/win32/win32_canvas.h"

namespace orvendal {
namespace {

// No process of Windows or Wine may have more graphics objects than this.
constexpr int kMoreThanAllGraphicsObjects = 20000;

class LoadedModule {
 public:
  LoadedModule() : module_(LoadLibraryW(ORVENDAL_UNLOAD_PROBE)) {}
  void Unload() {
    FreeLibrary(module_);
    module_ = nullptr;
  }
  HMODULE Handle() const { return module_; }
  template <typename Result = void>
  Result Call(const char* name) const {
    return reinterpret_cast<Result (*)()>(reinterpret_cast<void*>(GetProcAddress(module_, name)))();
  }

 private:
  HMODULE module_;
};

struct Resources {
  DWORD graphics = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  DWORD windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  bool operator==(const Resources&) const = default;
};

// Those that nobody sees and those that take messages only included.
int WindowsOfThread() {
  int count = 0;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND, LPARAM parameter) CALLBACK -> BOOL {
        ++*reinterpret_cast<int*>(parameter);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&count));
  HWND window = nullptr;
  while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
    if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) ++count;
  }
  return count;
}

// Opens a window of the module, lets it live, and unloads everything.
void LiveOnce() {
  LoadedModule module;
  ASSERT_NE(module.Handle(), nullptr);
  EXPECT_FALSE(module.Call<bool>("ProbeIsInUse"));
  module.Call("ProbeOpen");
  const HWND window = module.Call<HWND>("ProbeWindow");
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_TRUE(module.Call<bool>("ProbeIsInUse"));
  EXPECT_TRUE(PumpUntil([&] { return module.Call<bool>("ProbeHasTicked"); }));
  module.Call("ProbeClose");
  EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(module.Call<bool>("ProbeIsInUse"));
  const HMODULE place = module.Handle();
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  for (const wchar_t* name : {L"OrvendalForm", L"OrvendalTimers"}) {
    EXPECT_FALSE(GetClassInfoExW(place, name, &description)) << Utf8(name);
  }
  module.Unload();
  EXPECT_EQ(GetModuleHandleW(ORVENDAL_UNLOAD_PROBE), nullptr);
  // Whatever was still to come must not come into code that is gone.
  PumpUntil([] { return false; }, 60);
}

TEST(UnloadOnWindows, AModuleGoesWithoutATraceAndComesBack) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  LiveOnce();  // what the system itself makes at the first window stays
  const int windows = WindowsOfThread();
  const Resources before;
  for (int i = 0; i < 5; ++i) LiveOnce();
  EXPECT_EQ(WindowsOfThread(), windows);
  EXPECT_EQ(Resources(), before);
  CoUninitialize();
}

TEST(UnloadOnWindows, SurfacesAndFontsGiveTheirGraphicsObjectsBack) {
  for (int i = 0; i < kMoreThanAllGraphicsObjects; ++i) {
    Win32Fonts fonts;
    DibSurface surface(8, 8);
    Win32Canvas canvas(surface, fonts, 96, {0, 0, 8, 8});
    canvas.DrawText({0, 0, 120, 120}, "x", {"Bookman Old Style", 8 + i % 3 * 2.0, 600, false}, {},
                    HorizontalAlign::kLeft, VerticalAlign::kTop);
    ASSERT_GT(fonts.LineMeasures({}, 96).height, 0) << i;
  }
}

TEST(UnloadOnWindows, PaintingAWindowGivesItsGraphicsObjectsBack) {
  Win32WindowHost host;
  auto form = std::make_shared<ProbeForm>(host);
  form->Show();
  Pump();
  const HWND window = host.HandleOf(*form);
  for (int i = 0; i < kMoreThanAllGraphicsObjects; ++i) {
    const RECT spot{i % 50, 0, i % 50 + 1, 1};
    InvalidateRect(window, &spot, FALSE);
    UpdateWindow(window);
  }
  const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  EXPECT_NE(brush, nullptr);
  DeleteObject(brush);
  form->left.Color({0, 255, 0});
  Pump();
  EXPECT_EQ(PixelOf(window, 5, 5), RGB(0, 255, 0));
  form->Unload();
}

}  // namespace
}  // namespace orvendal
