// What the user of a random script does at the screen.

#include "screen/control_catalogue.h"
#include "tests/support/random_user.h"

namespace orvendal {
namespace {

std::string Cell(int row, int column) {
  return "MSFProductos " + std::to_string(row) + " " + std::to_string(column);
}

}  // namespace

std::string RandomUser::LineCode() {
  if (now_.lines == 0) return {};
  const std::string row = Number(1, now_.lines);
  return script_.Value("MSFProductos.TextMatrix(" + row + ",0)");
}

std::string RandomUser::TypedProduct() {
  static constexpr const char* kOdd[] = {"",     "NADA",    "O'Neill", "L%", "_",   "lac",   "LAC", "La",
                                         "Laca", "Tinte 8", "[A-Z]*",  "\\", "ñÇ€", "00001", " ",   "a b"};
  const int kind = random_.Between(1, 100);
  if (kind <= 45) return SomeProductCode(script_, random_);
  if (kind <= 60) return SomeRow(script_, random_, "Referencia", "Referencias");
  if (kind <= 70) return SomeRow(script_, random_, "Descripcion", "Productos");
  if (kind <= 78) return SomeRow(script_, random_, "substr(Descripcion, 1, 12)", "Productos");
  if (kind <= 82) return SomeRow(script_, random_, "lower(Codigo)", "Productos");
  if (kind <= 90) return LineCode();
  return OneOf(kOdd);
}

std::string RandomUser::TypedQuantity() {
  static constexpr const char* kOdd[] = {"",         "-3",          "1,5",   "1.5", "0,0",
                                         "12345678", "abc",         ",5",    "1e3", "--4",
                                         "7-",       "9999999,999", "1,2,3", "5,",  "1234,5678"};
  return random_.Chance(70) ? Number(0, 60) : OneOf(kOdd);
}

void RandomUser::CountLine() {
  if (!Act("dobleclic " + Cell(now_.lines + 1, random_.Chance(80) ? 0 : 1))) return;
  Type(TypedProduct() + "\n");
  Type(TypedQuantity() + (random_.Chance(85) ? "\n" : ""));
}

void RandomUser::OpenEditor() {
  static constexpr int kColumns[] = {0, 1, 2, 3, 3, 3, 5, 6};
  const int row = random_.Chance(80) ? random_.Between(1, now_.lines + 1) : random_.Between(1, 14);
  Act("dobleclic " + Cell(row, kColumns[random_.Below(std::size(kColumns))]));
}

void RandomUser::TypeInEditor() {
  std::string text = now_.column == 3 ? TypedQuantity() : TypedProduct();
  if (random_.Chance(75)) text += "\n";
  if (random_.Chance(20)) text += TypedQuantity() + "\n";
  Type(text);
}

void RandomUser::TypeQuantity() {
  Type(TypedQuantity());
  if (random_.Chance(60)) Key("Enter");
}

void RandomUser::KeyInEditor() {
  static constexpr const char* kKeys[] = {
      "Arriba",        "Abajo",  "Izquierda", "Derecha",   "Enter",           "Esc",
      "Supr",          "Inicio", "Fin",       "Retroceso", "Mayus+Izquierda", "Ctrl+A",
      "Ctrl+C",        "Ctrl+V", "Ctrl+X",    "Ctrl+Z",    "Mayus+Insertar",  "Mayus+Supr",
      "Ctrl+Insertar", "RePag",  "AvPag",     "Tab",       "Mayus+Tab",       "Insertar"};
  for (int keys = random_.Between(1, 3); keys > 0; --keys) Key(OneOf(kKeys));
}

void RandomUser::RepeatProduct() {
  const std::string code = LineCode();
  if (code.empty()) return;
  if (!Act("dobleclic " + Cell(now_.lines + random_.Between(0, 1), 0))) return;
  Type(code + "\n");
}

void RandomUser::ClickCell() {
  const std::string grid = Cell(random_.Between(0, now_.lines + 2), random_.Between(0, 6));
  if (!Act("clic " + grid)) return;
  if (random_.Chance(20)) Act("clic " + grid);
}

void RandomUser::ClickAnywhere() {
  const auto controls = ControlCatalogue();
  const std::string name = controls[random_.Below(controls.size())].FullName();
  Act((random_.Chance(80) ? "clic " : "dobleclic ") + name);
}

void RandomUser::FocusAnywhere() {
  static constexpr const char* kStops[] = {
      "MSFProductos", "TxtEmpleado", "PicDatos",        "MkFecha",       "CmdEmpl",      "TxtFechaHora",
      "TxtMSF",       "Calendario",  "ScrollProductos", "BtnAnuloSuper", "PicServicios", "PicCalendario"};
  Act("foco " + OneOf(kStops));
}

void RandomUser::KeyAnywhere() {
  static constexpr const char* kKeys[] = {
      "Tab",   "Mayus+Tab", "Enter",     "Esc",  "Izquierda", "Arriba", "Derecha", "Abajo", "F3",       "F12",
      "Alt+N", "Ctrl+S",    "Retroceso", "Supr", "Inicio",    "Fin",    "RePag",   "AvPag", "Alt+Abajo"};
  for (int keys = random_.Between(1, 3); keys > 0; --keys) Key(OneOf(kKeys));
  if (random_.Chance(15)) Type("x 1");
}

void RandomUser::KeyInGrid() {
  static constexpr const char* kKeys[] = {"Izquierda", "Derecha",    "Arriba",      "Abajo", "Inicio",
                                          "Fin",       "RePag",      "AvPag",       "Enter", "Ctrl+Inicio",
                                          "Ctrl+Fin",  "Ctrl+Abajo", "Mayus+Abajo", "Tab",   "Supr"};
  if (!Act("foco MSFProductos")) return;
  for (int keys = random_.Between(1, 4); keys > 0; --keys) Key(OneOf(kKeys));
}

void RandomUser::Search() {
  if (random_.Chance(50)) Act("clic " + Cell(random_.Between(1, now_.lines + 1), random_.Between(0, 3)));
  Click("LblBuscar");
}

void RandomUser::Delete() {
  if (random_.Chance(60)) Act("clic " + Cell(random_.Between(1, now_.lines + 1), random_.Between(0, 3)));
  Click("LblBorrar");
}

void RandomUser::Save() {
  if (!Click(random_.Chance(90) ? "LblGuardar" : "LblGuardar(0)")) return;
  LookAtStore(script_, branch_);
}

void RandomUser::Cancel() {
  Click("LblCancelar");
}

void RandomUser::ChangeStylist() {
  static constexpr const char* kWays[] = {"clic CmdEmpl", "clic TxtEmpleado", "foco TxtEmpleado",
                                          "clic MSFProductos"};
  Act(OneOf(kWays));
}

void RandomUser::EnterSupervisor() {
  if (!Click("LblNuevo")) return;
  LookAround();
  if (now_.supervisor) ChangeDay();
}

void RandomUser::LeaveSupervisor() {
  Click("BtnAnuloSuper");
}

void RandomUser::ChangeDay() {
  static constexpr const char* kFar[] = {"2026-12-25", "2026-09-01", "2027-01-01",
                                         "2026-11-01", "2026-08-19", "2027-02-28"};
  if (!now_.calendar && !Act(random_.Chance(50) ? "clic MkFecha" : "foco MkFecha")) return;
  std::string day = "2026-11-" + Number(10, 28);
  if (random_.Chance(8)) day = OneOf(kFar);
  if (!Act("dia " + day)) return;
  if (random_.Chance(50)) Key("Esc");
}

void RandomUser::KeyInCalendar() {
  static constexpr const char* kKeys[] = {"Izquierda", "Derecha", "Arriba", "Abajo", "Enter", "Esc",
                                          "RePag",     "AvPag",   "Inicio", "Fin",   "Tab",   "Ctrl+RePag"};
  if (!Act("foco Calendario")) return;
  for (int keys = random_.Between(1, 3); keys > 0; --keys) Key(OneOf(kKeys));
}

void RandomUser::Close() {
  if (random_.Chance(85)) {
    Click("Barra1 cerrar");
  } else {
    Key("Alt+F4");
  }
}

void RandomUser::Minimise() {
  Click("Barra1 minimizar");
}

void RandomUser::FunctionKey() {
  if (random_.Chance(50)) {
    if (random_.Chance(70)) script_.Do(random_.Chance(60) ? "puesto reconectar" : "puesto cerrar");
    Key("F1");
    return;
  }
  if (random_.Chance(70)) {
    const std::string branch = SomeRow(script_, random_, "Sucursal", "Sucursales");
    const bool chooses = !branch.empty() && random_.Chance(70);
    script_.Do(chooses ? "sesion " + Quoted(branch) + " caja" + Number(1, 9) + " tarde" : "sesion cancelar");
  }
  if (Key("F2")) branch_ = script_.Value("Form.CodSucursal").substr(0, 2);
}

}  // namespace orvendal
