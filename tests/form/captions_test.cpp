#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/error_of.h"
#include "tests/support/event_log.h"
#include "tests/support/form_driver.h"
#include "tests/support/recording_dictionary.h"

namespace orvendal {
namespace {

using testing_support::ErrorOf;
using testing_support::EventLog;
using testing_support::RecordingDictionary;

/// A host whose dictionaries write down how they are read.
class CaptionsTest : public testing::Test {
 protected:
  CaptionsTest() {
    general = {{"Cancelar", "Cancel"},   {"Buscar", "Search"},  {"Datos de Interes", "Details"},
               {"Estilista", "Stylist"}, {"Fecha", "Date"},     {"Codigo", "Code"},
               {"Descripcion", "Name"},  {"Sucursal", "Branch"}};
    actions = {{"Supervisor", "Chief"}, {"Borrar Linea", "Delete line"}};
    screens = {{"Orvendalciales", "Opening stock"}};
  }
  void Open() {
    screen.session->meddle = [this](const SessionArguments& arguments) {
      arguments.DiccGeneral = std::make_shared<RecordingDictionary>("General", general, log);
      arguments.DiccAcciones = std::make_shared<RecordingDictionary>("Acciones", actions, log);
      arguments.DiccPantallas = std::make_shared<RecordingDictionary>("Pantallas", screens, log);
    };
    screen.Open();
  }
  static void Put(std::vector<RecordingDictionary::NamedValue>& dictionary, const std::string& key,
                  const Value& value) {
    for (auto& [name, old] : dictionary) {
      if (name == key) old = value;
    }
  }
  static void Drop(std::vector<RecordingDictionary::NamedValue>& dictionary, const std::string& key) {
    std::erase_if(dictionary, [&](const auto& entry) { return entry.first == key; });
  }

  FormDriver screen;
  EventLog log;
  std::vector<RecordingDictionary::NamedValue> general;
  std::vector<RecordingDictionary::NamedValue> actions;
  std::vector<RecordingDictionary::NamedValue> screens;
};

TEST_F(CaptionsTest, AreReadOnceInTheirOrderAndNothingElseIsDoneToTheDictionaries) {
  Open();
  const std::vector<std::string> expected = {
      "Acciones.Supervisor", "General.Cancelar",         "Acciones.Borrar Linea",
      "General.Buscar",      "General.Datos de Interes", "General.Estilista",
      "Acciones.Supervisor", "Pantallas.Orvendalciales", "General.Fecha",
      "General.Codigo",      "General.Descripcion",      "General.Estilista",
      "General.Sucursal"};
  EXPECT_EQ(log.Take(), expected);
}

TEST_F(CaptionsTest, EachStandsInItsPlaceWithItsBlanks) {
  Open();
  FrmOrvendalciales& form = screen.form();
  EXPECT_EQ(form.LblNuevo_0.Caption(), "Chief");
  EXPECT_EQ(form.LblCancelar_0.Caption(), "Cancel");
  EXPECT_EQ(form.LblBorrar_0.Caption(), "Delete line");
  EXPECT_EQ(form.LblBuscar_0.Caption(), "Search");
  EXPECT_EQ(form.LblDatos.Caption(), "  Details  ");
  EXPECT_EQ(form.LblEmpleado.Caption(), "  Stylist");
  EXPECT_EQ(form.LblSupervisor.Caption(), "Chief");
  EXPECT_EQ(form.LblEntrada.Caption(), "  Opening stock  ");
  EXPECT_EQ(form.LblFecha.Caption(), "  Date");
  EXPECT_EQ(form.MSFProductos.TextMatrix(0, column::kCode), "Code");
  EXPECT_EQ(form.MSFProductos.TextMatrix(0, column::kDescription), "Name");
  EXPECT_EQ(form.MSFProductos.TextMatrix(0, column::kStylist), "Stylist");
  EXPECT_EQ(form.LblSucursal.Caption(), "  Branch 01 Centro  ");
}

TEST_F(CaptionsTest, TheTextOfTheSupervisorShowsOnTheButtonAndOnTheMark) {
  Put(actions, "Supervisor", "Encargada");
  Open();
  EXPECT_EQ(screen.form().LblNuevo_0.Caption(), "Encargada");
  EXPECT_EQ(screen.form().LblSupervisor.Caption(), "Encargada");
}

TEST_F(CaptionsTest, GuardarTakesNothingFromADictionary) {
  general.emplace_back("Guardar", "Save");
  actions.emplace_back("Guardar", "Save");
  Open();
  EXPECT_EQ(screen.form().LblGuardar_0.Caption(), "Guardar");
}

TEST_F(CaptionsTest, TheClickAreasAreEmpty) {
  Open();
  for (const char* action : {"Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"}) {
    const Control* area = screen.form().FindControl("Lbl" + std::string(action) + "(1)");
    EXPECT_EQ(dynamic_cast<const Label*>(area)->Caption(), "") << action;
  }
}

TEST_F(CaptionsTest, TheClickAreasAreEmptiedBeforeTheFirstRead) {
  Drop(actions, "Supervisor");
  EXPECT_EQ(ErrorOf([&] { Open(); }), 3265);
  EXPECT_EQ(log.Take(), std::vector<std::string>{"Acciones.Supervisor"});
  EXPECT_EQ(screen.form().LblCancelar_1.Caption(), "");
  EXPECT_EQ(screen.form().LblCancelar_0.Caption(), "Cancelar");
}

TEST_F(CaptionsTest, ValuesAreTakenAsTheyAreBlanksIncludedAndOfAnyLength) {
  const std::string longest(500, 'W');
  Put(general, "Fecha", " a  b ");
  Put(general, "Buscar", longest);
  Open();
  EXPECT_EQ(screen.form().LblFecha.Caption(), "   a  b ");
  EXPECT_EQ(screen.form().LblFecha.Width(), 1065);
  EXPECT_EQ(screen.form().LblFecha.Left(), 1200);
  EXPECT_EQ(screen.form().LblBuscar_0.Caption(), longest);
}

TEST_F(CaptionsTest, AValueThatIsNoTextIsWrittenAsOne) {
  Put(general, "Buscar", 2.5);
  Open();
  EXPECT_EQ(screen.form().LblBuscar_0.Caption(), "2,5");
}

TEST_F(CaptionsTest, AChangeOfTheDictionaryAfterTheLoadChangesNothing) {
  screen.Open();
  screen.session->actions->Set("Supervisor", "Otra");
  screen.session->general->Set("Codigo", "Otro");
  screen.OpenWithStylist();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo");
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.form().LblNuevo_0.Caption(), "Supervisor");
  EXPECT_EQ(screen.form().LblSupervisor.Caption(), "Supervisor");
  EXPECT_EQ(screen.Cell(0, column::kCode), "Código");
}

TEST_F(CaptionsTest, NoOtherHandlerReadsTheDictionaries) {
  Open();
  log.Take();
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, column::kCode);
  screen.EnterLine("P1", "3");
  screen.Click("LblGuardar");
  screen.Key(key::kF1);
  screen.Key(key::kF2);
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo");
  screen.Click("LblCancelar");
  screen.form().Unload();
  EXPECT_TRUE(log.Take().empty());
}

struct Reading {
  const char* dictionary;
  const char* key;
  bool joined_with_blanks;
  int reads_before;
};

class EachCaptionTest : public CaptionsTest, public testing::WithParamInterface<Reading> {
 protected:
  std::vector<RecordingDictionary::NamedValue>& dictionary() {
    const std::string name = GetParam().dictionary;
    return name == "General" ? general : name == "Acciones" ? actions : screens;
  }
};

TEST_P(EachCaptionTest, AMissingKeyStopsTheLoadThere) {
  Drop(dictionary(), GetParam().key);
  EXPECT_EQ(ErrorOf([&] { Open(); }), 3265);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(log.Take().size(), static_cast<std::size_t>(GetParam().reads_before) + 1);
}

TEST_P(EachCaptionTest, ANullIsError94UnlessBlanksAreJoinedToIt) {
  Put(dictionary(), GetParam().key, Value());
  const std::int32_t error = ErrorOf([&] { Open(); });
  EXPECT_EQ(error, GetParam().joined_with_blanks ? 0 : 94);
  EXPECT_EQ(screen.HasForm(), GetParam().joined_with_blanks);
}

INSTANTIATE_TEST_SUITE_P(
    Readings, EachCaptionTest,
    testing::Values(Reading{"Acciones", "Supervisor", false, 0}, Reading{"General", "Cancelar", false, 1},
                    Reading{"Acciones", "Borrar Linea", false, 2}, Reading{"General", "Buscar", false, 3},
                    Reading{"General", "Datos de Interes", true, 4},
                    Reading{"Pantallas", "Orvendalciales", true, 7}, Reading{"General", "Fecha", true, 8},
                    Reading{"General", "Codigo", false, 9}, Reading{"General", "Descripcion", false, 10},
                    Reading{"General", "Sucursal", true, 12}));

TEST_F(CaptionsTest, ANullForTheStylistPassesTheLabelAndStopsAtTheGridsTitle) {
  Put(general, "Estilista", Value());
  EXPECT_EQ(ErrorOf([&] { Open(); }), 94);
  EXPECT_EQ(log.Take().size(), 12U);
  EXPECT_EQ(screen.form().LblEmpleado.Caption(), "  ");
}

TEST_F(CaptionsTest, ANullJoinedWithBlanksGivesTheBlanks) {
  Put(general, "Datos de Interes", Value());
  Put(general, "Fecha", Value());
  Put(general, "Sucursal", Value());
  Put(screens, "Orvendalciales", Value());
  Open();
  EXPECT_EQ(screen.form().LblDatos.Caption(), "    ");
  EXPECT_EQ(screen.form().LblFecha.Caption(), "  ");
  EXPECT_EQ(screen.form().LblEntrada.Caption(), "    ");
  EXPECT_EQ(screen.form().LblSucursal.Caption(), "   01 Centro  ");
}

TEST_F(CaptionsTest, DesignCaptionsAreReplacedStepByStepUpToTheFailure) {
  Put(general, "Buscar", Value());
  EXPECT_EQ(ErrorOf([&] { Open(); }), 94);
  EXPECT_EQ(screen.form().LblNuevo_0.Caption(), "Chief");
  EXPECT_EQ(screen.form().LblCancelar_0.Caption(), "Cancel");
  EXPECT_EQ(screen.form().LblBorrar_0.Caption(), "Delete line");
  EXPECT_EQ(screen.form().LblBuscar_0.Caption(), "Buscar");
  EXPECT_EQ(screen.form().LblDatos.Caption(), "  Datos de Interés  ");
}

TEST_F(CaptionsTest, EmptyDictionariesFailAtTheFirstRead) {
  screen.session->fills_dictionaries = false;
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), 3265);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_TRUE(screen.recordsets.TakeStatements().empty());
}

}  // namespace
}  // namespace orvendal
