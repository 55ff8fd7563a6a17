#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "form/columns.h"
#include "host/text/printed_text.h"
#include "tests/support/event_log.h"
#include "tests/support/form_driver.h"

namespace orvendal::testing_support {

using Texts = std::vector<std::string>;

using namespace column;  // what the columns of the line grid hold

inline const std::string kAsksForStylist = "[64] \"\" \"Debe seleccionar un Estilista\" -> 1";
inline const std::string kRefusesBlankStylist =
    "[16] \"Atención\" \"El Estilista no puede estar en blanco\" -> 1";
inline const std::string kRefusesRepeatedProduct =
    "[64] \"\" \"El Producto Seleccionado ya se ha Introducido Anteriormente, Imposible Continuar\" -> 1";

/// The question of the guard with the answer that it got.
inline std::string GuardQuestion(std::int32_t answer) {
  return "[35] \"\" \"Se ha encontrado Modificaciones sin Guardar,\\r\\n¿Guardar Modificaciones?\" -> " +
         std::to_string(answer);
}

/// Messages since last asked, as [style] "title" "text" -> answer.
inline Texts TakeMessages(ScreenDriver& screen) {
  Texts texts;
  for (const ScriptedLibrary::ShownMessage& shown : screen.library.TakeMessages()) {
    texts.push_back("[" + std::to_string(shown.style) + "] " + QuotedText(shown.title) + " " +
                    QuotedText(shown.text) + " -> " + std::to_string(shown.answer));
  }
  return texts;
}

/// Statements since last asked.
inline Texts TakeStatements(ScreenDriver& screen) {
  Texts texts;
  for (const OpenedStatement& statement : screen.recordsets.TakeStatements()) texts.push_back(statement.text);
  return texts;
}

/// Library calls since last asked that begin with `name`; all of them without one.
inline Texts TakeCalls(ScreenDriver& screen, const std::string& name = {}) {
  Texts texts;
  for (std::string& call : screen.library.TakeCalls()) {
    if (call.starts_with(name)) texts.push_back(std::move(call));
  }
  return texts;
}

/// Errors reported by the host since last asked, as "number: description".
inline Texts TakeErrors(FormDriver& screen) {
  Texts texts;
  for (const RuntimeError& error : screen.host.ReportedErrors())
    texts.push_back(std::to_string(error.Number()) + ": " + error.Description());
  screen.host.ForgetErrors();
  return texts;
}

/// Forgets everything that was recorded so far.
inline void Forget(FormDriver& screen) {
  screen.library.TakeCalls();
  screen.library.TakeMessages();
  screen.recordsets.TakeStatements();
  screen.host.ForgetErrors();
}

/// The buttons of the action bar that are available, in their order.
inline std::string AvailableButtons(ScreenDriver& screen) {
  std::string names;
  for (const char* action : {"Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"}) {
    if (!screen.IsAvailable(action)) continue;
    names += (names.empty() ? "" : " ") + std::string(action);
  }
  return names;
}
inline const std::string kBotonesEnCelda = "Nuevo Buscar Borrar Guardar Cancelar";
inline const std::string kBotonesConLineas = "Nuevo Borrar Guardar Cancelar";
inline const std::string kBotonesEnReposo = "Nuevo Cancelar";
inline const std::string kBotonesSoloCancelar = "Cancelar";

/// Where the cursor of the line grid stands, as "row,column".
inline std::string Cursor(ScreenDriver& screen) {
  return std::to_string(screen.form().MSFProductos.Row()) + "," +
         std::to_string(screen.form().MSFProductos.Col());
}
inline bool EditorIsOpen(ScreenDriver& screen) {
  return screen.form().TxtMSF.Visible();
}
inline std::string EditorText(ScreenDriver& screen) {
  return screen.form().TxtMSF.Text();
}
inline bool EditorTextIsSelected(ScreenDriver& screen) {
  const TextBox& editor = screen.form().TxtMSF;
  return editor.SelStart() == 0 && editor.SelText() == editor.Text();
}
/// The cursor's cell and the editor's text, in brackets if all of it is selected: "1,3 [7]".
inline std::string CellAndEditor(ScreenDriver& screen) {
  const std::string text = EditorText(screen);
  return Cursor(screen) + " " + (EditorTextIsSelected(screen) ? "[" + text + "]" : text);
}

/// Lines of the snapshot, title row not counted, by columns.
inline Texts SnapshotLine(ScreenDriver& screen, int row) {
  Texts cells;
  for (int column = 0; column < screen.form().MSFProductos1.Cols(); ++column)
    cells.push_back(screen.form().MSFProductos1.TextMatrix(row, column));
  return cells;
}

/// Supervisor mode by its button, with employee E2 "Berta".
inline void EnterSupervisorMode(ScreenDriver& screen) {
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo");
}
/// Supervisor mode must be on and a stylist chosen.
inline void PickDay(ScreenDriver& screen, Date day) {
  if (!screen.form().PicCalendario.Visible()) screen.Click("MkFecha");
  screen.robot().ClickDay(screen.form().Calendario, day);
}

/// Names of the parameters of tests that run in both dialects.
inline std::string DialectName(const testing::TestParamInfo<Dialect>& instance) {
  return instance.param == Dialect::kJet ? "Jet" : "SqlServer";
}

}  // namespace orvendal::testing_support
