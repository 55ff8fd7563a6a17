#include <functional>
#include <new>

#include "adapters/automation/bstr.h"
#include "adapters/com/component_factory.h"
#include "adapters/com/identity.h"
#include "form/columns.h"
#include "tests/adapters/com/com_world.h"
#include "tests/adapters/com/invoke_client.h"

namespace orvendal {
namespace {

constexpr HRESULT ErrorNumber(int number) {
  return static_cast<HRESULT>(0x800A0000U + static_cast<unsigned>(number));
}

/// Hosts and libraries that keep to no rule.
class HostileHostTest : public ComWorld {
 protected:
  /// The number that the user was last told of; 0 if nothing was reported.
  std::int32_t Reported() const {
    const std::vector<RuntimeError>& errors = windows->ReportedErrors();
    return errors.empty() ? 0 : errors.back().Number();
  }
  void OpenEditor() const {
    if (form().TxtMSF.Visible()) return;
    hands().ClickCell(form().MSFProductos, 1, column::kCode);
    hands().DoubleClickCell(form().MSFProductos, 1, column::kCode);
  }
  /// The form as the library gets it.
  ComPtr<IDispatch> FormObject() {
    ComPtr<IDispatch> object;
    behaviour.search = [&](_DatosClase**, IDispatch** given, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*,
                           BSTR*) {
      object = ComPtr<IDispatch>(*given);
      return S_OK;
    };
    OpenEditor();
    hands().Type("NADA\n");
    behaviour.search = nullptr;
    return object;
  }
  HRESULT NewComponent() {
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(GetComponentFactory(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    return factory->CreateInstance(nullptr, identity::kInterface, component.ReceiveVoid());
  }
  /// Asks the library for F2, which is told the session's texts and sizes.
  std::string SessionAsToldToF2() const {
    hands().Key(key::kF2);
    return CallsOf("AbrirCambio").back();
  }

  ComPtr<IDispatch> ours;
};

TEST_F(HostileHostTest, WhatAnInnerCallFilledIsNotUndoneByTheOuterOne) {
  bool outer = true;
  host->fill = [&](const FillArguments& session) {
    if (!std::exchange(outer, false)) return FillSession(session);
    EXPECT_EQ(Open(L"02", L"P2", L"T2"), S_OK);
    return S_OK;
  };
  EXPECT_EQ(Open(), S_OK);
  EXPECT_EQ(host->times_asked, 2);
  EXPECT_EQ(SessionAsToldToF2(), "AbrirCambio '02' 'P2' 'T2' 15360 11520");
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(TextOfBstr(*session.chain), "cadena");
    EXPECT_EQ(*session.connection, static_cast<IDispatch*>(connection.Get()));
    return S_OK;
  };
  EXPECT_EQ(Open(), S_OK);
}

TEST_F(HostileHostTest, ACallDuringADialogIsNotUndoneWhenTheDialogReturns) {
  Open();
  behaviour.f2 = [&](IDispatch**, double*, BSTR*, BSTR*, BSTR*, LONG*, LONG*, LONG*) {
    behaviour.f2 = nullptr;
    host->fill = [](const FillArguments& session) {
      *session.width = 9000;
      *session.screen_datum = 7.0;
      return S_OK;
    };
    EXPECT_EQ(Open(L"02", L"P2", L"T2"), S_OK);
    return S_OK;
  };
  hands().Key(key::kF2);
  EXPECT_EQ(SessionAsToldToF2(), "AbrirCambio '02' 'P2' 'T2' 9000 11520");
  host->fill = [](const FillArguments& session) {
    EXPECT_EQ(*session.screen_datum, 7.0);
    return S_OK;
  };
  EXPECT_EQ(Open(), S_OK);
}

TEST_F(HostileHostTest, AnObjectThatIsNoDictionaryIsError13AndTheRestIsKept) {
  const auto stranger = MakeFake<PlainObject>();
  using Place = IDispatch** FillArguments::*;
  for (const Place place : {&FillArguments::general, &FillArguments::actions, &FillArguments::screens}) {
    host->fill = [&](const FillArguments& session) {
      FillSession(session);
      Replace<IDispatch>(session.*place, stranger.Get());
      return S_OK;
    };
    EXPECT_EQ(Open(), ErrorNumber(13));
    EXPECT_EQ(stranger->References(), 1U);
    host->fill = [&](const FillArguments& session) {
      EXPECT_EQ(TextOfBstr(*session.chain), "cadena");
      return FillSession(session);
    };
    EXPECT_EQ(Open(), S_OK);
  }
}

TEST_F(HostileHostTest, ADictionaryThatTheHostTakesAwayIsAnEmptyOneAtItsFirstUse) {
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    Replace<IDispatch>(session.actions, nullptr);
    return S_OK;
  };
  EXPECT_EQ(Open(), ErrorNumber(3265)) << "the first caption has no field to come from";
  EXPECT_EQ(windows->ActiveForm(), nullptr);
}

TEST_F(HostileHostTest, WhateverTheHostThrowsIsAnError) {
  host->fill = [](const FillArguments&) -> HRESULT { throw 42; };
  EXPECT_EQ(Open(), ErrorNumber(51));
  host->fill = [](const FillArguments&) -> HRESULT { throw std::bad_alloc(); };
  EXPECT_EQ(Open(), ErrorNumber(7));
  host->fill = [](const FillArguments&) -> HRESULT { throw std::runtime_error("x"); };
  EXPECT_EQ(Open(), ErrorNumber(51));
  host->fill = [](const FillArguments&) -> HRESULT { throw RuntimeError(5); };
  EXPECT_EQ(Open(), ErrorNumber(5));
  EXPECT_EQ(host->References(), 2U) << "the session's own";
}

TEST_F(HostileHostTest, WhateverTheHostThrowsIsAnExceptionForScripts) {
  host->fill = [](const FillArguments&) -> HRESULT { throw "text"; };
  InvokeClient client(component.Get());
  const VARIANT text = Argument(LONG{1});
  EXPECT_EQ(client.Get(L"Orvendal", {Argument(static_cast<IDispatch*>(host.Get())), text, text, text}),
            DISP_E_EXCEPTION);
  EXPECT_EQ(client.exception.scode, ErrorNumber(51));
  EXPECT_EQ(client.Source(), "DllOrvendal");
}

TEST_F(HostileHostTest, WhateverTheLibraryThrowsReachesTheUser) {
  Open();
  behaviour.f1 = [](IDispatch**, BSTR*) -> HRESULT { throw 42; };
  hands().Key(key::kF1);
  EXPECT_EQ(Reported(), 51);
  windows->ForgetErrors();
  behaviour.f1 = [](IDispatch**, BSTR*) -> HRESULT { throw std::bad_alloc(); };
  hands().Key(key::kF1);
  EXPECT_EQ(Reported(), 7);
  EXPECT_TRUE(windows->TakesInput(form())) << "the screen is free again";
}

TEST_F(HostileHostTest, AHostThatEndsComInTheMiddleGetsAnErrorAndNoCrash) {
  host->fill = [&](const FillArguments& session) {
    const HRESULT filled = FillSession(session);
    CoUninitialize();
    return filled;
  };
  EXPECT_EQ(Open(), ErrorNumber(429)) << "no class of the library can be made";
  CoInitialize(nullptr);
}

TEST_F(HostileHostTest, TheHostsSuccessWithANoteIsASuccess) {
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    return S_FALSE;
  };
  EXPECT_EQ(Open(), S_OK);
}

TEST_F(HostileHostTest, AClassOfTheLibraryThatCannotMakeItsObjectIsError429WhenItIsNeeded) {
  behaviour.creation = E_ACCESSDENIED;
  EXPECT_EQ(Open(), ErrorNumber(429)) << "the load asks for the text of its date";
  behaviour.creation = S_OK;
  EXPECT_EQ(Open(), S_OK);
  behaviour.creation = E_OUTOFMEMORY;
  hands().Key(key::kF2);
  EXPECT_EQ(Reported(), 429);
  windows->ForgetErrors();
  hands().ClickCell(form().MSFProductos, 1, column::kCode);
  EXPECT_EQ(Reported(), 429) << "the message asking for a stylist";
  behaviour.creation = S_OK;
  windows->ForgetErrors();
  hands().Key(key::kF2);
  EXPECT_EQ(Reported(), 0) << "a later use tries again";
}

TEST_F(HostileHostTest, AnObjectOfTheLibraryWithoutItsInterfaceIsError430) {
  behaviour.makes_strangers = true;
  EXPECT_EQ(Open(), ErrorNumber(430));
}

TEST_F(HostileHostTest, EveryOperationOfTheLibraryMayFail) {
  constexpr HRESULT kFailure = static_cast<HRESULT>(0x800A0046);
  behaviour.format_date = [](BSTR*, BYTE*, BSTR*, BSTR*, BSTR*) { return kFailure; };
  EXPECT_EQ(Open(), kFailure);
  behaviour.format_date = nullptr;
  EXPECT_EQ(Open(), S_OK);

  const auto expect_reported = [&](const char* operation) {
    EXPECT_EQ(Reported(), 70) << operation;
    EXPECT_TRUE(windows->TakesInput(form())) << operation;
    windows->ForgetErrors();
  };
  behaviour.f2 = [](IDispatch**, double*, BSTR*, BSTR*, BSTR*, LONG*, LONG*, LONG*) { return kFailure; };
  hands().Key(key::kF2);
  expect_reported("AbrirCambio");

  behaviour.show = [](BSTR*, LONG*, BSTR*, LONG*) { return kFailure; };
  hands().ClickCell(form().MSFProductos, 1, column::kCode);
  expect_reported("Mostrar");
  behaviour.show = nullptr;

  behaviour.pick = [](IDispatch**, BSTR*) { return kFailure; };
  Click("CmdEmpl");
  expect_reported("Elegir");
  behaviour.pick = nullptr;

  OpenEditor();
  behaviour.search = [](_DatosClase**, IDispatch**, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*, BSTR* code) {
    *code = SysAllocString(L"P1");
    return kFailure;
  };
  hands().Type("NADA\n");
  expect_reported("Buscar");
  EXPECT_EQ(form().MSFProductos.TextMatrix(1, column::kCode), "");

  form().TxtMSF.Text("");
  hands().Type("P1\n");
  behaviour.filter_key = [](IDispatch**, SHORT*, VARIANT_BOOL*, SHORT*) { return kFailure; };
  hands().Type("7");
  expect_reported("FiltrarTecla");
  behaviour.filter_key = nullptr;

  behaviour.recalculate = [](IDispatch**, BSTR*, BSTR*, BSTR*) { return kFailure; };
  Click("LblGuardar");
  expect_reported("RecalcularProducto");
  behaviour.recalculate = nullptr;
  behaviour.moment_text = [](DATE*, BSTR*) { return kFailure; };
  Click("LblGuardar");
  expect_reported("FechaHoraTexto");
}

TEST_F(HostileHostTest, AFormThatTheLibraryFailsToLetGoDoesNotKeepTheModule) {
  Open();
  behaviour.let_go = [](IDispatch** given) {
    Replace<IDispatch>(given, nullptr);
    return E_FAIL;
  };
  CloseForm();
  EXPECT_EQ(Reported(), E_FAIL);
}

TEST_F(HostileHostTest, ASearchThatPutsAStrangerInPlaceOfTheFormIsError13) {
  const auto stranger = MakeFake<PlainObject>();
  behaviour.search = [&](_DatosClase**, IDispatch** given, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*, BSTR*) {
    Replace<IDispatch>(given, stranger.Get());
    return S_OK;
  };
  Open();
  OpenEditor();
  hands().Type("NADA\n");
  EXPECT_EQ(Reported(), 13);
  EXPECT_EQ(stranger->References(), 1U);
}

TEST_F(HostileHostTest, ASearchThatClearsTheFormLeavesTheScreenUsable) {
  behaviour.search = [&](_DatosClase**, IDispatch** given, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*, BSTR*) {
    Replace<IDispatch>(given, nullptr);
    return S_OK;
  };
  Open();
  OpenEditor();
  hands().Type("NADA\n");
  EXPECT_EQ(Reported(), 0);
  form().TxtMSF.Text("");
  hands().Type("P1\n5\n");
  EXPECT_EQ(form().MSFProductos.TextMatrix(1, column::kQuantity), "5");
  component.Reset();
  EXPECT_FALSE(CanModuleGo()) << "its window is still there";
}

TEST_F(HostileHostTest, OurFormAsAFormOfTheHostDoesNotKeepTheModuleOnceItIsClosed) {
  behaviour.f1 = [&](IDispatch**, BSTR*) {
    host->fill = [&](const FillArguments& session) {
      Replace<IDispatch>(session.form1, ours.Get());
      Replace<IDispatch>(session.objects[0], ours.Get());
      return S_OK;
    };
    return Open();
  };
  Open();
  ours = FormObject();
  hands().Key(key::kF1);
  EXPECT_EQ(Reported(), 0);
  ours.Reset();
  component.Reset();
  EXPECT_FALSE(CanModuleGo());
  CloseForm();
  EXPECT_TRUE(CanModuleGo());
}

TEST_F(HostileHostTest, AControlOfOursIsNoFormAndComesBackWhereItMayStand) {
  Open();
  ours = FormObject();
  InvokeClient client(ours.Get());
  ASSERT_EQ(client.Get(L"TxtEmpleado"), S_OK);
  ComPtr<IDispatch> box(V_DISPATCH(&client.result));
  host->fill = [&](const FillArguments& session) {
    Replace<IDispatch>(session.form2, box.Get());
    return S_OK;
  };
  EXPECT_EQ(Open(), ErrorNumber(13));
  host->fill = [&](const FillArguments& session) {
    Replace<IDispatch>(session.objects[1], box.Get());
    return S_OK;
  };
  EXPECT_EQ(Open(), S_OK);
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(*session.form2, nullptr);
    EXPECT_EQ(*session.objects[1], box.Get());
    Replace<IDispatch>(session.objects[1], nullptr);
    return S_OK;
  };
  EXPECT_EQ(Open(), S_OK);
  ours.Reset();
}

/// Calls the component once more when the last reference to it goes.
class Clinger final : public FakeObject<IDispatch> {
 public:
  explicit Clinger(std::function<void()> at_the_end) : at_the_end_(std::move(at_the_end)) {}

 private:
  ~Clinger() override { at_the_end_(); }
  std::function<void()> at_the_end_;
};

TEST_F(HostileHostTest, ACallWhileTheSessionIsLetGoKeepsTheModule) {
  auto clinger = MakeFake<Clinger>([this] {
    ASSERT_EQ(NewComponent(), S_OK);
    EXPECT_EQ(Open(), S_OK);
    component.Reset();
  });
  host->fill = [&](const FillArguments& session) {
    FillSession(session);
    if (clinger) Replace<IDispatch>(session.objects[0], std::exchange(clinger, {}).Get());
    return S_OK;
  };
  Open();
  CloseForm();
  component.Reset();
  EXPECT_FALSE(CanModuleGo()) << "a form is up again";
  CloseForm();
  EXPECT_TRUE(CanModuleGo());
}

TEST_F(HostileHostTest, NoOperationOfTheLibraryCanTakeTheModuleAwayFromUnderItself) {
  int asked = 0;
  const auto ask = [&] {
    ++asked;
    EXPECT_FALSE(CanModuleGo());
    return S_OK;
  };
  behaviour.format_date = [&](BSTR* date, BYTE*, BSTR*, BSTR*, BSTR* result) {
    *result = SysAllocString(*date);
    return ask();
  };
  behaviour.f1 = [&](IDispatch**, BSTR*) { return ask(); };
  behaviour.f2 = [&](IDispatch**, double*, BSTR*, BSTR*, BSTR*, LONG*, LONG*, LONG*) { return ask(); };
  behaviour.show = [&](BSTR*, LONG*, BSTR*, LONG*) { return ask(); };
  behaviour.pick = [&](IDispatch**, BSTR*) { return ask(); };
  behaviour.filter_key = [&](IDispatch**, SHORT*, VARIANT_BOOL*, SHORT*) { return ask(); };
  behaviour.let_go = [&](IDispatch** given) {
    Replace<IDispatch>(given, nullptr);
    return ask();
  };
  Open();
  component.Reset();
  hands().Key(key::kF1);
  hands().Key(key::kF2);
  EnterLine("P1", "5");
  behaviour.show = [&](BSTR*, LONG*, BSTR*, LONG* answer) {
    *answer = message::kNo;
    return ask();
  };
  CloseForm();
  EXPECT_GE(asked, 8);
  EXPECT_TRUE(CanModuleGo());
}

}  // namespace
}  // namespace orvendal
