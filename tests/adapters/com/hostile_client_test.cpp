#include <algorithm>
#include <cstring>
#include <functional>
#include <optional>
#include <thread>

#include "adapters/com/identity.h"
#include "tests/adapters/com/com_world.h"
#include "tests/adapters/com/invoke_client.h"

namespace orvendal {
namespace {

constexpr DISPID kOrvendal = 0x60030000;

/// An object whose default property a test sets.
class Speaker final : public FakeObject<IDispatch> {
 public:
  std::function<HRESULT(VARIANT* result)> speak;

  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    return member == DISPID_VALUE && speak ? speak(result) : DISP_E_MEMBERNOTFOUND;
  }
};

/// A client that keeps to no rule of Automation.
class HostileClientTest : public ComWorld {
 protected:
  HostileClientTest() {
    host->fill = [this](const FillArguments& session) {
      branch_seen = std::wstring(*session.branch ? *session.branch : L"", SysStringLen(*session.branch));
      return FillSession(session);
    };
  }
  void TearDown() override {
    text.reset();
    ComWorld::TearDown();
  }
  HRESULT CallWith(std::vector<VARIANT> arguments, LCID lcid = LOCALE_USER_DEFAULT) {
    std::reverse(arguments.begin(), arguments.end());
    DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    wrong = 99;
    return component->Invoke(kOrvendal, IID_NULL, lcid, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                             &wrong);
  }
  /// Calls with `branch` for the second argument.
  HRESULT CallWithBranch(VARIANT branch, LCID lcid = LOCALE_USER_DEFAULT) {
    return CallWith(
        {
            HostObject(),
            branch,
            Text(),
            Text(),
        },
        lcid);
  }
  VARIANT HostObject() const { return Argument(static_cast<IDispatch*>(host.Get())); }
  VARIANT Text() const { return Argument(text->Get()); }

  std::optional<BstrCell> text{"T1"};
  std::wstring branch_seen = L"(not asked)";
  UINT wrong = 99;
};

TEST_F(HostileClientTest, EveryArgumentIsTakenInEveryWayOfPassing) {
  for (int place = 0; place < 4; ++place) {
    BSTR own_text = text->Get();
    IDispatch* own_object = host.Get();
    const VARIANT plain = place == 0 ? HostObject() : Text();
    VARIANT by_value = plain;
    VARIANT by_reference = place == 0 ? Reference(&own_object) : Reference(&own_text);
    VARIANT twice = Reference(&by_reference);
    for (const VARIANT& way :
         {plain, by_reference, Reference(&by_value), Reference(&by_reference), Reference(&twice)}) {
      std::vector<VARIANT> arguments = {HostObject(), Text(), Text(), Text()};
      arguments[static_cast<std::size_t>(place)] = way;
      host->times_asked = 0;
      EXPECT_EQ(CallWith(arguments), S_OK) << "argument " << place << " as " << V_VT(&way);
      EXPECT_EQ(host->times_asked, 1);
      EXPECT_EQ(branch_seen, L"T1");
    }
    EXPECT_EQ(own_text, text->Get());
    EXPECT_EQ(own_object, static_cast<IDispatch*>(host.Get()));
    EXPECT_EQ(V_VT(&by_value), V_VT(&plain));
  }
  EXPECT_EQ(host->References(), 2U);
}

TEST_F(HostileClientTest, ReferencesToNothingAreMismatches) {
  for (UINT place = 0; place < 4; ++place) {
    for (const VARTYPE type : {VT_BSTR, VT_VARIANT, VT_DISPATCH, VT_I4}) {
      std::vector<VARIANT> arguments = {HostObject(), Text(), Text(), Text()};
      arguments[place] = OfType(static_cast<VARTYPE>(VT_BYREF | type));
      EXPECT_EQ(CallWith(arguments), DISP_E_TYPEMISMATCH) << "argument " << place << " as " << type;
      EXPECT_EQ(wrong, 3 - place);
    }
  }
  EXPECT_EQ(host->times_asked, 0);
}

TEST_F(HostileClientTest, ARingOfReferencesIsAMismatch) {
  VARIANT ring;
  ring = Reference(&ring);
  EXPECT_EQ(CallWithBranch(ring), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(CallWith({ring, Text(), Text(), Text()}), DISP_E_TYPEMISMATCH);
}

TEST_F(HostileClientTest, ArgumentsAndNamesThatArePromisedAndNotThereAreRefused) {
  DISPPARAMS parameters = {nullptr, nullptr, 4, 0};
  EXPECT_EQ(
      component->Invoke(kOrvendal, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
      E_INVALIDARG);
  VARIANT arguments[] = {Text(), Text(), Text(), HostObject()};
  parameters = {arguments, nullptr, 4, 2};
  EXPECT_EQ(
      component->Invoke(kOrvendal, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
      E_INVALIDARG);
  EXPECT_EQ(component->Invoke(kOrvendal, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
            E_INVALIDARG);
  DISPID name = 0;
  parameters = {arguments, &name, 0, 1};
  EXPECT_EQ(
      component->Invoke(kOrvendal, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
      DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(component->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &name), E_POINTER);
  LPOLESTR nameless = nullptr;
  EXPECT_EQ(component->GetIDsOfNames(IID_NULL, &nameless, 1, 0, nullptr), E_POINTER);
  EXPECT_EQ(component->GetIDsOfNames(IID_NULL, &nameless, 1, 0, &name), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(host->times_asked, 0);
}

TEST_F(HostileClientTest, AReservedIdentifierThatIsLeftOutIsNoHarm) {
  using InC = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, DISPID, const IID*, LCID, WORD, DISPPARAMS*, VARIANT*,
                                          EXCEPINFO*, UINT*);
  void** const vtable = *reinterpret_cast<void***>(component.Get());
  VARIANT arguments[] = {Text(), Text(), Text(), HostObject()};
  DISPPARAMS parameters = {arguments, nullptr, 4, 0};
  EXPECT_EQ(reinterpret_cast<InC>(vtable[6])(component.Get(), kOrvendal, nullptr, 0, DISPATCH_METHOD,
                                             &parameters, nullptr, nullptr, nullptr),
            S_OK);
}

TEST_F(HostileClientTest, AResultThatWasNeverSetUpIsOverwritten) {
  VARIANT result;
  std::memset(&result, 0xA5, sizeof(result));
  VARIANT arguments[] = {Text(), Text(), Text(), HostObject()};
  DISPPARAMS parameters = {arguments, nullptr, 4, 0};
  EXPECT_EQ(
      component->Invoke(kOrvendal, IID_NULL, 0, DISPATCH_METHOD, &parameters, &result, nullptr, nullptr),
      S_OK);
  EXPECT_EQ(V_VT(&result), VT_BOOL);
  EXPECT_EQ(V_BOOL(&result), VARIANT_FALSE);
}

TEST_F(HostileClientTest, WhatIsNoObjectForTheSessionIsAMismatch) {
  for (const VARTYPE type : {VT_EMPTY, VT_NULL, VT_I4, VT_BOOL, VT_DATE, VT_ERROR}) {
    EXPECT_EQ(CallWith({OfType(type), Text(), Text(), Text()}), DISP_E_TYPEMISMATCH) << type;
    EXPECT_EQ(wrong, 3U);
  }
  EXPECT_EQ(host->times_asked, 0);
}

TEST_F(HostileClientTest, AnObjectForATextGivesItsDefaultProperty) {
  const auto speaker = MakeFake<Speaker>();
  speaker->speak = [](VARIANT* result) {
    V_VT(result) = VT_I4;
    V_I4(result) = 12;
    return S_OK;
  };
  EXPECT_EQ(CallWithBranch(Argument(static_cast<IDispatch*>(speaker.Get()))), S_OK);
  EXPECT_EQ(branch_seen, L"12");
  EXPECT_EQ(speaker->References(), 1U);
}

TEST_F(HostileClientTest, AnObjectWithoutATextIsAMismatch) {
  const auto speaker = MakeFake<Speaker>();
  EXPECT_TRUE(FAILED(CallWithBranch(Argument(static_cast<IDispatch*>(speaker.Get())))));
  speaker->speak = [](VARIANT*) { return DISP_E_EXCEPTION; };
  EXPECT_EQ(CallWithBranch(Argument(static_cast<IDispatch*>(speaker.Get()))), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(CallWithBranch(Argument(static_cast<IDispatch*>(nullptr))), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(host->times_asked, 0);
}

TEST_F(HostileClientTest, AnArgumentMayLetGoOfTheObjectThatIsCalled) {
  const auto speaker = MakeFake<Speaker>();
  _ClassOrvendal* const raw = component.Get();
  speaker->speak = [&](VARIANT* result) {
    component.Reset();
    EXPECT_FALSE(CanModuleGo()) << "the object lives to the end of the call";
    V_VT(result) = VT_I4;
    V_I4(result) = 1;
    return S_OK;
  };
  VARIANT arguments[] = {Text(), Text(), Argument(static_cast<IDispatch*>(speaker.Get())), HostObject()};
  DISPPARAMS parameters = {arguments, nullptr, 4, 0};
  EXPECT_EQ(raw->Invoke(kOrvendal, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
            S_OK);
  EXPECT_EQ(branch_seen, L"1");
}

TEST_F(HostileClientTest, NumbersBecomeTextsOfTheClientsLocale) {
  VARIANT number = OfType(VT_R8);
  V_R8(&number) = 1.5;
  EXPECT_EQ(CallWithBranch(number, MAKELCID(MAKELANGID(LANG_SPANISH, SUBLANG_SPANISH_MODERN), SORT_DEFAULT)),
            S_OK);
  EXPECT_EQ(branch_seen, L"1,5");
  EXPECT_EQ(CallWithBranch(number, MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT)),
            S_OK);
  EXPECT_EQ(branch_seen, L"1.5");
}

TEST_F(HostileClientTest, TextsWithZerosInThemAndVeryLongOnesCrossWhole) {
  const std::wstring zeros(
      L"0\0"
      L"1\0",
      4);
  const std::wstring very_long(1 << 20, L'\u00D1');
  for (const std::wstring& given : {zeros, very_long}) {
    BSTR branch = SysAllocStringLen(given.data(), static_cast<UINT>(given.size()));
    BSTR empty = nullptr;
    _DatosClase* session = host.Get();
    VARIANT_BOOL answer = VARIANT_TRUE;
    BSTR const same = branch;
    EXPECT_EQ(component->Orvendal(&session, &branch, &empty, &empty, &answer), S_OK);
    EXPECT_TRUE(branch_seen == given);
    EXPECT_EQ(branch, same);
    EXPECT_EQ(SysStringLen(branch), given.size());
    branch_seen.clear();
    EXPECT_EQ(CallWithBranch(Reference(&branch)), S_OK);
    EXPECT_TRUE(branch_seen == given);
    SysFreeString(branch);
  }
}

TEST_F(HostileClientTest, AMissingPointerIsNotExplainedByAnEarlierFailure) {
  BSTR empty = nullptr;
  _DatosClase* nobody = nullptr;
  VARIANT_BOOL answer = VARIANT_TRUE;
  EXPECT_EQ(component->Orvendal(&nobody, &empty, &empty, &empty, &answer), static_cast<HRESULT>(0x800A005B));
  EXPECT_EQ(component->Orvendal(&nobody, nullptr, &empty, &empty, &answer), E_POINTER);
  ComPtr<IErrorInfo> info;
  EXPECT_EQ(GetErrorInfo(0, info.Receive()), S_FALSE);
}

TEST_F(HostileClientTest, OnlyTheThreadThatMadeTheObjectMayCallIt) {
  HRESULT by_vtable = S_OK;
  HRESULT by_name = S_OK;
  EXCEPINFO exception = {};
  std::thread other([&] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    BSTR empty = nullptr;
    _DatosClase* session = host.Get();
    VARIANT_BOOL answer = VARIANT_TRUE;
    by_vtable = component->Orvendal(&session, &empty, &empty, &empty, &answer);
    VARIANT arguments[] = {Text(), Text(), Text(), HostObject()};
    DISPPARAMS parameters = {arguments, nullptr, 4, 0};
    by_name =
        component->Invoke(kOrvendal, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, &exception, nullptr);
    CoUninitialize();
  });
  other.join();
  EXPECT_EQ(by_vtable, RPC_E_WRONG_THREAD);
  EXPECT_EQ(by_name, DISP_E_EXCEPTION);
  EXPECT_EQ(exception.scode, RPC_E_WRONG_THREAD);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  EXPECT_EQ(host->times_asked, 0);
  EXPECT_EQ(Open(), S_OK) << "the thread that may is not hindered";
}

TEST_F(HostileClientTest, AFormObjectAnswersItsOwnThreadOnly) {
  ComPtr<IDispatch> kept;
  behaviour.let_go = [&](IDispatch** given) {
    kept = ComPtr<IDispatch>(*given);
    return S_OK;
  };
  Open();
  CloseForm();
  HRESULT result = S_OK;
  std::thread other([&] { result = InvokeClient(kept.Get()).Get(L"Caption"); });
  other.join();
  EXPECT_EQ(result, RPC_E_WRONG_THREAD);
  InvokeClient here(kept.Get());
  EXPECT_EQ(here.Get(L"Caption"), S_OK);
}

}  // namespace
}  // namespace orvendal
