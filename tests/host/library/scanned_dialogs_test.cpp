#include "platform/forms/command_button.h"
#include "tests/host/host_fixture.h"

namespace orvendal {
namespace {

/// A bar-code reader is held at the dialogs: Type with a line break is what it sends.
class ScannedDialogs : public HostTest {
 protected:
  ScannedDialogs() {
    store->Execute(
        "INSERT INTO Referencias VALUES ('8412345678905', 'CRE01'), ('8411111111111', 'LAC01'), "
        "('8411111111111', 'CHA01')");
  }

  std::string Search(const std::string& field, const std::string& text, std::function<void(Form&)> hands) {
    host.QueueDialog(std::move(hands));
    ObjectRef screen;
    DatosClaseRef session = std::make_shared<SampleSession>(context, MakeDictionaries(Language::kSpanish));
    bool flag = false;
    return library.NewBuscadorProductos()->Buscar(session, screen, "Orvendalcial", field, text, "Modal",
                                                  flag);
  }
  // Whether an employee was picked, and which.
  std::string Pick(std::function<void(Form&)> hands) {
    host.QueueDialog(std::move(hands));
    const std::unique_ptr<SelectorEmpleado> picker = library.NewSelectorEmpleado();
    ConnectionRef connection = store;
    std::string branch = "01";
    picker->Elegir(connection, branch);
    return picker->Aceptado() ? picker->Codigo() : "-";
  }
  static void Cancel(Form& form) { Robot(form).Key(key::kEscape); }
  static std::string BoxText(Form& form) { return BoxOf(form, "TxtBusqueda").Text(); }
};

TEST_F(ScannedDialogs, ACodeThatNobodyHasPicksNoStylist) {
  EXPECT_EQ(Pick([this](Form& form) {
              Robot(form).Type("8412345678905\n");
              EXPECT_TRUE(form.Visible());
              EXPECT_EQ(BoxText(form), "8412345678905");
              EXPECT_EQ(host.Beeps(), 1);
              Cancel(form);
            }),
            "-");
}

TEST_F(ScannedDialogs, PartOfANamePicksNoStylistAlthoughItIsTheOnlyOneShown) {
  EXPECT_EQ(Pick([](Form& form) {
              Robot(form).Type("zoe\n");
              EXPECT_TRUE(form.Visible());
              EXPECT_EQ(GridOf(form, "MSFResultados").Rows(), 2);
              Cancel(form);
            }),
            "-");
}

TEST_F(ScannedDialogs, AStylistsWholeCodePicksHim) {
  store->Execute("INSERT INTO Empleados VALUES ('E100', 'Marta', '01'), ('E1000', 'Nora', '01')");
  EXPECT_EQ(Pick([](Form& form) { Robot(form).Type("e100\n"); }), "E100");
}

TEST_F(ScannedDialogs, ThePickerStillTakesAHandsEnter) {
  EXPECT_EQ(Pick([](Form& form) {
              Robot robot(form);
              robot.Type("zoe");
              robot.Key(key::kReturn);
            }),
            "E1");
}

TEST_F(ScannedDialogs, ABarCodeTakesThePlaceOfTheTextAndFindsItsProduct) {
  EXPECT_EQ(Search("Descripcion", "champu", [](Form& form) { Robot(form).Type("8412345678905\n"); }),
            "CRE01");
  EXPECT_EQ(host.Beeps(), 0);
}

TEST_F(ScannedDialogs, ABarCodeOfTwoProductsIsShownAndChoosesNone) {
  EXPECT_EQ(
      Search(
          "Codigo", "",
          [this](Form& form) {
            Robot(form).Type("8411111111111\n");
            EXPECT_TRUE(form.Visible());
            EXPECT_EQ(Column(GridOf(form, "MSFResultados"), 0), (std::vector<std::string>{"CHA01", "LAC01"}));
            EXPECT_EQ(host.Beeps(), 1);
            Cancel(form);
          }),
      "");
}

TEST_F(ScannedDialogs, AnUnknownBarCodeDoesNotTakeTheRowThatWasShown) {
  EXPECT_EQ(Search("Descripcion", "laca",
                   [](Form& form) {
                     Robot(form).Type("9999999\n");
                     EXPECT_TRUE(form.Visible());
                     EXPECT_EQ(BoxText(form), "9999999");
                     Cancel(form);
                   }),
            "");
}

TEST_F(ScannedDialogs, OnTheCancelButtonTooABarCodeIsATextToLookFor) {
  EXPECT_EQ(Search("Codigo", "",
                   [](Form& form) {
                     Robot robot(form);
                     robot.Find("CmdCancelar").SetFocus();
                     robot.Type("8412345678905\n");
                   }),
            "CRE01");
}

TEST_F(ScannedDialogs, ABlankInACodePressesNoButtonAndALoneOneDoes) {
  EXPECT_EQ(Search("Codigo", "CRE01",
                   [this](Form& form) {
                     Robot robot(form);
                     robot.Find("CmdCancelar").SetFocus();
                     robot.Type(" 12 34");
                     host.PassTime(200);
                     EXPECT_TRUE(form.Visible());
                     robot.Type(" ");
                     EXPECT_TRUE(form.Visible()) << "nobody knows yet who sent it";
                     host.PassTime(60);
                     EXPECT_FALSE(form.Visible());
                   }),
            "");
}

TEST_F(ScannedDialogs, AScanAcceptsNoChangeOfSessionAndLeavesTheBoxesAsTheyWere) {
  host.QueueDialog([this](Form& form) {
    Robot robot(form);
    robot.Type("8412345678905\n");
    EXPECT_TRUE(form.Visible());
    robot.Key(key::kTab);
    robot.Type("8412345678905\n");
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(BoxOf(form, "TxtPuesto").Text(), "7");
    EXPECT_EQ(host.Beeps(), 2);
    Cancel(form);
  });
  ConnectionRef connection = store;
  Value on_screen = 0.0;
  std::string branch = "0123";
  std::string workstation = "7";
  std::string shift = "2";
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int32_t result = 9;
  library.NewCambioSesion()->AbrirCambio(connection, on_screen, branch, workstation, shift, width, height,
                                         result);
  EXPECT_EQ(result, 0);
}

TEST_F(ScannedDialogs, AScanPressesNoButtonOfTheWorkstationsPanel) {
  int reopened = 0;
  context.reopen_store = [&]() -> ConnectionRef {
    ++reopened;
    return store;
  };
  host.QueueDialog([](Form& form) {
    Robot robot(form);
    for (const char* button : {"CmdReconectar", "CmdCerrar"}) {
      robot.Find(button).SetFocus();
      robot.Type("8412345678905\n");
      EXPECT_TRUE(form.Visible());
    }
    Cancel(form);
  });
  ConnectionRef connection = store;
  std::string workstation = "7";
  library.NewHerramientas()->AccionPuesto(connection, workstation);
  EXPECT_EQ(reopened, 0);
}

}  // namespace
}  // namespace orvendal
