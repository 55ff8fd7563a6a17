#include <cstring>
#include <string>
#include <vector>

#include "DllOrvendal.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/com/identity.h"
#include "tests/adapters/com/fake_host.h"
#include "tests/adapters/com/tested_dll.h"

namespace orvendal {
namespace {

class ModuleTest : public testing::Test {
 protected:
  ModuleTest() { CoInitialize(nullptr); }
  ~ModuleTest() override { CoUninitialize(); }
};

TEST_F(ModuleTest, CarriesTheIdentifierOfItsDefaultInterface) {
  const LoadedDll dll;
  const HRSRC found = FindResourceExW(dll.Module(), L"_IID_CLASSORVENDAL", MAKEINTRESOURCEW(1), 0x0C0A);
  ASSERT_NE(found, nullptr);
  ASSERT_EQ(SizeofResource(dll.Module(), found), 20U);
  struct {
    std::uint32_t count;
    GUID guid;
  } content = {};
  std::memcpy(&content, LockResource(LoadResource(dll.Module(), found)), sizeof(content));
  EXPECT_EQ(content.count, 16U);
  EXPECT_TRUE(content.guid == identity::kInterface);
}

TEST_F(ModuleTest, CarriesItsVersionInSpanish) {
  const LoadedDll dll;
  const HRSRC found = FindResourceExW(dll.Module(), RT_VERSION, MAKEINTRESOURCEW(1), 0x0C0A);
  ASSERT_NE(found, nullptr);
  DWORD ignored = 0;
  std::string block(GetFileVersionInfoSizeW(TestedDll().c_str(), &ignored), '\0');
  ASSERT_TRUE(GetFileVersionInfoW(TestedDll().c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
  VS_FIXEDFILEINFO* fixed = nullptr;
  UINT size = 0;
  ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &size));
  EXPECT_EQ(fixed->dwFileVersionMS, 0x00010000U);
  EXPECT_EQ(fixed->dwFileVersionLS, 67U);
  wchar_t* text = nullptr;
  ASSERT_TRUE(VerQueryValueW(block.data(), L"\\StringFileInfo\\0C0A04B0\\FileVersion",
                             reinterpret_cast<void**>(&text), &size));
  EXPECT_STREQ(text, L"1.00.0067");
}

TEST_F(ModuleTest, ExportsTheFourEntryPointsOfAServerAndNothingElse) {
  const LoadedDll dll;
  const auto* const base = reinterpret_cast<const BYTE*>(dll.Module());
  const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const auto* const exports = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(
      base + headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress);
  const auto* const names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
  std::vector<std::string> found;
  for (DWORD index = 0; index < exports->NumberOfNames; ++index) {
    found.emplace_back(reinterpret_cast<const char*>(base + names[index]));
  }
  EXPECT_EQ(exports->NumberOfFunctions, 4U);
  EXPECT_EQ(found, (std::vector<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer",
                                             "DllUnregisterServer"}));
}

TEST_F(ModuleTest, GoesWhenNothingOfItIsInUse) {
  LoadedDll dll;
  EXPECT_EQ(dll.Call("DllCanUnloadNow"), S_OK);
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(dll.GetClassObject(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
  EXPECT_EQ(dll.Call("DllCanUnloadNow"), S_FALSE);
  ComPtr<IUnknown> object;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, object.ReceiveVoid()), S_OK);
  factory.Reset();
  EXPECT_EQ(dll.Call("DllCanUnloadNow"), S_FALSE);
  object.Reset();
  EXPECT_EQ(dll.Call("DllCanUnloadNow"), S_OK);
  dll.Free();
  EXPECT_FALSE(IsInMemory());
}

TEST_F(ModuleTest, StaysUntilItsStateIsGivenBackEvenIfAClientForgets) {
  LoadedDll dll;
  {
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(dll.GetClassObject(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    ComPtr<_ClassOrvendal> object;
    ASSERT_EQ(factory->CreateInstance(nullptr, identity::kInterface, object.ReceiveVoid()), S_OK);
    const auto host = MakeFake<FakeHost>();
    host->fill = [](const FillArguments&) { return E_FAIL; };
    _DatosClase* session = host.Get();
    BSTR text = nullptr;
    VARIANT_BOOL answer = VARIANT_TRUE;
    EXPECT_EQ(object->Orvendal(&session, &text, &text, &text, &answer), E_FAIL);
    EXPECT_EQ(host->References(), 2U);
  }
  dll.Free();
  EXPECT_TRUE(IsInMemory());
  LoadedDll again;
  EXPECT_EQ(again.Call("DllCanUnloadNow"), S_OK);
  EXPECT_EQ(FakesAlive(), 0);
  again.Free();
  EXPECT_FALSE(IsInMemory());
}

TEST_F(ModuleTest, ComUnloadsItWhenAClientLetGo) {
  LoadedDll dll;
  ASSERT_EQ(dll.Call("DllRegisterServer"), S_OK);
  dll.Free();
  ASSERT_FALSE(IsInMemory());
  ComPtr<IDispatch> object;
  ASSERT_EQ(
      CoCreateInstance(identity::kClass, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.ReceiveVoid()),
      S_OK);
  CoFreeUnusedLibraries();
  EXPECT_TRUE(IsInMemory());
  object.Reset();
  CoFreeUnusedLibrariesEx(0, 0);
  CoFreeUnusedLibrariesEx(0, 0);
  EXPECT_FALSE(IsInMemory());
  EXPECT_EQ(LoadedDll().Call("DllUnregisterServer"), S_OK);
}

}  // namespace
}  // namespace orvendal
