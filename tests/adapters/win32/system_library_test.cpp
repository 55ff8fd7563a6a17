#include "tests/adapters/win32/planted_library.h"
#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

std::wstring FolderOfProgram() {
  wchar_t path[MAX_PATH] = L"";
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring_view whole(path, length);
  return std::wstring(whole.substr(0, whole.rfind(L'\\') + 1));
}

TEST(SystemLibraryOnWindows, OneOfTheSameNameBesideTheProgramIsNotLoaded) {
  const std::wstring planted = FolderOfProgram() + L"oleacc.dll";
  ASSERT_NE(GetFileAttributesW(planted.c_str()), INVALID_FILE_ATTRIBUTES) << "nothing is planted";
  CoInitialize(nullptr);
  {
    Win32WindowHost host;
    auto form = std::make_shared<ProbeForm>(host);
    form->Show();
    Pump();
    const LRESULT answer =
        SendMessageW(host.HandleOf(*form), WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_CLIENT));
    EXPECT_GT(answer, 0) << "an assistant gets an object";
    EXPECT_NE(answer, kPlantedAnswer);
    EXPECT_EQ(GetModuleHandleW(planted.c_str()), nullptr);
    EXPECT_NE(GetModuleHandleW(SystemFile(L"oleacc.dll").Path()), nullptr);
    form->Unload();
  }
  CoUninitialize();
}

}  // namespace
}  // namespace orvendal
