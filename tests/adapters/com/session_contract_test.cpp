#include <cstring>

#include "adapters/automation/bstr.h"
#include "adapters/automation/error_boundary.h"
#include "tests/adapters/com/com_world.h"

namespace orvendal {
namespace {

/// The description that a failed call left, and its source.
std::pair<std::string, std::string> LastError() {
  ComPtr<IErrorInfo> info;
  if (GetErrorInfo(0, info.Receive()) != S_OK) return {"(none)", "(none)"};
  BstrCell description;
  BstrCell source;
  info->GetDescription(description.InOut());
  info->GetSource(source.InOut());
  return {description.Text(), source.Text()};
}

/// Fails as a Basic program does.
HRESULT FailWith(HRESULT result, const wchar_t* description) {
  ComPtr<ICreateErrorInfo> made;
  CreateErrorInfo(made.Receive());
  made->SetSource(const_cast<LPOLESTR>(L"Anfitrion"));
  made->SetDescription(const_cast<LPOLESTR>(description));
  SetErrorInfo(0, made.Query<IErrorInfo>(IID_IErrorInfo).Get());
  return result;
}

class SessionContractTest : public ComWorld {};

TEST_F(SessionContractTest, TheFirstCallHandsOverEmptyVariablesAndFreshDictionaries) {
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(*session.connection, nullptr);
    for (IDispatch** const object : session.objects) EXPECT_EQ(*object, nullptr);
    EXPECT_EQ(*session.form1, nullptr);
    EXPECT_EQ(*session.form2, nullptr);
    EXPECT_EQ(*session.width, 0);
    EXPECT_EQ(*session.height, 0);
    EXPECT_EQ(*session.screen_datum, 0.0);
    EXPECT_NE(*session.general, nullptr);
    EXPECT_NE(*session.actions, nullptr);
    EXPECT_NE(*session.screens, nullptr);
    EXPECT_NE(*session.general, *session.actions);
    EXPECT_EQ(TextOfBstr(*session.chain), "");
    EXPECT_EQ(TextOfBstr(*session.branch), "02");
    return FillSession(session);
  };
  EXPECT_EQ(Open(L"02"), S_OK);
  EXPECT_EQ(host->times_asked, 1);
}

TEST_F(SessionContractTest, TheSecondCallHandsOverWhatTheFirstLeft) {
  const auto kept = MakeFake<PlainObject>();
  IDispatch* general = nullptr;
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace<IDispatch>(session.objects[2], kept.Get());
    *session.screen_datum = 3.5;
    general = *session.general;
    return S_OK;
  };
  Open();
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(*session.connection, static_cast<IDispatch*>(connection.Get()));
    EXPECT_EQ(*session.objects[2], static_cast<IDispatch*>(kept.Get()));
    EXPECT_EQ(*session.objects[1], nullptr);
    EXPECT_EQ(*session.width, 15360);
    EXPECT_EQ(*session.height, 11520);
    EXPECT_EQ(*session.screen_datum, 3.5);
    EXPECT_EQ(*session.general, general);
    EXPECT_EQ(TextOfBstr(*session.chain), "cadena");
    EXPECT_EQ(TextOfBstr(*session.branch), "01");
    return S_OK;
  };
  EXPECT_EQ(Open(), S_OK);
  EXPECT_EQ(host->times_asked, 2);
}

TEST_F(SessionContractTest, WhatTheHostPutsIsHeldOnceAndWhatItTakesAwayIsLetGo) {
  const auto object = MakeFake<PlainObject>();
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace<IDispatch>(session.objects[0], object.Get());
    return S_OK;
  };
  Open();
  EXPECT_EQ(object->References(), 2U);
  const ULONG connection_references = connection->References();
  Open();
  EXPECT_EQ(object->References(), 2U);
  EXPECT_EQ(connection->References(), connection_references);
  host->fill = [&](const FillArguments& session) {
    Replace<IDispatch>(session.objects[0], nullptr);
    return S_OK;
  };
  Open();
  EXPECT_EQ(object->References(), 1U);
}

TEST_F(SessionContractTest, AReplacedObjectTakesThePlaceOfTheOldOne) {
  const auto first = MakeFake<PlainObject>();
  const auto second = MakeFake<PlainObject>();
  IDispatch* next = first.Get();
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace(session.objects[3], next);
    return S_OK;
  };
  Open();
  next = second.Get();
  Open();
  EXPECT_EQ(first->References(), 1U);
  EXPECT_EQ(second->References(), 2U);
}

TEST_F(SessionContractTest, ABranchThatTheHostReplacesWins) {
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace(session.branch, L"02");
    return S_OK;
  };
  EXPECT_EQ(Open(L"01"), S_OK);
  EXPECT_EQ(form().LblSucursal.Tag(), "02");
}

TEST_F(SessionContractTest, ABranchThatTheHostClearsIsEmpty) {
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace(session.branch, nullptr);
    Replace(session.chain, nullptr);
    return S_OK;
  };
  EXPECT_EQ(Open(L"01"), S_OK);
  EXPECT_EQ(form().LblSucursal.Tag(), "");
}

TEST_F(SessionContractTest, TextsCrossWithEveryCharacter) {
  const std::wstring chain = L"Ñandú \u20AC \u4E2D \U0001F600";
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace(session.chain, chain.c_str());
    return S_OK;
  };
  Open();
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(std::wstring(*session.chain, SysStringLen(*session.chain)), chain);
    return S_OK;
  };
  Open();
}

TEST_F(SessionContractTest, TheScreenDatumKeepsAnyNumberOfUpToEightBytes) {
  const std::int64_t whole = 0x0123456789ABCDEF;
  const std::int16_t narrow = -7;
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    std::memcpy(session.screen_datum, &whole, sizeof(whole));
    return S_OK;
  };
  Open();
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(std::memcmp(session.screen_datum, &whole, sizeof(whole)), 0);
    std::memset(session.screen_datum, 0, sizeof(double));
    std::memcpy(session.screen_datum, &narrow, sizeof(narrow));
    return S_OK;
  };
  Open();
  std::int16_t handed_to_f2 = 0;
  behaviour.f2 = [&](IDispatch**, double* datum, BSTR*, BSTR*, BSTR*, LONG*, LONG*, LONG*) {
    std::memcpy(&handed_to_f2, datum, sizeof(handed_to_f2));
    return S_OK;
  };
  hands().Key(key::kF2);
  EXPECT_EQ(handed_to_f2, narrow);
}

/// A form of the host, as far as the component looks at it.
class ForeignForm final : public FakeObject<IDispatch> {
 public:
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    const std::wstring name = names[0];
    const bool known = name == L"Caption" || name == L"Show" || name == L"Hide";
    *ids = known ? 1 : DISPID_UNKNOWN;
    return known ? S_OK : DISP_E_UNKNOWNNAME;
  }
};

TEST_F(SessionContractTest, FormsOfTheHostAreKeptAndHandedBack) {
  const auto foreign = MakeFake<ForeignForm>();
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace<IDispatch>(session.form1, foreign.Get());
    return S_OK;
  };
  EXPECT_EQ(Open(), S_OK);
  EXPECT_EQ(foreign->References(), 2U);
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(*session.form1, static_cast<IDispatch*>(foreign.Get()));
    EXPECT_EQ(*session.form2, nullptr);
    return S_OK;
  };
  EXPECT_EQ(Open(), S_OK);
}

TEST_F(SessionContractTest, WhatIsNoFormInAFormVariableIsError13) {
  const auto object = MakeFake<PlainObject>();
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace<IDispatch>(session.form2, object.Get());
    return S_OK;
  };
  EXPECT_EQ(Open(), static_cast<HRESULT>(0x800A000D));
  EXPECT_EQ(object->References(), 1U);
}

TEST_F(SessionContractTest, WhatIsNoConnectionIsError13) {
  const auto object = MakeFake<PlainObject>();
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace<IDispatch>(session.connection, object.Get());
    return S_OK;
  };
  EXPECT_EQ(Open(), static_cast<HRESULT>(0x800A000D));
  EXPECT_EQ(object->References(), 1U);
}

TEST_F(SessionContractTest, AFailingHostEndsTheCallWithItsNumberAndDescription) {
  host->fill = [](const FillArguments&) { return FailWith(static_cast<HRESULT>(0x800A01F4), L"Sin sesión"); };
  EXPECT_EQ(Open(), static_cast<HRESULT>(0x800A01F4));
  EXPECT_EQ(LastError(), std::make_pair(std::string("Sin sesión"), std::string("DllOrvendal")));
  EXPECT_EQ(windows->ActiveForm(), nullptr);
}

TEST_F(SessionContractTest, CodesOfTheStoreAndOfTheSystemPassUnchanged) {
  host->fill = [](const FillArguments&) {
    return FailWith(static_cast<HRESULT>(0x80040E21), L"Paso múltiple");
  };
  EXPECT_EQ(Open(), static_cast<HRESULT>(0x80040E21));
  EXPECT_EQ(LastError().first, "Paso múltiple");
  host->fill = [](const FillArguments&) { return E_ACCESSDENIED; };
  EXPECT_EQ(Open(), E_ACCESSDENIED);
  EXPECT_NE(LastError().first, "Paso múltiple");
}

TEST_F(SessionContractTest, ErrorInformationOfAnEarlierFailureIsNotTaken) {
  FailWith(E_FAIL, L"de antes");
  host->fill = [](const FillArguments&) { return static_cast<HRESULT>(0x800A000D); };
  EXPECT_EQ(Open(), static_cast<HRESULT>(0x800A000D));
  EXPECT_EQ(LastError().first, "Type mismatch");
}

TEST_F(SessionContractTest, WhatAFailingHostFilledSoFarStays) {
  host->fill = [&](const FillArguments& session) {
    *session.width = 9000;
    Replace(session.chain, L"a medias");
    Replace<IDispatch>(session.connection, connection.Get());
    return E_FAIL;
  };
  EXPECT_EQ(Open(), E_FAIL);
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(*session.width, 9000);
    EXPECT_EQ(TextOfBstr(*session.chain), "a medias");
    EXPECT_EQ(*session.connection, static_cast<IDispatch*>(connection.Get()));
    return FillSession(session);
  };
  EXPECT_EQ(Open(), S_OK);
}

TEST_F(SessionContractTest, TheTextsOfACallAreKeptEvenIfItHasNoSessionObject) {
  Open();
  BstrCell branch("07");
  BstrCell station("P7");
  BstrCell turn("T7");
  _DatosClase* nobody = nullptr;
  VARIANT_BOOL answer = VARIANT_TRUE;
  EXPECT_EQ(component->Orvendal(&nobody, branch.InOut(), station.InOut(), turn.InOut(), &answer),
            static_cast<HRESULT>(0x800A005B));
  EXPECT_EQ(host->References(), 1U) << "the session object of before is let go";
  hands().Key(key::kF2);
  EXPECT_EQ(CallsOf("AbrirCambio").back(), "AbrirCambio '07' 'P7' 'T7' 15360 11520");
}

TEST_F(SessionContractTest, AHostThatCallsAgainFromItsFillingIsAnswered) {
  bool first = true;
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    if (std::exchange(first, false)) {
      EXPECT_EQ(Open(L"02"), S_OK);
    }
    return S_OK;
  };
  EXPECT_EQ(Open(L"01"), S_OK);
  EXPECT_EQ(host->times_asked, 2);
}

TEST_F(SessionContractTest, WithoutAConnectionTheLoadFailsAsTheStoreDoes) {
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace<IDispatch>(session.connection, nullptr);
    return S_OK;
  };
  EXPECT_EQ(Open(), static_cast<HRESULT>(0x800A0000 + 3709));
  EXPECT_NE(LastError().first, "");
}

}  // namespace
}  // namespace orvendal
