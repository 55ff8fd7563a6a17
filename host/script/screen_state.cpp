#include "host/script/screen_state.h"

#include <algorithm>

#include "form/columns.h"
#include "form/flag_scope.h"
#include "host/script/parser.h"
#include "host/script/script_actions.h"
#include "host/script/script_values.h"
#include "host/script/show.h"
#include "host/script/values.h"
#include "platform/forms/named_property.h"

namespace orvendal {
namespace {

constexpr int kFewestRows = 13;
constexpr int kMostRows = 1'000'000;  // more only eats the memory
constexpr std::string_view kForm = "Form.";
constexpr std::string_view kActiveControl = "Form.ActiveControl";

// In the order in which they are put: what a text selects comes after the text.
constexpr std::string_view kProperties[] = {"Visible", "Enabled",  "Caption",   "Left",      "Top",
                                            "Width",   "Height",   "BackColor", "ForeColor", "Value",
                                            "Text",    "SelStart", "SelLength", "TopRow"};

// A control is moved and changed with nobody told.
class SilentControls {
 public:
  explicit SilentControls(const Form& form) {
    for (Control* control : form.Controls()) {
      kept_.push_back(
          {control, std::exchange(control->OnGotFocus, {}), std::exchange(control->OnLostFocus, {})});
    }
  }
  ~SilentControls() {
    for (Kept& kept : kept_) {
      kept.control->OnGotFocus = std::move(kept.got_focus);
      kept.control->OnLostFocus = std::move(kept.lost_focus);
    }
  }
  SilentControls(const SilentControls&) = delete;
  SilentControls& operator=(const SilentControls&) = delete;

 private:
  struct Kept {
    Control* control;
    std::function<void()> got_focus;
    std::function<void()> lost_focus;
  };
  std::vector<Kept> kept_;
};

bool IsTrue(const std::string& text) {
  return text == "True";
}

Value ValueOf(const std::string& text, PropertyType type) {
  switch (type) {
    case PropertyType::kText:
      return text;
    case PropertyType::kWhole:
    case PropertyType::kNumber:
      return DecimalNumber(text);
    case PropertyType::kFlag:
      return IsTrue(text) ? -1.0 : 0.0;
    case PropertyType::kColor:
      return static_cast<double>(std::stoul(text, nullptr, 16));
    case PropertyType::kDate:
      return MomentOf(text);
  }
  return {};
}

void PutVariable(FrmOrvendalciales& screen, DatosComunes& session, const std::string& name,
                 const std::string& text) {
  FrmOrvendalciales::Variables& variables = screen.variables;
  if (name == "CodSucursal") {
    session.CodSucursal = text;
  } else if (name == "CodPuesto") {
    session.CodPuesto = text;
  } else if (name == "CodTurno") {
    session.CodTurno = text;
  } else if (name == "CambiarEstilista") {
    variables.CambiarEstilista = IsTrue(text);
  } else if (name == "FlagSupervisor") {
    variables.FlagSupervisor = IsTrue(text);
  } else if (name == "UltimaColumna") {
    variables.UltimaColumna = static_cast<std::uint8_t>(WholeNumber(text));
  } else if (name == "EditorRow") {
    variables.editor_row = WholeNumber(text);
  } else if (name == "EditorCol") {
    variables.editor_column = WholeNumber(text);
  } else if (name == "ActiveControl") {
    screen.FindControl(text) == nullptr ? void() : ControlNamed(screen, text).SetFocus();
  } else {
    throw ScriptStop("no existe la propiedad Form." + name);
  }
}

void Put(FrmOrvendalciales& screen, DatosComunes& session, const std::string& name, const std::string& text) {
  const SilentControls silent(screen);
  try {
    if (name.starts_with(kForm)) {
      PutVariable(screen, session, name.substr(kForm.size()), text);
      return;
    }
    const std::size_t point = name.rfind('.');
    if (point == std::string::npos) throw ScriptStop("falta la propiedad: se escribe CONTROL.PROPIEDAD");
    Control& control = ControlNamed(screen, name.substr(0, point));
    const std::string of_control = name.substr(point + 1);
    const bool is_state =
        std::find(std::begin(kProperties), std::end(kProperties), of_control) != std::end(kProperties);
    const NamedProperty* property = FindProperty(control.Kind(), of_control);
    if (!is_state || property == nullptr || !property->put)
      throw ScriptStop("no existe la propiedad " + name);
    property->put(control, {}, ValueOf(text, property->type));
  } catch (const RuntimeError& error) {
    throw ScriptStop("no se puede poner " + name + ": error " + std::to_string(error.Number()) + ": " +
                     error.Description());
  } catch (const std::logic_error&) {
    throw ScriptStop("«" + text + "» no es un valor de " + name);
  }
}

void ClearLines(FrmOrvendalciales& screen, int rows) {
  if (rows > kMostRows)
    throw ScriptStop("una pantalla tiene como mucho " + std::to_string(kMostRows) + " filas");
  const FlagScope loading(screen.variables.CargandoLineas);
  MSFlexGrid& grid = screen.MSFProductos;
  grid.Rows(kFewestRows);
  for (int row = 1; row < grid.Rows(); ++row) {
    for (int column = 0; column < grid.Cols(); ++column) grid.TextMatrix(row, column, "");
  }
  grid.Rows(std::max(rows, kFewestRows));
}

// The row events colour the line, as in a load.
void PutLine(FrmOrvendalciales& screen, int row, const std::vector<std::string>& cells) {
  const FlagScope loading(screen.variables.CargandoLineas);
  MSFlexGrid& grid = screen.MSFProductos;
  if (row < 1 || row >= grid.Rows()) throw ScriptStop("no hay la fila " + std::to_string(row));
  for (std::size_t column = 0; column < cells.size(); ++column) {
    grid.TextMatrix(row, static_cast<int>(column), cells[column]);
  }
  grid.Row(row);
}

void PutCursor(FrmOrvendalciales& screen, int row, int column) {
  const FlagScope loading(screen.variables.CargandoLineas);
  MSFlexGrid& grid = screen.MSFProductos;
  if (row < 1 || row >= grid.Rows() || column < 0 || column >= grid.Cols()) {
    throw ScriptStop("no hay la celda " + std::to_string(row) + " " + std::to_string(column));
  }
  grid.Row(row);
  grid.Col(column);
}

void LoadDay(FrmOrvendalciales& screen, Date day) {
  try {
    screen.Calendario.Value(day);
    screen.CargarExistencias();
  } catch (const RuntimeError& error) {
    throw ScriptStop("no se puede cargar el día: error " + std::to_string(error.Number()) + ": " +
                     error.Description());
  }
}

bool IsOfLines(const Control& control) {
  return control.Kind() == ControlKind::kMSFlexGrid;
}

}  // namespace

bool PutScreenState(FrmOrvendalciales& screen, DatosComunes& session, const std::vector<std::string>& words) {
  const std::string command = words.empty() ? std::string() : words.front();
  if (command == "pon") {
    CheckWords(words, 3, 3, "pon CONTROL.PROPIEDAD \"valor\"");
    Put(screen, session, words[1], words[2]);
  } else if (command == "carga") {
    CheckWords(words, 2, 2, "carga 2026-11-16");
    LoadDay(screen, MomentOf(words[1]).DayOnly());
  } else if (command == "lineas") {
    CheckWords(words, 2, 2, "lineas FILAS");
    ClearLines(screen, PositiveNumber(words[1]));
  } else if (command == "linea") {
    CheckWords(words, 2, 2 + column::kCount, "linea FILA \"columna 0\" \"columna 1\" ...");
    PutLine(screen, PositiveNumber(words[1]), {words.begin() + 2, words.end()});
  } else if (command == "celda") {
    CheckWords(words, 3, 3, "celda FILA COL");
    PutCursor(screen, WholeNumber(words[1]), WholeNumber(words[2]));
  } else {
    return false;
  }
  return true;
}

ScreenValues ValuesOf(FrmOrvendalciales& screen, const DatosComunes& session) {
  ScreenValues values;
  for (const std::string_view name : kProperties) {
    for (Control* control : screen.Controls()) {
      const bool is_cursor = name == "TopRow";
      if (is_cursor ? control != &screen.MSFProductos : IsOfLines(*control) && name != "Enabled") continue;
      const NamedProperty* property = FindProperty(control->Kind(), name);
      if (property == nullptr || !property->put) continue;
      values.emplace_back(control->FullName() + "." + std::string(name),
                          ValueText(property->get(*control, {}), property->type));
    }
  }
  const FrmOrvendalciales::Variables& variables = screen.variables;
  values.emplace_back("Form.CodSucursal", session.CodSucursal);
  values.emplace_back("Form.CodPuesto", session.CodPuesto);
  values.emplace_back("Form.CodTurno", session.CodTurno);
  values.emplace_back("Form.CambiarEstilista", ValueText(variables.CambiarEstilista));
  values.emplace_back("Form.FlagSupervisor", ValueText(variables.FlagSupervisor));
  values.emplace_back("Form.UltimaColumna", ValueText(static_cast<int>(variables.UltimaColumna)));
  values.emplace_back("Form.EditorRow", ValueText(variables.editor_row));
  values.emplace_back("Form.EditorCol", ValueText(variables.editor_column));
  const Control* active = screen.ActiveControl();
  values.emplace_back(std::string(kActiveControl), active == nullptr ? std::string() : active->FullName());
  return values;
}

std::string ScreenStateLines(FrmOrvendalciales& screen, const DatosComunes& session,
                             const ScreenValues& fresh) {
  const ScreenValues now = ValuesOf(screen, session);
  const auto value_of = [](const ScreenValues& values, std::string_view name) {
    const auto found =
        std::find_if(values.begin(), values.end(), [&](const auto& each) { return each.first == name; });
    return found == values.end() ? std::string() : found->second;
  };
  std::string lines;
  const auto put = [&lines](const std::string& name, const std::string& value) {
    lines += "pon " + name + " " + TextWord(value) + "\n";
  };
  const std::string branch = value_of(now, "Form.CodSucursal");
  const bool other_branch = branch != value_of(fresh, "Form.CodSucursal");
  if (other_branch) put("Form.CodSucursal", branch);
  const Date day = screen.Calendario.Value();
  if (other_branch || ValueText(day) != value_of(fresh, "Calendario.Value")) {
    lines += "carga " + ValueText(day) + "\n";
  }

  const MSFlexGrid& grid = screen.MSFProductos;
  lines += "lineas " + std::to_string(grid.Rows()) + "\n";
  for (int row = 1; row < grid.Rows() && !grid.TextMatrix(row, column::kCode).empty(); ++row) {
    lines += "linea " + std::to_string(row);
    for (int column = 0; column < grid.Cols(); ++column) {
      lines += ' ';
      lines += TextWord(grid.TextMatrix(row, column));
    }
    lines += '\n';
  }
  lines += "celda " + std::to_string(grid.Row()) + " " + std::to_string(grid.Col()) + "\n";
  for (const auto& [name, value] : now) {
    const bool always = name == "MSFProductos.TopRow" || name == kActiveControl;
    if (always || value != value_of(fresh, name)) put(name, value);
  }
  return lines;
}

}  // namespace orvendal
