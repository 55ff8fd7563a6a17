#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/event_log.h"
#include "tests/support/form_driver.h"
#include "tests/support/fresh_variables.h"
#include "tests/support/recording_dictionary.h"
#include "tests/support/recording_recordsets.h"

namespace orvendal {
namespace {

/// A clock on which midnight passes as soon as the library has been asked for the text of a date.
class MidnightClock final : public Clock {
 public:
  explicit MidnightClock(const ScriptedLibrary& library) : library_(library) {}
  Date Now() override {
    return library_.Calls().empty() ? Date(2026, 11, 16, 23, 59, 59) : Date(2026, 11, 17, 0, 0, 0);
  }

 private:
  const ScriptedLibrary& library_;
};

class FormLoadTest : public testing::TestWithParam<const Region*> {
 protected:
  std::string Today() { return GetParam()->ToText(Date(2026, 11, 16)); }

  FormDriver screen{Dialect::kSqlServer, *GetParam()};
};

TEST_P(FormLoadTest, StandsWithThisOnTheScreen) {
  screen.AddCount("P1", 7, 9);
  screen.Open();
  FrmOrvendalciales& form = screen.form();
  EXPECT_EQ(form.MkFecha.Text(), Today());
  EXPECT_EQ(form.TxtFechaHora.Text(), Today());
  EXPECT_EQ(form.Calendario.Value(), Date(2026, 11, 16));
  EXPECT_FALSE(form.MkFecha.Visible());
  EXPECT_TRUE(form.TxtFechaHora.Visible());
  EXPECT_FALSE(form.TxtMSF.Visible());
  EXPECT_FALSE(form.MSFProductos1.Visible());
  EXPECT_FALSE(form.BtnAnuloSuper.Visible());
  EXPECT_FALSE(form.LblSupervisor.Visible());
  EXPECT_FALSE(form.PicCalendario.Visible());
  EXPECT_TRUE(screen.IsAvailable("Nuevo"));
  EXPECT_TRUE(screen.IsAvailable("Cancelar"));
  EXPECT_FALSE(screen.IsAvailable("Buscar"));
  EXPECT_FALSE(screen.IsAvailable("Borrar"));
  EXPECT_FALSE(screen.IsAvailable("Guardar"));
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P1"});
  ASSERT_EQ(form.MSFProductos1.Rows(), 2);
  for (int column = 0; column < 9; ++column) {
    EXPECT_EQ(form.MSFProductos1.TextMatrix(1, column), screen.Cell(1, column)) << column;
  }
}

TEST_P(FormLoadTest, TheVariablesAtTheEndOfTheLoad) {
  screen.Open();
  screen.library.KeepForm(true);
  screen.form().Unload();
  screen.form().Load();  // without the activation that showing brings
  testing_support::ExpectFreshVariables(screen.form().variables, true);
}

TEST_P(FormLoadTest, DatesGoThroughTheLibraryWithTheirArguments) {
  screen.Open();
  const std::string call =
      "HerramientasGlobal.FormatoFecha(\"" + Today() + "\", 1, \"D\", \"D\") = \"" + Today() + "\"";
  EXPECT_EQ(screen.library.TakeCalls(), (std::vector<std::string>{call, call}));
}

TEST_P(FormLoadTest, TheSizeComesFromTheSessionAndStaysWhereTheHeightsAgree) {
  screen.session->reference_width = 12000;
  screen.session->reference_height = 9000;
  screen.host.SetScreenTwips(20000, 9000);
  screen.Open();
  EXPECT_EQ(screen.form().Width(), 12000);
  EXPECT_EQ(screen.form().Height(), 9000);
}

TEST_P(FormLoadTest, AnotherHeightEndsWithTheSizeOfTheDisplay) {
  screen.host.SetScreen(800, 600);
  screen.Open();
  EXPECT_EQ(screen.form().Width(), 12000);
  EXPECT_EQ(screen.form().Height(), 9000);
}

TEST_P(FormLoadTest, TheEditorIsFittedToTheDescriptionOfTheFirstLine) {
  screen.Open();
  const TextBox& editor = screen.form().TxtMSF;
  EXPECT_EQ(editor.Height(), 510);
  EXPECT_EQ(editor.Width(), 7395 + 10);
  EXPECT_EQ(editor.Left(), 1200 + 1200);
  EXPECT_EQ(editor.Top(), 2400 + 500);
}

TEST_P(FormLoadTest, ItsStepsFollowTheirOrder) {
  testing_support::EventLog log;
  log.drain_first = [this] {
    std::vector<std::string> calls = screen.library.TakeCalls();
    for (std::string& call : calls) call = call.substr(0, call.find('('));
    return calls;
  };
  SqliteRecordsetFactory inner;
  testing_support::RecordingRecordsets recordsets(inner, log);
  ComponentState state{Environment{screen.host, recordsets, screen.library}};
  screen.session->meddle = [&](const SessionArguments& arguments) {
    log.Add("RellenarSesion");
    arguments.DiccGeneral = std::make_shared<testing_support::RecordingDictionary>(
        "General",
        std::vector<testing_support::RecordingDictionary::NamedValue>{{"Cancelar", "x"},
                                                                      {"Buscar", "x"},
                                                                      {"Datos de Interes", "x"},
                                                                      {"Estilista", "x"},
                                                                      {"Fecha", "x"},
                                                                      {"Codigo", "x"},
                                                                      {"Descripcion", "x"},
                                                                      {"Sucursal", "x"}},
        log);
  };
  ClassOrvendal component(state);
  component.Orvendal(screen.session, "01", "P1", "T1");
  std::vector<std::string> steps;
  for (const std::string& entry : log.Take()) {
    const bool is_open = entry.find(" Open ") != std::string::npos;
    if (entry.find("gone") != std::string::npos || entry.find("new") != std::string::npos) continue;
    steps.push_back(is_open ? entry.substr(0, entry.find("SELECT") + 17) : entry);
  }
  EXPECT_EQ(steps, (std::vector<std::string>{
                       "RellenarSesion", "General.Cancelar", "General.Buscar", "General.Datos de Interes",
                       "General.Estilista", "General.Fecha", "General.Codigo", "General.Descripcion",
                       "General.Estilista", "4 Open SELECT Sucursales", "4 Find Sucursal like '01' (0, 1)",
                       "General.Sucursal", "4 Fields(Nombre)", "4 Close", "HerramientasGlobal.FormatoFecha",
                       "HerramientasGlobal.FormatoFecha", "5 Open SELECT HistOrvend", "5 State", "5 Close"}));
}

TEST_P(FormLoadTest, LoadComesBeforeResizeActivateAndTheFirstFocus) {
  std::vector<std::string> order;
  const auto form = std::make_shared<FrmOrvendalciales>(screen.state);
  screen.state.form = form;
  const auto load = form->OnLoad;
  const auto activate = form->OnActivate;
  form->OnLoad = [&] {
    order.push_back("load");
    load();
    order.push_back("loaded");
  };
  form->OnResize = [&] { order.push_back("resize"); };
  form->OnActivate = [&] {
    order.push_back("activate");
    activate();
    order.push_back("activated");
  };
  form->PicServicios.OnGotFocus = [&] { order.push_back("focus"); };
  screen.Open();
  // The activation itself asks for the focus.
  EXPECT_EQ(order, (std::vector<std::string>{"load", "loaded", "resize", "activate", "focus", "activated"}));
}

TEST_P(FormLoadTest, TwoReadingsOfTheClockCanShowTwoDays) {
  MidnightClock clock(screen.library);
  HeadlessHost host(*GetParam(), clock);
  ComponentState state{Environment{host, screen.recordsets, screen.library}};
  screen.AddCount("P1", 1, 2, "E1", "2026-11-16");
  screen.AddCount("P2", 1, 2, "E1", "2026-11-17");
  ClassOrvendal component(state);
  component.Orvendal(screen.session, "01", "P1", "T1");
  EXPECT_EQ(state.form->MkFecha.Text(), GetParam()->ToText(Date(2026, 11, 16)));
  EXPECT_EQ(state.form->TxtFechaHora.Text(), GetParam()->ToText(Date(2026, 11, 17)));
  EXPECT_EQ(state.form->Calendario.Value(), Date(2026, 11, 17));
  EXPECT_EQ(state.form->MSFProductos.TextMatrix(1, column::kCode), "P2");
}

INSTANTIATE_TEST_SUITE_P(Regions, FormLoadTest, testing::Values(&Region::Spanish(), &Region::English()),
                         [](const auto& instance) {
                           return instance.param == &Region::Spanish() ? "Spanish" : "English";
                         });

}  // namespace
}  // namespace orvendal
