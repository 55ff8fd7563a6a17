// What happens around the screen of a random script: calls of the host, the clock, the store.

#include "tests/support/random_user.h"

namespace orvendal {

void RandomUser::SetStage() {
  static constexpr const char* kDisplays[] = {"pantalla 800 600", "pantalla 1024 768", "pantalla 1600 1200",
                                              "pantalla 1024 600"};
  static constexpr const char* kBases[] = {"base 15360 11520", "base 12000 9000", "base 15360 11505"};
  static constexpr const char* kClocks[] = {"reloj 2026-11-16 09:00:00", "reloj 2026-11-15 23:59:59",
                                            "reloj 2026-11-16", "reloj 2026-11-17 08:30",
                                            "reloj 2028-02-29 12:00:00"};
  if (random_.Chance(15)) Act(OneOf(kDisplays));
  if (random_.Chance(10)) Act(OneOf(kBases));
  if (random_.Chance(30)) Act(OneOf(kClocks));
  if (random_.Chance(50)) Call();
}

void RandomUser::Call() {
  static constexpr const char* kOdd[] = {"99", "01ABC", "0", "\"\"", "x'", "ñ1"};
  const std::string number = Number(1, 12);
  const std::string branch = random_.Chance(85) ? std::string(2 - number.size(), '0') + number : OneOf(kOdd);
  if (!Act("orvendal " + branch + " caja" + Number(1, 3) + (random_.Chance(50) ? " mañana" : " tarde")))
    return;
  const std::string taken = script_.Value("Form.CodSucursal").substr(0, 2);
  if (!taken.empty() && taken.find_first_of("'\\") == std::string::npos) branch_ = taken;
}

void RandomUser::MoveClock() {
  const std::string hour = Number(10, 23);
  std::string day = "2026-11-16";
  if (random_.Chance(40)) day = "2026-11-" + Number(17, 30);
  Act("reloj " + day + " " + hour + ":" + Number(10, 59) + ":" + Number(10, 59));
}

void RandomUser::FailStore() {
  static constexpr const char* kErrors[] = {"-2147217887 \"Valor no admitido\"",
                                            "-2147467259 \"Base de datos bloqueada\"",
                                            "3709 \"Conexión cerrada\"", "13 \"No coinciden los tipos\""};
  const bool update = random_.Chance(55);
  const std::string nth = Number(1, update ? 3 : 6);
  if (!Act(std::string("fallo ") + (update ? "update " : "open ") + nth + " " + OneOf(kErrors))) return;
  if (random_.Chance(60)) Save();
}

// What other programs do to the store meanwhile.
void RandomUser::ChangeStore() {
  static constexpr const char* kStock[] = {"NULL", "2.5", "-3", "0", "123456789012", "'mucho'", "1e300"};
  static constexpr const char* kNames[] = {"NULL", "''", "'Peluquería «Ñ» de la Rambla'", "'d''Or'"};
  const std::string line = LineCode();
  const std::string code =
      "'" + (line.empty() || random_.Chance(30) ? SomeProductCode(script_, random_) : line) + "'";
  const std::string branch = "'" + branch_ + "'";
  const std::string employee = "'E0" + Number(10, 79) + "'";
  std::string statement;
  switch (random_.Below(9)) {
    case 0:
    case 1:
      statement = "UPDATE ProdSucStock SET Stock = " + OneOf(kStock) + " WHERE IdProducto = " + code;
      break;
    case 2:
      statement = "DELETE FROM Productos WHERE Codigo = " + code;
      break;
    case 3:
      statement = "UPDATE Productos SET Descripcion = " + OneOf(kNames) + " WHERE Codigo = " + code;
      break;
    case 4:
      statement = "UPDATE Empleados SET Nombre = " + OneOf(kNames) + " WHERE Codigo = " + employee;
      break;
    case 5:
      statement = "UPDATE Sucursales SET Nombre = " + OneOf(kNames) + " WHERE Sucursal = " + branch;
      break;
    case 6:
      statement = "INSERT INTO HistOrvendalcial VALUES (" + branch + ", '2026-11-" + Number(15, 20) +
                  " 00:00:00', " + code + ", 1, " + OneOf(kStock) + ", " + employee +
                  ", '2026-11-16 08:00:00', " + branch + ")";
      break;
    case 7:
      statement = "INSERT INTO Referencias VALUES ('84" + Number(10000, 99999) + "', " + code + ")";
      break;
    default:
      statement = "DELETE FROM ProdSucStock WHERE IdProducto = " + code;
  }
  Act("sql " + Quoted(statement));
}

// A store that refuses, or that lacks what it should have, until somebody sees to it.
void RandomUser::BreakStore() {
  static constexpr const char* kBreaks[] = {
      "CREATE TRIGGER Lleno BEFORE INSERT ON HistOrvendalcial BEGIN SELECT RAISE(ABORT, 'disco lleno'); END",
      "CREATE TRIGGER Fijo BEFORE DELETE ON HistOrvendalcial BEGIN SELECT RAISE(ABORT, 'solo lectura'); END",
      "CREATE TRIGGER Stock BEFORE UPDATE ON ProdSucStock BEGIN SELECT RAISE(ABORT, 'stock fijo'); END",
      "ALTER TABLE Empleados RENAME TO Estilistas",
      "ALTER TABLE ProdSucStock RENAME TO Existencias",
      "ALTER TABLE HistOrvendalcial ADD COLUMN Nota TEXT DEFAULT 'x'",
      "DROP TABLE Diario",
      "DELETE FROM Sucursales",
      "DELETE FROM Empleados",
      "DELETE FROM Productos"};
  static constexpr const char* kRepairs[] = {"DROP TRIGGER Lleno", "DROP TRIGGER Fijo", "DROP TRIGGER Stock",
                                             "ALTER TABLE Estilistas RENAME TO Empleados",
                                             "ALTER TABLE Existencias RENAME TO ProdSucStock"};
  if (!Act("sql " + Quoted(OneOf(kBreaks)))) return;
  LookAround();
  if (now_.open && !now_.minimised) {
    if (random_.Chance(50)) {
      Save();
    } else {
      CountLine();
    }
  } else {
    Call();
  }
  if (random_.Chance(70)) {
    for (const char* repair : kRepairs) Act("sql " + Quoted(repair));
  }
}

// A script may end at a line that cannot be done; what it says of it counts, too.
void RandomUser::Wrong() {
  static constexpr const char* kLines[] = {"espera TxtEmpleado.Text \"nadie\"",
                                           "clic TxtCodigo",
                                           "clic Nada",
                                           "tecla Ninguna",
                                           "clic LblNuevo",
                                           "clic Calendario",
                                           "dia 2026-11-18",
                                           "mostrar TxtMSF.Nada",
                                           "clic MSFProductos 99 0",
                                           "clic MSFProductos 1 4",
                                           "pantalla 0 5",
                                           "orden",
                                           "teclas \"abierto",
                                           "sql \"SELECT\"",
                                           "clic LblGuardar"};
  script_.EndWith(OneOf(kLines));
}

}  // namespace orvendal
