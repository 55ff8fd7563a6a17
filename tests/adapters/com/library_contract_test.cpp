#include "adapters/automation/bstr.h"
#include "form/columns.h"
#include "tests/adapters/com/com_world.h"

namespace orvendal {
namespace {

using Texts = std::vector<std::string>;

class OtherConnection final : public Connection {
 public:
  std::string Provider() const override { return "otro"; }
};

class LibraryContractTest : public ComWorld {
 protected:
  /// The number and description that the user was last told of; 0 if nothing was reported.
  std::pair<std::int32_t, std::string> Reported() const {
    const std::vector<RuntimeError>& errors = windows->ReportedErrors();
    if (errors.empty()) return {0, ""};
    return {errors.back().Number(), errors.back().Description()};
  }
  bool ScreenTakesInput() const { return windows->TakesInput(*windows->ActiveForm()); }
  /// The connection that the next statement would go to, as the host sees it in its next filling.
  IDispatch* SessionConnection() {
    IDispatch* seen = nullptr;
    host->fill = [&](const FillArguments& session) {
      seen = *session.connection;
      return S_OK;
    };
    Open();
    return seen;
  }
};

TEST_F(LibraryContractTest, ObjectsAreMadeOnFirstUseAndTheGlobalOnesOnce) {
  Open();
  EXPECT_EQ(behaviour.made, Texts{"Herramientas"}) << "the load asks for the text of its date";
  EnterLine("P1", "12");
  EnterLine("P2", "3");
  Click("LblGuardar");
  EXPECT_EQ(std::count(behaviour.made.begin(), behaviour.made.end(), "Herramientas"), 1);
  EXPECT_EQ(std::count(behaviour.made.begin(), behaviour.made.end(), "Recalculo"), 1);
  EXPECT_EQ(Reported().first, 0) << Reported().second;
}

TEST_F(LibraryContractTest, TheRoadOfACountGoesThroughTheLibraryInOrder) {
  Open();
  behaviour.calls.clear();
  EnterLine("P1", "12");
  Click("LblGuardar");
  EXPECT_EQ(Reported().first, 0) << Reported().second;
  EXPECT_EQ(CallsOf("Mostrar"), Texts{"Mostrar 'Debe seleccionar un Estilista' 64 ''"});
  EXPECT_EQ(CallsOf("ParaNuevo"), Texts{"ParaNuevo=0"});
  EXPECT_EQ(CallsOf("Aceptado"), Texts{"Aceptado=0"});
  EXPECT_EQ(CallsOf("OpcionFija"), Texts{"OpcionFija=-1"});
  EXPECT_EQ(CallsOf("Nombre"), Texts{"Nombre=''"});
  EXPECT_EQ(CallsOf("Elegir"), Texts{"Elegir '01'"});
  EXPECT_EQ(CallsOf("FiltrarTecla"),
            (Texts{"FiltrarTecla 49 -1", "FiltrarTecla 50 -1", "FiltrarTecla 13 -1"}));
  ASSERT_EQ(CallsOf("RegistrarSentencia").size(), 1U);
  EXPECT_EQ(
      CallsOf("RegistrarSentencia")[0].rfind("RegistrarSentencia 'cadena' 'DELETE FROM HistOrvendalcial", 0),
      0U);
  EXPECT_EQ(CallsOf("FechaHoraTexto").size(), 1U);
  EXPECT_EQ(CallsOf("RecalcularProducto"), Texts{"RecalcularProducto '01' 'P1' ''"});
  EXPECT_EQ(source.Sql("SELECT IdProducto || ' ' || StockActual || ' ' || IdEmpleado FROM HistOrvendalcial"),
            "P1 12 E1");
}

TEST_F(LibraryContractTest, FormatoFechaGetsItsFourArgumentsAndItsTextIsShown) {
  behaviour.format_date = [](BSTR*, BYTE*, BSTR*, BSTR*, BSTR* result) {
    *result = SysAllocString(L"lunes 16");
    return S_OK;
  };
  Open();
  EXPECT_EQ(CallsOf("FormatoFecha")[0], "FormatoFecha '16/11/2026' 1 'D' 'D'");
  EXPECT_EQ(form().TxtFechaHora.Text(), "lunes 16");
}

TEST_F(LibraryContractTest, TheKeyThatTheFilterAnswersIsUsed) {
  behaviour.filter_key = [](IDispatch** box, SHORT* key, VARIANT_BOOL*, SHORT* result) {
    EXPECT_NE(*box, nullptr);
    if (*key == '1') *result = '9';
    if (*key == 'x') *result = 0;
    *key = 0;
    Replace<IDispatch>(box, nullptr);
    return S_OK;
  };
  Open();
  hands().ClickCell(form().MSFProductos, 1, column::kCode);
  hands().DoubleClickCell(form().MSFProductos, 1, column::kCode);
  hands().Type("P1\n1x2");
  EXPECT_EQ(form().TxtMSF.Text(), "92");
}

TEST_F(LibraryContractTest, AnswersOfMessagesAreTaken) {
  Open();
  EnterLine("P1", "12");
  behaviour.show = [&](BSTR* text, LONG* style, BSTR* title, LONG* answer) {
    EXPECT_EQ(*style, 35);
    EXPECT_FALSE(ScreenTakesInput());
    Replace(text, nullptr);
    Replace(title, L"otro");
    *style = 0;
    *answer = message::kCancel;
    return S_OK;
  };
  CloseForm();
  EXPECT_TRUE(form().Visible());
  EXPECT_TRUE(ScreenTakesInput());
}

TEST_F(LibraryContractTest, EachDialogKeepsTheScreenFromInputWhileItIsUp) {
  std::vector<std::string> open;
  const auto note = [&](const char* name) {
    if (!ScreenTakesInput()) open.emplace_back(name);
  };
  behaviour.f1 = [&](IDispatch**, BSTR*) { return note("AccionPuesto"), S_OK; };
  behaviour.f2 = [&](IDispatch**, double*, BSTR*, BSTR*, BSTR*, LONG*, LONG*, LONG*) {
    return note("AbrirCambio"), S_OK;
  };
  behaviour.show = [&](BSTR*, LONG*, BSTR*, LONG*) { return note("Mostrar"), S_OK; };
  behaviour.pick = [&](IDispatch**, BSTR*) { return note("Elegir"), S_OK; };
  behaviour.search = [&](_DatosClase**, IDispatch**, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*, BSTR*) {
    return note("Buscar"), S_OK;
  };
  behaviour.record = [&](BSTR*, IDispatch**, BSTR*) { return note("RegistrarSentencia"), S_OK; };
  Open();
  hands().Key(key::kF1);
  hands().Key(key::kF2);
  hands().ClickCell(form().MSFProductos, 1, column::kCode);
  hands().DoubleClickCell(form().MSFProductos, 1, column::kCode);
  hands().Type("NADA\n");
  EXPECT_EQ(open, (Texts{"AccionPuesto", "AbrirCambio", "Mostrar", "Elegir", "Buscar"}));
  EXPECT_TRUE(ScreenTakesInput());
}

TEST_F(LibraryContractTest, TheSearchGetsSessionFormAndTextsAndItsCodeIsTaken) {
  behaviour.search = [&](_DatosClase** session, IDispatch** given, BSTR*, BSTR*, BSTR*, BSTR*,
                         VARIANT_BOOL* flag, BSTR* code) {
    EXPECT_EQ(*session, host.Get());
    EXPECT_NE(*given, nullptr);
    *flag = VARIANT_TRUE;
    *code = SysAllocString(L"P2");
    return S_OK;
  };
  Open();
  hands().ClickCell(form().MSFProductos, 1, column::kCode);
  hands().DoubleClickCell(form().MSFProductos, 1, column::kCode);
  hands().Type("CRE\n");
  EXPECT_EQ(CallsOf("Buscar"), Texts{"Buscar 'Orvendalcial' 'Codigo' 'CRE' 'Modal' 0"});
  EXPECT_EQ(form().MSFProductos.TextMatrix(1, column::kCode), "P2");
}

TEST_F(LibraryContractTest, ASearchMayReplaceTheSessionObject) {
  const auto other = MakeFake<FakeHost>();
  behaviour.search = [&](_DatosClase** session, IDispatch**, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*,
                         BSTR*) {
    Replace<_DatosClase>(session, other.Get());
    return S_OK;
  };
  Open();
  const ULONG before = host->References();
  hands().ClickCell(form().MSFProductos, 1, column::kCode);
  hands().DoubleClickCell(form().MSFProductos, 1, column::kCode);
  hands().Type("CRE\n");
  EXPECT_EQ(other->References(), 2U);
  EXPECT_EQ(host->References(), before - 1);
  behaviour.search = [&](_DatosClase** session, IDispatch**, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*,
                         BSTR*) {
    EXPECT_EQ(*session, other.Get());
    Replace<_DatosClase>(session, nullptr);
    return S_OK;
  };
  hands().Type("\n");
  EXPECT_EQ(other->References(), 1U);
}

TEST_F(LibraryContractTest, AConnectionThatALibraryReplacesIsTakenOver) {
  const auto other = MakeFake<StoreHandle>(ConnectionRef(std::make_shared<OtherConnection>()));
  behaviour.f1 = [&](IDispatch** given, BSTR* workstation) {
    EXPECT_EQ(*given, static_cast<IDispatch*>(connection.Get()));
    Replace<IDispatch>(given, other.Get());
    Replace(workstation, L"P9");
    return S_OK;
  };
  Open();
  hands().Key(key::kF1);
  hands().Key(key::kF2);
  EXPECT_EQ(CallsOf("AbrirCambio"), Texts{"AbrirCambio '01' 'P9' 'T1' 15360 11520"});
  EXPECT_EQ(SessionConnection(), static_cast<IDispatch*>(other.Get()));
}

TEST_F(LibraryContractTest, AConnectionThatALibraryTakesAwayIsGone) {
  behaviour.pick = [](IDispatch** given, BSTR*) {
    Replace<IDispatch>(given, nullptr);
    return S_OK;
  };
  Open();
  Click("CmdEmpl");
  EXPECT_EQ(SessionConnection(), nullptr);
}

TEST_F(LibraryContractTest, TheSessionChangeReplacesEveryValue) {
  behaviour.f2 = [](IDispatch**, double* datum, BSTR* branch, BSTR* station, BSTR* shift, LONG* width,
                    LONG* height, LONG* outcome) {
    *datum = 2.0;
    Replace(branch, L"02");
    Replace(station, L"P2");
    Replace(shift, L"T2");
    *width = 100;
    *height = 200;
    *outcome = 99;
    return S_OK;
  };
  Open();
  hands().Key(key::kF2);
  hands().Key(key::kF2);
  EXPECT_EQ(CallsOf("AbrirCambio")[1], "AbrirCambio '02' 'P2' 'T2' 100 200");
}

TEST_F(LibraryContractTest, AFailingOperationReachesTheUserWithNumberAndDescription) {
  behaviour.f1 = [](IDispatch** given, BSTR*) {
    Replace<IDispatch>(given, nullptr);
    ComPtr<ICreateErrorInfo> made;
    CreateErrorInfo(made.Receive());
    made->SetDescription(const_cast<LPOLESTR>(L"Puesto ocupado"));
    SetErrorInfo(0, made.Query<IErrorInfo>(IID_IErrorInfo).Get());
    return static_cast<HRESULT>(0x800A0046);
  };
  Open();
  hands().Key(key::kF1);
  EXPECT_EQ(Reported(), std::make_pair(std::int32_t{70}, std::string("Puesto ocupado")));
  EXPECT_EQ(SessionConnection(), static_cast<IDispatch*>(connection.Get()))
      << "a failed copy is not stored back";
}

TEST_F(LibraryContractTest, AClassThatCannotBeMadeIsError429) {
  library.reset();
  EXPECT_EQ(Open(), static_cast<HRESULT>(0x800A0000 + 429));
}

TEST_F(LibraryContractTest, ALibraryThatClearsTheFormLeavesTheComponentWithoutOne) {
  Open();
  const std::weak_ptr<Object> life = form().weak_from_this();
  CloseForm();
  EXPECT_TRUE(life.expired());
  Open();
  EXPECT_NE(windows->ActiveForm(), nullptr);
}

TEST_F(LibraryContractTest, ALibraryThatKeepsTheFormHasItShownAgain) {
  behaviour.let_go = [](IDispatch**) { return S_OK; };
  Open();
  const std::shared_ptr<Object> first = form().shared_from_this();
  CloseForm();
  Open();
  EXPECT_EQ(&form(), first.get());
  EXPECT_TRUE(form().IsLoaded());
}

TEST_F(LibraryContractTest, ALibraryThatPutsAnotherObjectInPlaceOfTheFormIsError13) {
  const auto other = MakeFake<PlainObject>();
  behaviour.let_go = [&](IDispatch** given) {
    Replace<IDispatch>(given, other.Get());
    return S_OK;
  };
  Open();
  CloseForm();
  EXPECT_EQ(Reported().first, 13);
  EXPECT_EQ(other->References(), 1U);
}

TEST_F(LibraryContractTest, AStatementThatTheLibraryCannotRecordEndsTheSave) {
  behaviour.record = [](BSTR* chain, IDispatch**, BSTR* statement) {
    Replace(chain, L"otra");
    Replace(statement, nullptr);
    return E_FAIL;
  };
  Open();
  EnterLine("P1", "12");
  Click("LblGuardar");
  EXPECT_EQ(Reported().first, E_FAIL);
  EXPECT_EQ(source.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "0");
}

}  // namespace
}  // namespace orvendal
