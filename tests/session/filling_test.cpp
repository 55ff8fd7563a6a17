#include <gtest/gtest.h>

#include "tests/support/error_of.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

using testing_support::ErrorOf;

/// Keeps what it made, in order.
class KeepingFactory final : public RecordsetFactory {
 public:
  RecordsetRef NewRecordset() override {
    made.push_back(inner_.NewRecordset());
    return made.back();
  }
  std::vector<RecordsetRef> made;

 private:
  SqliteRecordsetFactory inner_;
};

class NoForm final : public Object {};

class SessionFillingTest : public testing::Test {
 protected:
  FormDriver screen;
  /// The routine alone, with a session object that does nothing but `meddle`.
  DatosComunes session;
  KeepingFactory factory;
  std::shared_ptr<TestSession> object = std::make_shared<TestSession>();

  SessionFillingTest() {
    object->fills_dictionaries = false;
    session.DatosSesion = object;
  }
};

TEST_F(SessionFillingTest, MakesTheEmptyDictionariesInTheirOrder) {
  session.IniciarDatosComunes(factory);
  ASSERT_EQ(factory.made.size(), 3U);
  EXPECT_EQ(session.DiccPantallas, factory.made[0]);
  EXPECT_EQ(session.DiccAcciones, factory.made[1]);
  EXPECT_EQ(session.DiccGeneral, factory.made[2]);
  for (const RecordsetRef& dictionary : factory.made) {
    EXPECT_EQ(dictionary->State(), kStateClosed);
    EXPECT_EQ(dictionary->FieldCount(), 0U);
  }
}

TEST_F(SessionFillingTest, MakesOnlyTheDictionariesThatAreStillEmpty) {
  session.DiccAcciones = std::make_shared<MemoryRecordset>(std::vector<MemoryRecordset::NamedValue>{});
  const RecordsetRef kept = session.DiccAcciones;
  session.IniciarDatosComunes(factory);
  EXPECT_EQ(factory.made.size(), 2U);
  EXPECT_EQ(session.DiccAcciones, kept);
}

TEST_F(SessionFillingTest, ASecondCallMakesNothingAndHandsTheSameDictionariesToTheHostAgain) {
  session.IniciarDatosComunes(factory);
  const RecordsetRef general = session.DiccGeneral;
  bool handed = false;
  object->meddle = [&](const SessionArguments& arguments) {
    handed = arguments.DiccGeneral == general && arguments.DiccAcciones == factory.made[1] &&
             arguments.DiccPantallas == factory.made[0];
  };
  session.IniciarDatosComunes(factory);
  EXPECT_EQ(factory.made.size(), 3U);
  EXPECT_TRUE(handed);
}

TEST_F(SessionFillingTest, ASecondCallWithAnOpenFormMakesNoDictionaryAndTheHostMayReplaceThem) {
  screen.Open();
  const std::string caption = screen.form().LblBuscar_0.Caption();
  RecordsetRef handed;
  screen.session->fills_dictionaries = false;
  const auto replacement =
      std::make_shared<MemoryRecordset>(std::vector<MemoryRecordset::NamedValue>{{"Buscar", "Search"}});
  screen.session->meddle = [&](const SessionArguments& arguments) {
    handed = arguments.DiccGeneral;
    arguments.DiccGeneral = replacement;
  };
  screen.Open();
  EXPECT_EQ(handed, screen.session->general);
  EXPECT_EQ(screen.state.session.DiccGeneral, replacement);
  EXPECT_EQ(screen.form().LblBuscar_0.Caption(), caption);
}

TEST_F(SessionFillingTest, TheHostSeesWhatTheSessionHoldsAndFillsAllFifteen) {
  session.CodSucursal = "0123";
  session.CadenaSesion = "antes";
  session.AnchoBase = 7;
  object->fills_dictionaries = false;
  const auto thing = [] { return std::make_shared<NoForm>(); };
  const ObjectRef objects[] = {thing(), thing(), thing(), thing()};
  const auto form1 = std::make_shared<Form>(screen.host, "FrmA");
  const auto form2 = std::make_shared<Form>(screen.host, "FrmB");
  object->meddle = [&](const SessionArguments& arguments) {
    EXPECT_EQ(arguments.CodSucursal, "0123");
    EXPECT_EQ(arguments.Conexion, nullptr);
    EXPECT_EQ(arguments.FormHost1, nullptr);
    arguments.Conexion = screen.connection;
    arguments.ObjetoSesion1 = objects[0];
    arguments.ObjetoSesion2 = objects[1];
    arguments.ObjetoSesion3 = objects[2];
    arguments.ObjetoSesion4 = objects[3];
    arguments.FormHost1 = form1;
    arguments.FormHost2 = form2;
    arguments.AnchoBase = 12000;
    arguments.AltoBase = 9000;
    arguments.DatoPantalla = 3.0;
    arguments.DiccGeneral = screen.session->general;
    arguments.DiccAcciones = screen.session->actions;
    arguments.DiccPantallas = screen.session->screens;
    arguments.CadenaSesion = "cadena";
    arguments.CodSucursal = "02";
  };
  session.IniciarDatosComunes(factory);
  EXPECT_EQ(session.Conexion, screen.connection);
  EXPECT_EQ(session.ObjetoSesion1, objects[0]);
  EXPECT_EQ(session.ObjetoSesion2, objects[1]);
  EXPECT_EQ(session.ObjetoSesion3, objects[2]);
  EXPECT_EQ(session.ObjetoSesion4, objects[3]);
  EXPECT_EQ(session.FormHost1, form1);
  EXPECT_EQ(session.FormHost2, form2);
  EXPECT_EQ(session.AnchoBase, 12000);
  EXPECT_EQ(session.AltoBase, 9000);
  EXPECT_EQ(session.DatoPantalla, Value(3.0));
  EXPECT_EQ(session.DiccGeneral, screen.session->general);
  EXPECT_EQ(session.DiccAcciones, screen.session->actions);
  EXPECT_EQ(session.DiccPantallas, screen.session->screens);
  EXPECT_EQ(session.CadenaSesion, "cadena");
  EXPECT_EQ(session.CodSucursal, "02");
}

TEST_F(SessionFillingTest, AHostThatLeavesTheTwoFormsEmptyCausesNoError) {
  screen.Open();
  EXPECT_EQ(screen.state.session.FormHost1, nullptr);
  EXPECT_EQ(screen.state.session.FormHost2, nullptr);
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  const std::string caption = screen.form().LblSucursal.Caption();
  screen.Open();
  EXPECT_EQ(screen.form().LblSucursal.Caption(), caption);
}

TEST_F(SessionFillingTest, FormsOfTheHostAreKeptAndHandedOutAgain) {
  screen.session->form1 = std::make_shared<Form>(screen.host, "FrmA");
  screen.session->form2 = std::make_shared<Form>(screen.host, "FrmB");
  screen.Open();
  EXPECT_EQ(screen.state.session.FormHost1, screen.session->form1);
  EXPECT_EQ(screen.state.session.FormHost2, screen.session->form2);

  const ObjectRef first = screen.session->form1;
  screen.session->form1.reset();
  screen.session->form2.reset();
  ObjectRef handed;
  screen.session->meddle = [&](const SessionArguments& arguments) { handed = arguments.FormHost1; };
  screen.Open();
  EXPECT_EQ(handed, first);
  EXPECT_EQ(screen.state.session.FormHost1, first);
}

TEST_F(SessionFillingTest, SomethingThatIsNoFormInAFormArgumentIsError13) {
  screen.session->form2 = std::make_shared<NoForm>();
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), 13);
  EXPECT_EQ(screen.state.form, nullptr);
  EXPECT_EQ(screen.state.session.CodSucursal, "01");
}

TEST_F(SessionFillingTest, ABranchThatTheHostReplacesWinsOverTheArgument) {
  screen.session->replaced_branch = "02";
  screen.AddCount("P5", 4, 5, "E1", "2026-11-16", "02");
  screen.AddCount("P1", 7, 8, "E1", "2026-11-16", "01");
  screen.Open("01");
  EXPECT_EQ(screen.state.session.CodSucursal, "02");
  EXPECT_EQ(screen.form().LblSucursal.Caption(), "  Sucursal 02 Norte  ");
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P5"});
}

TEST_F(SessionFillingTest, ASessionWithoutAConnectionFailsAtTheFirstQuery) {
  screen.session->connection.reset();
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), 3709);
  const std::vector<OpenedStatement> tried = screen.recordsets.TakeStatements();
  ASSERT_EQ(tried.size(), 1U);
  EXPECT_NE(tried[0].text.find("FROM Sucursales"), std::string::npos);
  EXPECT_FALSE(screen.HasForm());
}

TEST_F(SessionFillingTest, AHostThatTakesADictionaryAwayLeavesAnEmptyOneToTheFirstRead) {
  screen.session->meddle = [](const SessionArguments& arguments) { arguments.DiccAcciones.reset(); };
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), 3265);
}

TEST_F(SessionFillingTest, ClosingTheFormClearsNothing) {
  screen.Open("01", "P1", "T1");
  screen.form().Unload();
  EXPECT_EQ(screen.state.session.Conexion, screen.connection);
  EXPECT_EQ(screen.state.session.CodSucursal, "01");
  EXPECT_EQ(screen.state.session.CodTurno, "T1");
  EXPECT_EQ(screen.state.session.DiccGeneral, screen.session->general);
  EXPECT_EQ(screen.state.session.DatosSesion, screen.session);
}

TEST_F(SessionFillingTest, TheBranchKeyIsTheFirstTwoCharactersOrWhatThereIs) {
  session.CodSucursal = "0123";
  EXPECT_EQ(session.ClaveSucursal(), "01");
  session.CodSucursal = "7";
  EXPECT_EQ(session.ClaveSucursal(), "7");
  session.CodSucursal = "";
  EXPECT_EQ(session.ClaveSucursal(), "");
  session.CodSucursal = "ñá1";
  EXPECT_EQ(session.ClaveSucursal(), "ñá");
}

}  // namespace
}  // namespace orvendal
