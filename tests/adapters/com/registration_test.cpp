#include <set>

#include "adapters/automation/com_ptr.h"
#include "adapters/com/identity.h"
#include "tests/adapters/com/registry_snapshot.h"
#include "tests/adapters/com/tested_dll.h"

namespace orvendal {
namespace {

class RegistrationTest : public testing::Test {
 protected:
  ~RegistrationTest() override { dll.Call("DllUnregisterServer"); }

  /// A value under HKEY_CLASSES_ROOT; "(none)" if it is not there.
  static std::string ValueAt(const std::wstring& key, const wchar_t* name = nullptr) {
    wchar_t text[1024] = L"";
    DWORD size = sizeof(text);
    const LSTATUS status =
        RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? Utf8Text(text) : "(none)";
  }
  static bool HasKey(const std::wstring& key) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
    RegCloseKey(opened);
    return true;
  }

  LoadedDll dll;
};

const std::wstring kClassKey = L"CLSID\\{5DFDE722-C9BD-4BF4-B2DA-20EC56001007}";
const std::wstring kInterfaceKey = L"Interface\\{4F7B0BBB-E42D-4070-9098-1944A409461D}";
const std::wstring kLibraryKey = L"TypeLib\\{C4DCEC56-6CB1-4812-926A-918528C2913F}";

TEST_F(RegistrationTest, WritesWhatAHostNeedsToFindTheClass) {
  ASSERT_EQ(dll.Call("DllRegisterServer"), S_OK);
  EXPECT_EQ(ValueAt(L"DllOrvendal.ClassOrvendal\\Clsid"), "{5DFDE722-C9BD-4BF4-B2DA-20EC56001007}");
  EXPECT_EQ(ValueAt(kClassKey), "DllOrvendal.ClassOrvendal");
  EXPECT_EQ(ValueAt(kClassKey + L"\\InprocServer32"), Utf8Text(TestedDll()));
  EXPECT_EQ(ValueAt(kClassKey + L"\\InprocServer32", L"ThreadingModel"), "Apartment");
  EXPECT_EQ(ValueAt(kClassKey + L"\\ProgID"), "DllOrvendal.ClassOrvendal");
  EXPECT_EQ(ValueAt(kClassKey + L"\\TypeLib"), "{C4DCEC56-6CB1-4812-926A-918528C2913F}");
  EXPECT_EQ(ValueAt(kClassKey + L"\\VERSION"), "1.0");
  EXPECT_TRUE(HasKey(kClassKey + L"\\Programmable"));
  EXPECT_TRUE(HasKey(kClassKey + L"\\Implemented Categories\\{40FC6ED5-2438-11CF-A3DB-080036F12502}"));
  EXPECT_EQ(ValueAt(kInterfaceKey), "_ClassOrvendal");
  EXPECT_EQ(ValueAt(kInterfaceKey + L"\\ProxyStubClsid32"), "{00020424-0000-0000-C000-000000000046}");
  EXPECT_EQ(ValueAt(kInterfaceKey + L"\\TypeLib", L"Version"), "1.0");
  EXPECT_EQ(ValueAt(kLibraryKey + L"\\1.0"), "DllOrvendal");
  EXPECT_EQ(ValueAt(kLibraryKey + L"\\1.0\\FLAGS"), "0");
}

TEST_F(RegistrationTest, ClientsFindClassAndTypeLibraryThroughIt) {
  ASSERT_EQ(dll.Call("DllRegisterServer"), S_OK);
  CoInitialize(nullptr);
  {
    CLSID class_id;
    EXPECT_EQ(CLSIDFromProgID(L"dllorvendal.classorvendal", &class_id), S_OK);
    EXPECT_TRUE(class_id == identity::kClass);
    ComPtr<IDispatch> object;
    EXPECT_EQ(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.ReceiveVoid()),
              S_OK);
    ComPtr<ITypeLib> library;
    EXPECT_EQ(LoadRegTypeLib(identity::kTypeLibrary, 1, 0, 0, library.Receive()), S_OK);
  }
  CoUninitialize();
}

TEST_F(RegistrationTest, RemovalLeavesTheRegistryAsItWas) {
  const RegistrySnapshot before = SnapshotOfClasses();
  ASSERT_EQ(dll.Call("DllRegisterServer"), S_OK);
  EXPECT_NE(SnapshotOfClasses(), before);
  ASSERT_EQ(dll.Call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(SnapshotOfClasses(), before);
}

TEST_F(RegistrationTest, RemovalTakesWhatOthersAddedBelowItsKeys) {
  const RegistrySnapshot before = SnapshotOfClasses();
  dll.Call("DllRegisterServer");
  HKEY key = nullptr;
  RegCreateKeyExW(HKEY_CLASSES_ROOT, (kClassKey + L"\\TreatAs").c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                  &key, nullptr);
  RegCloseKey(key);
  EXPECT_EQ(dll.Call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(SnapshotOfClasses(), before);
}

TEST_F(RegistrationTest, ARegistrationThatFailsHalfWayIsTakenBack) {
  const RegistrySnapshot before = SnapshotOfClasses();
  // Below a key that is not kept, none that is kept can be made.
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_CLASSES_ROOT, kInterfaceKey.c_str(), 0, nullptr, REG_OPTION_VOLATILE,
                            KEY_WRITE, nullptr, &key, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(key);
  EXPECT_EQ(dll.Call("DllRegisterServer"), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
  EXPECT_EQ(SnapshotOfClasses(), before);
  EXPECT_EQ(dll.Call("DllRegisterServer"), S_OK);
}

TEST_F(RegistrationTest, ASecondRegistrationChangesNothing) {
  dll.Call("DllRegisterServer");
  const RegistrySnapshot once = SnapshotOfClasses();
  EXPECT_EQ(dll.Call("DllRegisterServer"), S_OK);
  EXPECT_EQ(SnapshotOfClasses(), once);
}

TEST_F(RegistrationTest, RemovingWhatIsNotThereIsNoFailure) {
  EXPECT_EQ(dll.Call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(dll.Call("DllUnregisterServer"), S_OK);
}

TEST_F(RegistrationTest, AnotherVersionOfTheTypeLibraryIsLeftAlone) {
  const std::wstring other = kLibraryKey + L"\\2.0\\0";
  HKEY key = nullptr;
  RegCreateKeyExW(HKEY_CLASSES_ROOT, other.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
  RegCloseKey(key);
  dll.Call("DllRegisterServer");
  dll.Call("DllUnregisterServer");
  EXPECT_TRUE(HasKey(other));
  EXPECT_FALSE(HasKey(kLibraryKey + L"\\1.0"));
  RegDeleteTreeW(HKEY_CLASSES_ROOT, kLibraryKey.c_str());
}

TEST_F(RegistrationTest, WhatTheOtherBitnessSharesStaysWhileItIsRegistered) {
  const REGSAM other_view = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  HKEY key = nullptr;
  if (RegCreateKeyExW(HKEY_CLASSES_ROOT, (kClassKey + L"\\InprocServer32").c_str(), 0, nullptr, 0,
                      KEY_WRITE | other_view, nullptr, &key, nullptr) != ERROR_SUCCESS) {
    return;  // a system of one bitness has no other view
  }
  RegCloseKey(key);
  BOOL is_32_on_64 = FALSE;
  IsWow64Process(GetCurrentProcess(), &is_32_on_64);
  const bool both = sizeof(void*) == 8 || is_32_on_64;
  dll.Call("DllRegisterServer");
  dll.Call("DllUnregisterServer");
  EXPECT_EQ(HasKey(L"DllOrvendal.ClassOrvendal"), both);
  EXPECT_EQ(HasKey(kLibraryKey + L"\\1.0"), both);
  EXPECT_FALSE(HasKey(kLibraryKey + L"\\1.0\\0\\" + (sizeof(void*) == 8 ? L"win64" : L"win32")));
  RegOpenKeyExW(HKEY_CLASSES_ROOT, L"CLSID", 0, KEY_ALL_ACCESS | other_view, &key);
  RegDeleteTreeW(key, L"{5DFDE722-C9BD-4BF4-B2DA-20EC56001007}");
  RegCloseKey(key);
  dll.Call("DllUnregisterServer");
  EXPECT_FALSE(HasKey(L"DllOrvendal.ClassOrvendal"));
}

}  // namespace
}  // namespace orvendal
