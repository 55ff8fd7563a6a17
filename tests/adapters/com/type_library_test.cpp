#include "adapters/automation/com_ptr.h"
#include "adapters/com/identity.h"
#include "tests/adapters/com/tested_dll.h"

namespace orvendal {
namespace {

class TypeLibraryTest : public testing::Test {
 protected:
  TypeLibraryTest() {
    CoInitialize(nullptr);
    EXPECT_EQ(LoadTypeLibEx(TestedDll().c_str(), REGKIND_NONE, library.Receive()), S_OK);
  }
  ~TypeLibraryTest() override {
    library.Reset();
    CoUninitialize();
  }
  ComPtr<ITypeInfo> InfoOf(REFGUID guid) const {
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(library->GetTypeInfoOfGuid(guid, info.Receive()), S_OK);
    return info;
  }
  static std::string NameOf(ITypeInfo* info) {
    BstrCell name;
    info->GetDocumentation(MEMBERID_NIL, name.InOut(), nullptr, nullptr, nullptr);
    return name.Text();
  }

  /// Identifier and version of the library that `info` comes from.
  static std::string HomeOf(ITypeInfo* info) {
    ComPtr<ITypeLib> home;
    UINT index = 0;
    TLIBATTR* attributes = nullptr;
    if (FAILED(info->GetContainingTypeLib(home.Receive(), &index)) || FAILED(home->GetLibAttr(&attributes))) {
      return "(none)";
    }
    wchar_t guid[40] = L"";
    StringFromGUID2(attributes->guid, guid, 40);
    const std::string text = Utf8Text(guid) + " " + std::to_string(attributes->wMajorVerNum) + "." +
                             std::to_string(attributes->wMinorVerNum);
    home->ReleaseTLibAttr(attributes);
    return text;
  }

  ComPtr<ITypeLib> library;
};

TEST_F(TypeLibraryTest, HasItsIdentity) {
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
  EXPECT_TRUE(attributes->guid == identity::kTypeLibrary);
  EXPECT_EQ(attributes->wMajorVerNum, 1);
  EXPECT_EQ(attributes->wMinorVerNum, 0);
  library->ReleaseTLibAttr(attributes);
  BstrCell name;
  library->GetDocumentation(-1, name.InOut(), nullptr, nullptr, nullptr);
  EXPECT_EQ(name.Text(), "DllOrvendal");
  EXPECT_EQ(library->GetTypeInfoCount(), 2U) << "the class and its interface, nothing private";
}

TEST_F(TypeLibraryTest, TheClassIsCreatableWithItsDefaultInterface) {
  const ComPtr<ITypeInfo> info = InfoOf(identity::kClass);
  EXPECT_EQ(NameOf(info.Get()), "ClassOrvendal");
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FCANCREATE);
  EXPECT_EQ(attributes->cImplTypes, 1);
  info->ReleaseTypeAttr(attributes);
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> interface_info;
  ASSERT_EQ(info->GetRefTypeOfImplType(0, &reference), S_OK);
  ASSERT_EQ(info->GetRefTypeInfo(reference, interface_info.Receive()), S_OK);
  EXPECT_EQ(NameOf(interface_info.Get()), "_ClassOrvendal");
}

TEST_F(TypeLibraryTest, TheFunctionStandsAtItsPlaceWithItsArguments) {
  const ComPtr<ITypeInfo> info = InfoOf(identity::kInterface);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FDUAL);
  const UINT last = attributes->cFuncs - 1U;
  info->ReleaseTypeAttr(attributes);

  FUNCDESC* function = nullptr;
  ASSERT_EQ(info->GetFuncDesc(last, &function), S_OK);
  EXPECT_EQ(function->memid, 0x60030000);
  EXPECT_EQ(function->invkind, INVOKE_FUNC);
  EXPECT_EQ(function->cParams, 4);
  EXPECT_EQ(function->elemdescFunc.tdesc.vt, VT_BOOL);
  for (int place = 0; place < 4; ++place) {
    const ELEMDESC& parameter = function->lprgelemdescParam[place];
    EXPECT_EQ(parameter.tdesc.vt, VT_PTR);
    EXPECT_EQ(parameter.paramdesc.wParamFlags & (PARAMFLAG_FIN | PARAMFLAG_FOUT),
              PARAMFLAG_FIN | PARAMFLAG_FOUT);
    EXPECT_EQ(parameter.tdesc.lptdesc->vt, place == 0 ? VT_PTR : VT_BSTR);
  }
  BSTR names[5] = {};
  UINT count = 0;
  EXPECT_EQ(info->GetNames(function->memid, names, 5, &count), S_OK);
  ASSERT_EQ(count, 5U);
  EXPECT_STREQ(names[0], L"Orvendal");
  EXPECT_STREQ(names[1], L"DatosClase");
  EXPECT_STREQ(names[2], L"Suc");
  EXPECT_STREQ(names[3], L"Puest");
  EXPECT_STREQ(names[4], L"Turn");
  for (BSTR name : names) SysFreeString(name);
  info->ReleaseFuncDesc(function);
}

TEST_F(TypeLibraryTest, TheVtableSlotFollowsThoseOfIDispatch) {
  ComPtr<ITypeInfo> vtable;
  HREFTYPE reference = 0;
  const ComPtr<ITypeInfo> info = InfoOf(identity::kInterface);
  ASSERT_EQ(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
  ASSERT_EQ(info->GetRefTypeInfo(reference, vtable.Receive()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(vtable->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FDUAL);
  EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FOLEAUTOMATION);
  vtable->ReleaseTypeAttr(attributes);
  FUNCDESC* function = nullptr;
  ASSERT_EQ(vtable->GetFuncDesc(0, &function), S_OK);
  EXPECT_EQ(function->oVft, static_cast<SHORT>(7 * sizeof(void*)));
  EXPECT_EQ(function->cParams, 5);
  EXPECT_EQ(function->elemdescFunc.tdesc.vt, VT_HRESULT);
  vtable->ReleaseFuncDesc(function);
}

TEST_F(TypeLibraryTest, TheFirstArgumentIsTheMakersInterface) {
  ComPtr<ITypeLib> contract;
  ASSERT_EQ(LoadTypeLibEx(ContractLibrary().c_str(), REGKIND_REGISTER, contract.Receive()), S_OK);
  const ComPtr<ITypeInfo> info = InfoOf(identity::kInterface);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  const UINT last = attributes->cFuncs - 1U;
  info->ReleaseTypeAttr(attributes);
  FUNCDESC* function = nullptr;
  ASSERT_EQ(info->GetFuncDesc(last, &function), S_OK);
  const TYPEDESC* const type = function->lprgelemdescParam[0].tdesc.lptdesc->lptdesc;
  ASSERT_EQ(type->vt, VT_USERDEFINED);
  ComPtr<ITypeInfo> session;
  EXPECT_EQ(info->GetRefTypeInfo(type->hreftype, session.Receive()), S_OK);
  ASSERT_TRUE(session);
  TYPEATTR* session_attributes = nullptr;
  ASSERT_EQ(session->GetTypeAttr(&session_attributes), S_OK);
  EXPECT_TRUE(session_attributes->guid == identity::kHostInterface);
  session->ReleaseTypeAttr(session_attributes);
  EXPECT_EQ(HomeOf(session.Get()), "{C3B44D13-E60F-11D8-9EF6-0000393BB290} 1.0");
  info->ReleaseFuncDesc(function);
  const GUID contract_guid = {0xC3B44D13, 0xE60F, 0x11D8, {0x9E, 0xF6, 0x00, 0x00, 0x39, 0x3B, 0xB2, 0x90}};
  UnRegisterTypeLib(contract_guid, 1, 0, 0, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
}

TEST_F(TypeLibraryTest, TheInterfaceDerivesFromTheSystemsOwnDispatch) {
  const ComPtr<ITypeInfo> info = InfoOf(identity::kInterface);
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> base;
  ASSERT_EQ(info->GetRefTypeOfImplType(0, &reference), S_OK);
  ASSERT_EQ(info->GetRefTypeInfo(reference, base.Receive()), S_OK);
  EXPECT_EQ(NameOf(base.Get()), "IDispatch");
  EXPECT_EQ(HomeOf(base.Get()), "{00020430-0000-0000-C000-000000000046} 2.0");
}

TEST_F(TypeLibraryTest, NothingOfItIsBoundToALanguage) {
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->lcid, 0U);
  EXPECT_EQ(attributes->syskind, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
  library->ReleaseTLibAttr(attributes);
}

TEST_F(TypeLibraryTest, TheObjectGivesItsDescriptions) {
  const LoadedDll dll;
  {
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(dll.GetClassObject(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    ComPtr<IDispatch> object;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object.ReceiveVoid()), S_OK);
    UINT count = 0;
    EXPECT_EQ(object->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1U);
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(object->GetTypeInfo(0, 0, info.Receive()), S_OK);
    EXPECT_EQ(NameOf(info.Get()), "_ClassOrvendal");
    ComPtr<IProvideClassInfo> provider;
    ASSERT_EQ(object->QueryInterface(IID_IProvideClassInfo, provider.ReceiveVoid()), S_OK);
    EXPECT_EQ(provider->GetClassInfo(info.Receive()), S_OK);
    EXPECT_EQ(NameOf(info.Get()), "ClassOrvendal");
  }
}

}  // namespace
}  // namespace orvendal
