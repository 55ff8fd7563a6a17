#include "form/columns.h"
#include "tests/adapters/com/com_world.h"
#include "tests/adapters/com/script_engine.h"
#include "tests/adapters/com/text_balance.h"

namespace orvendal {
namespace {

using Lines = std::vector<std::string>;

/// VBScript as the client: it knows nothing of the component but the name of its function.
class ScriptClientTest : public ComWorld {
 protected:
  void TearDown() override {
    ForgetLiveTexts();  // the engine frees the results that it gets
    ComWorld::TearDown();
  }
  Lines Run(const std::wstring& text) {
    const auto notes = MakeFake<ScriptNotes>();
    ScriptEngine engine(
        {{L"componente", component.Get()}, {L"anfitrion", host.Get()}, {L"nota", notes.Get()}});
    const std::string error = engine.Run(text);
    if (!error.empty()) notes->lines.push_back(error);
    return notes->lines;
  }
};

TEST_F(ScriptClientTest, OpensTheScreenWithVariablesAndGetsFalse) {
  EXPECT_EQ(Run(LR"(
    suc = "02" : puest = "P1" : turn = "T1"
    Set sesion = anfitrion
    r = componente.Orvendal(sesion, suc, puest, turn)
    nota.Di TypeName(r) & " " & CStr(CInt(r))
    nota.Di suc & puest & turn
    nota.Di CStr(sesion Is anfitrion)
  )"),
            (Lines{"Boolean 0", "02P1T1", "True"}));
  EXPECT_EQ(form().LblSucursal.Tag(), "02");
}

TEST_F(ScriptClientTest, OpensTheScreenWithLiteralsAsAStatement) {
  EXPECT_EQ(Run(L"componente.Orvendal anfitrion, \"01\", \"P1\", \"T1\" : nota.Di \"fin\""), Lines{"fin"});
  EXPECT_EQ(form().LblSucursal.Tag(), "01");
}

TEST_F(ScriptClientTest, TakesEmptyVariablesAndNumbersForTexts) {
  EXPECT_EQ(
      Run(L"n = 12 : componente.Orvendal anfitrion, n, vacia, 3.0 : nota.Di TypeName(n) & TypeName(vacia)"),
      Lines{"IntegerEmpty"});
  EXPECT_EQ(form().LblSucursal.Tag(), "12");
}

TEST_F(ScriptClientTest, ErrorsCarryNumberSourceAndDescription) {
  EXPECT_EQ(Run(LR"(
    On Error Resume Next
    componente.Orvendal Nothing, "01", "P1", "T1"
    nota.Di Err.Number & " " & Err.Source & ": " & Err.Description
  )"),
            Lines{"91 DllOrvendal: Object variable or With block variable not set"});
}

TEST_F(ScriptClientTest, AFailingHostIsToldOfByItsOwnNumberAndWords) {
  host->fill = [](const FillArguments&) {
    ComPtr<ICreateErrorInfo> made;
    CreateErrorInfo(made.Receive());
    made->SetDescription(const_cast<LPOLESTR>(L"Paso múltiple"));
    SetErrorInfo(0, made.Query<IErrorInfo>(IID_IErrorInfo).Get());
    return static_cast<HRESULT>(0x80040E21);
  };
  EXPECT_EQ(Run(LR"(
    On Error Resume Next
    componente.Orvendal anfitrion, "01", "P1", "T1"
    nota.Di Err.Number & ": " & Err.Description
  )"),
            Lines{"-2147217887: Paso múltiple"});
}

TEST_F(ScriptClientTest, WrongUseIsToldInTheScriptsOwnNumbers) {
  EXPECT_EQ(Run(LR"(
    On Error Resume Next
    componente.Orvendal anfitrion, "01", "P1"
    nota.Di Err.Number : Err.Clear
    componente.Orvendal "nada", "01", "P1", "T1"
    nota.Di Err.Number : Err.Clear
    componente.Orvendal anfitrion, Null, "P1", "T1"
    nota.Di Err.Number : Err.Clear
    componente.Nada
    nota.Di Err.Number : Err.Clear
  )"),
            (Lines{"450", "13", "13", "438"}));
  EXPECT_EQ(host->times_asked, 0);
}

TEST_F(ScriptClientTest, ASecondCallBringsTheMinimisedScreenBack) {
  Run(L"componente.Orvendal anfitrion, \"01\", \"P1\", \"T1\"");
  form().WindowState(WindowState::kMinimized);
  EXPECT_EQ(Run(L"nota.Di CStr(componente.Orvendal(anfitrion, \"01\", \"P1\", \"T1\"))"), Lines{"False"});
  EXPECT_EQ(form().WindowState(), WindowState::kMaximized);
}

TEST_F(ScriptClientTest, ALibraryInScriptMayTouchTheBox) {
  const auto notes = MakeFake<ScriptNotes>();
  behaviour.filter_key = [&](IDispatch** box, SHORT* key, VARIANT_BOOL*, SHORT* result) {
    if (*key != '7') return S_OK;
    ScriptEngine engine({{L"caja", *box}, {L"nota", notes.Get()}});
    EXPECT_EQ(engine.Run(LR"(
      nota.Di caja.Name & " " & caja & " " & caja.SelStart & " " & caja.SelLength
      caja.Text = "33"
      caja.SelStart = Len(caja.Text)
      n = 0
      For Each c In caja.Parent.Controls
        n = n + 1
      Next
      nota.Di n & " " & caja.Parent.Controls("TxtEmpleado").Text & " " & caja.Parent.Controls.Count
    )"),
              "");
    *result = *key;
    return S_OK;
  };
  Open();
  EnterLine("P1", "57");
  EXPECT_EQ(notes->lines, (Lines{"TxtMSF 5 1 0", "46 Ana 46"}));
  EXPECT_EQ(form().MSFProductos.TextMatrix(1, column::kQuantity), "337");
}

}  // namespace
}  // namespace orvendal
