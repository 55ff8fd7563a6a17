#include "host/sample/chain.h"
#include "host/sample/made_store.h"
#include "host/store/host_store.h"
#include "platform/forms/label.h"
#include "platform/library/library.h"
#include "tests/host/host_fixture.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

class WorkstationPanel : public HostTest {
 protected:
  WorkstationPanel() {
    context.reopen_store = [this]() -> ConnectionRef { return other; };
  }
  void Open(std::function<void(Form&)> hands) {
    host.QueueDialog(std::move(hands));
    std::string puesto = "7";
    library.NewHerramientas()->AccionPuesto(connection, puesto);
    EXPECT_EQ(puesto, "7");
  }
  static void Close(Form& form) { Robot(form).Key(key::kEscape); }
  static std::string State(Form& form) {
    return dynamic_cast<Label&>(*form.FindControl("LblEstado")).Caption();
  }
  static void Reconnect(Form& form) {
    Robot robot(form);
    robot.Click(robot.Find("CmdReconectar"));
  }

  ConnectionRef connection = store;
  std::shared_ptr<SqliteConnection> other =
      SqliteConnection::Open(":memory:", Dialect::kJet, Region::Spanish(), OpenMode::kCreate);
};

TEST_F(WorkstationPanel, ShowsBranchWorkstationShiftStoreAndProvider) {
  Open([](Form& form) {
    EXPECT_EQ(BoxOf(form, "TxtSucursal").Text(), "0123 Centro");
    EXPECT_EQ(BoxOf(form, "TxtPuesto").Text(), "7");
    EXPECT_EQ(BoxOf(form, "TxtTurno").Text(), "2");
    EXPECT_EQ(BoxOf(form, "TxtBase").Text(), "tienda.db");
    EXPECT_EQ(BoxOf(form, "TxtProveedor").Text(), "SQLOLEDB.1");
    EXPECT_EQ(State(form), "La base de datos está abierta.");
    Robot(form).Type("x");
    EXPECT_EQ(BoxOf(form, "TxtSucursal").Text(), "0123 Centro");
    Close(form);
  });
  EXPECT_EQ(connection, store);
}

TEST_F(WorkstationPanel, SaysWhetherTheStoreIsTheMadeUpChain) {
  const auto notice = [](Form& form) {
    return dynamic_cast<Label&>(*form.FindControl("LblMuestra")).Caption();
  };
  Open([&](Form& form) {
    EXPECT_EQ(notice(form), "");
    Close(form);
  });
  // The panel reads it anew where it reconnects.
  MakeSampleStore(*other, Date(2026, 11, 16));
  Open([&](Form& form) {
    Reconnect(form);
    EXPECT_EQ(notice(form), "Cadena de muestra: los datos son inventados.");
    EXPECT_EQ(State(form), "Se ha abierto de nuevo la base de datos.");
    Close(form);
  });
}

TEST_F(WorkstationPanel, ClosesByItsButton) {
  Open([](Form& form) {
    Robot robot(form);
    robot.Click(robot.Find("CmdCerrar"));
  });
  EXPECT_EQ(connection, store);
}

TEST_F(WorkstationPanel, OffersNoNewConnectionWhereTheHostHasNone) {
  context.reopen_store = nullptr;
  host.QueueDialog([](Form& form) {
    EXPECT_FALSE(form.FindControl("CmdReconectar")->Enabled());
    Robot(form).Key(key::kEscape);
  });
  ConnectionRef connection = store;
  std::string workstation = "7";
  library.NewHerramientas()->AccionPuesto(connection, workstation);
  EXPECT_EQ(connection, store);
}

TEST_F(WorkstationPanel, ReconnectHandsTheNewConnectionBack) {
  CreateSchema(*other);
  Open([](Form& form) {
    Reconnect(form);
    EXPECT_EQ(BoxOf(form, "TxtProveedor").Text(), "Microsoft.Jet.OLEDB.4.0");
    EXPECT_EQ(State(form), "Se ha abierto de nuevo la base de datos.");
    EXPECT_TRUE(form.Visible());
    Close(form);
  });
  EXPECT_EQ(connection, other);
  EXPECT_EQ(context.connection, other);
}

TEST_F(WorkstationPanel, AStoreThatCannotBeOpenedIsToldAndTheConnectionStays) {
  context.reopen_store = []() -> ConnectionRef { throw StoreUnavailable("Otro programa tiene bloqueada…"); };
  Open([this](Form& form) {
    Reconnect(form);
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text, "Otro programa tiene bloqueada…");
    EXPECT_EQ(messages.shown[0].style, message::kStop);
    EXPECT_TRUE(form.Visible());
    Close(form);
  });
  EXPECT_EQ(connection, store);
  EXPECT_EQ(context.connection, store);
  EXPECT_TRUE(host.ReportedErrors().empty());
}

TEST_F(WorkstationPanel, AStoreThatNoLongerFitsIsRefusedAndNothingMoreIsWrittenToIt) {
  const TemporaryFolder folder;
  const StoreSettings settings{folder / "cadena.db", Dialect::kSqlServer, Region::Spanish(), SpanishWords()};
  const auto opened = OpenOrMakeStore(settings, Date(2026, 11, 16));
  connection = context.connection = opened;
  context.reopen_store = [settings]() -> ConnectionRef { return OpenExistingStore(settings); };
  opened->Execute("ALTER TABLE HistOrvendalcial DROP COLUMN Actualizado");
  Open([this](Form& form) {
    Reconnect(form);
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_NE(messages.shown[0].text.find("le falta HistOrvendalcial.Actualizado"), std::string::npos)
        << messages.shown[0].text;
    EXPECT_EQ(State(form), "La base de datos se ha cerrado: no es la que hace falta.");
    Close(form);
  });
  EXPECT_EQ(connection, opened);
  EXPECT_FALSE(opened->IsOpen());
}

TEST_F(WorkstationPanel, AStoreOfAnotherProviderThatNoLongerFitsIsClosedAndNotOnlyDropped) {
  class Elsewhere final : public Connection {
   public:
    std::string Provider() const override { return "SQLOLEDB.1"; }
    void Close() override {
      if (refuses) throw RuntimeError(3246);
      ++closed;
    }
    int closed = 0;
    bool refuses = false;
  };
  const auto elsewhere = std::make_shared<Elsewhere>();
  context.reopen_store = []() -> ConnectionRef { throw StoreDoesNotFit("Le falta un campo."); };
  for (const bool refuses : {false, true}) {
    elsewhere->refuses = refuses;
    connection = context.connection = elsewhere;
    Open([this](Form& form) {
      Reconnect(form);
      Close(form);
    });
    EXPECT_EQ(elsewhere->closed, 1);
    // One that cannot be closed is let go of, so that nothing more is written there.
    EXPECT_EQ(connection, refuses ? ConnectionRef() : elsewhere);
    EXPECT_EQ(context.connection, connection);
  }
}

TEST_F(WorkstationPanel, ComesUpAlsoWhenTheStoreDoesNotAnswer) {
  store->Execute("DROP TABLE Sucursales");
  Open([](Form& form) {
    EXPECT_EQ(BoxOf(form, "TxtSucursal").Text(), "0123");
    EXPECT_NE(State(form).find("Sucursales"), std::string::npos) << State(form);
    Close(form);
  });
  store->Close();
  Open([](Form& form) {
    EXPECT_NE(State(form), "La base de datos está abierta.");
    Close(form);
  });
}

class SessionChange : public HostTest {
 protected:
  std::int32_t Open(std::function<void(Form&)> hands) {
    host.QueueDialog(std::move(hands));
    ConnectionRef connection = store;
    std::int32_t result = 99;
    library.NewCambioSesion()->AbrirCambio(connection, screen_value, branch, workstation, shift, width,
                                           height, result);
    EXPECT_EQ(connection, store);
    return result;
  }

  Value screen_value = 3.0;
  std::string branch = "0123";
  std::string workstation = "7";
  std::string shift = "2";
  std::int32_t width = 15360;
  std::int32_t height = 11520;
};

TEST_F(SessionChange, StandsOnThePresentSession) {
  Open([](Form& form) {
    EXPECT_EQ(GridOf(form, "MSFSucursales").Row(), 1);
    EXPECT_EQ(BoxOf(form, "TxtPuesto").Text(), "7");
    EXPECT_EQ(BoxOf(form, "TxtTurno").Text(), "2");
    Robot(form).Key(key::kEscape);
  });
}

TEST_F(SessionChange, HandsBranchWorkstationAndShiftBack) {
  const std::int32_t result = Open([](Form& form) {
    Robot robot(form);
    robot.ClickCell(GridOf(form, "MSFSucursales"), 2, 1);
    robot.Key(key::kTab);
    robot.Key('A', shift_mask::kControl);
    robot.Type("12");
    robot.Key(key::kTab);
    robot.Key('A', shift_mask::kControl);
    robot.Type("3");
    robot.Key(key::kReturn);
  });
  EXPECT_EQ(result, 1);
  EXPECT_EQ(branch, "02");
  EXPECT_EQ(workstation, "12");
  EXPECT_EQ(shift, "3");
  EXPECT_EQ(context.sucursal, "02");
  EXPECT_EQ(context.puesto, "12");
  EXPECT_EQ(context.turno, "3");
  EXPECT_EQ(screen_value, Value(3.0));
}

TEST_F(SessionChange, TheSameBranchKeepsItsWholeCode) {
  Open([](Form& form) {
    Robot robot(form);
    robot.Click(robot.Find("CmdAceptar"));
  });
  EXPECT_EQ(branch, "0123");
}

TEST_F(SessionChange, ChoosesABranchWithTheArrows) {
  Open([](Form& form) {
    Robot robot(form);
    EXPECT_TRUE(GridOf(form, "MSFSucursales").HasFocus());
    robot.Key(key::kDown);
    robot.Key(key::kDown);
    robot.Key(key::kReturn);
  });
  EXPECT_EQ(branch, "03");
}

TEST_F(SessionChange, HomeAndEndGoToTheFirstAndTheLastBranch) {
  Open([](Form& form) {
    Robot robot(form);
    robot.Key(key::kEnd);
    EXPECT_EQ(GridOf(form, "MSFSucursales").Row(), 3);
    robot.Key(key::kHome);
    EXPECT_EQ(GridOf(form, "MSFSucursales").Row(), 1);
    robot.Key(key::kDown, shift_mask::kShift);
    robot.Key(key::kReturn);
  });
  EXPECT_EQ(branch, "02");
}

TEST_F(SessionChange, FitsASmallScreenWithItsFrame) {
  host.SetScreen(640, 480);
  host.SetTakenByFrames(16, 80);
  Open([](Form& form) {
    EXPECT_DOUBLE_EQ(form.Height(), 400 * kTwipsPerPixel);
    for (Control* control : form.Controls()) EXPECT_LE(control->Bounds().Bottom(), form.Height());
    Robot(form).Key(key::kEscape);
  });
}

TEST_F(SessionChange, CancelledItChangesNothing) {
  context.puesto = "99";
  const std::int32_t result = Open([](Form& form) {
    Robot robot(form);
    robot.Key(key::kDown);
    robot.Key(key::kEscape);
  });
  EXPECT_EQ(result, 0);
  EXPECT_EQ(branch, "0123");
  EXPECT_EQ(context.puesto, "99");
  EXPECT_EQ(context.sucursal, "0123");
}

TEST_F(SessionChange, AStoreWithoutBranchesKeepsTheCode) {
  store->Execute("DELETE FROM Sucursales");
  Open([](Form& form) {
    Robot robot(form);
    robot.Click(robot.Find("CmdAceptar"));
  });
  EXPECT_EQ(branch, "0123");
}

TEST_F(HostTest, TheSessionObjectFillsTheSession) {
  context.sucursal = "05";
  ConnectionRef connection;
  ObjectRef objects[6];
  std::int32_t width = 0;
  std::int32_t height = 0;
  Value screen_value;
  RecordsetRef general;
  RecordsetRef actions;
  RecordsetRef screens;
  std::string session_text;
  std::string branch = "05";
  SampleSession session(context, MakeDictionaries(Language::kSpanish));
  session.RellenarSesion({connection, objects[0], objects[1], objects[2], objects[3], objects[4], objects[5],
                          width, height, screen_value, general, actions, screens, session_text, branch});
  EXPECT_EQ(connection, store);
  EXPECT_EQ(width, 15360);
  EXPECT_EQ(height, 11520);
  EXPECT_EQ(actions->Fields("Borrar Linea").Value(), Value("Borrar Línea"));
  EXPECT_EQ(screens->Fields("Orvendalciales").Value(), Value("Orvendal"));
  EXPECT_EQ(general->Fields("Datos de Interes").Value(), Value("Datos de Interés"));
  EXPECT_EQ(session_text, "Sucursal=05;Puesto=7;Turno=2");
  EXPECT_EQ(branch, "05");
}

}  // namespace
}  // namespace orvendal
