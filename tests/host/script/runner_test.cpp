// What stops a script, with which sentence and exit code, and what a script shows.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "host/script/parser.h"
#include "host/script/runner.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

class Script : public testing::Test {
 protected:
  int Run(const std::string& text) {
    std::istringstream script(text);
    std::ostringstream shown;
    std::ostringstream told;
    const int exit_code = RunScript(script, options, save_picture, shown, told, script_folder);
    output = shown.str();
    errors = told.str();
    return exit_code;
  }
  // The sentence that stops a script whose last line is this one.
  std::string StopAt(const std::string& last, const std::string& before = "orvendal 02 1 1\n") {
    EXPECT_EQ(Run(before + last + "\nmostrar foco\n"), ScriptStop::kCannotGoOn) << output;
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::string number = "línea " + std::to_string(line) + ": ";
    EXPECT_EQ(errors.substr(0, number.size()), number);
    if (errors.size() <= number.size()) return {};
    EXPECT_EQ(errors.find('\n'), errors.size() - 1);
    return errors.substr(number.size(), errors.size() - number.size() - 1);
  }

  // Where many scripts run and none of them counts: a chain is made once only.
  void UseStoreOnFile() {
    options.store = store_folder / "cadena.db";
    options.create = true;
  }

  TemporaryFolder store_folder;
  Options options;
  SavePicture save_picture;
  std::filesystem::path script_folder;
  std::string output;
  std::string errors;
};

TEST_F(Script, ALineWithANulIsToldWhole) {
  const std::string line("reloj 2026-11-16\0 09:00", 23);
  EXPECT_TRUE(StopAt(line, "").ends_with(" no es una fecha como 2026-11-16 10:30:00")) << errors;
}

TEST_F(Script, AnEmptyScriptShowsNothing) {
  EXPECT_EQ(Run(""), 0);
  EXPECT_EQ(Run("\xEF\xBB\xBF# with a mark at its start\r\n\r\n"), 0);
  EXPECT_EQ(output + errors, "");
}

TEST_F(Script, AnExpectationThatFailsGivesBothValuesAndExitCodeOne) {
  EXPECT_EQ(Run("orvendal 02 1 1\n\nespera LblGuardar(0).Caption \"Salvar\"\nmostrar foco\n"), 1);
  EXPECT_EQ(output, "orvendal -> False\n");
  EXPECT_EQ(errors, "línea 3: se esperaba LblGuardar(0).Caption = \"Salvar\" y es \"Guardar\"\n");
}

TEST_F(Script, UnknownCommandsAndWrongArgumentsStopIt) {
  EXPECT_EQ(StopAt("guardar"), "no existe la orden guardar");
  EXPECT_EQ(StopAt("clic"), "se escribe: clic CONTROL [FILA COL] o clic Barra1 minimizar|cerrar");
  EXPECT_EQ(StopAt("dobleclic Barra1 cerrar"), "se escribe: dobleclic CONTROL [FILA COL]");
  EXPECT_EQ(StopAt("clic MSFProductos 1 0 0"),
            "se escribe: clic CONTROL [FILA COL] o clic Barra1 minimizar|cerrar");
  EXPECT_EQ(StopAt("clic MSFProductos uno 0"), "«uno» no es un número entero");
  EXPECT_EQ(StopAt("respuesta quizás"), "no existe la respuesta quizás");
  EXPECT_EQ(StopAt("fallo close 1 5 \"x\""), "se escribe: fallo update|open N NUMERO \"texto\"");
  EXPECT_EQ(StopAt("fallo open 0 5 \"x\""), "«0» no es un número mayor que cero");
  EXPECT_EQ(StopAt("puesto abrir"), "se escribe: puesto reconectar|cerrar");
  EXPECT_EQ(StopAt("sesion 01 1"), "se escribe: sesion SUC PUESTO TURNO o sesion cancelar");
}

TEST_F(Script, NumbersThatNoScreenCanTakeStopIt) {
  EXPECT_EQ(StopAt("lineas 2000000000"), "una pantalla tiene como mucho 1000000 filas");
  EXPECT_EQ(StopAt("pon MSFProductos.Rows 100000000"), "no existe la propiedad MSFProductos.Rows");
  EXPECT_EQ(StopAt("raton pulsa MSFProductos nan 1"), "«nan» no es un número");
  EXPECT_EQ(StopAt("rueda MSFProductos 1 1 1e300"), "«1e300» no es un número");
  EXPECT_EQ(StopAt("rueda MSFProductos 1 1 900000000 1"),
            "se escribe: rueda CONTROL X Y LINEAS [LINEAS_DE_UNA_MUESCA]");
  EXPECT_EQ(StopAt("tecla Enter car1114112"), "no existe el carácter car1114112");
}

TEST_F(Script, DatesThatAreNoneStopIt) {
  for (const char* date :
       {"16/11/2026", "2026-02-30", "2026-11-16T10:30", "\"2026-11-16 25:00:00\"", "hoy"}) {
    EXPECT_NE(StopAt(std::string("reloj ") + date).find("no es una fecha como"), std::string::npos) << date;
  }
  EXPECT_EQ(Run("reloj 2026-11-16\nreloj 2026-11-16 10:30\nreloj \"2026-11-16 10:30:00\"\n"), 0) << errors;
}

TEST_F(Script, ControlsAndPropertiesThatThereAreNotStopIt) {
  EXPECT_EQ(StopAt("clic LblSalvar"), "no existe el control LblSalvar");
  EXPECT_EQ(StopAt("mostrar LblSalvar.Caption"), "no existe el control LblSalvar");
  EXPECT_EQ(StopAt("mostrar LblNuevo.Text"), "no existe la propiedad LblNuevo.Text");
  EXPECT_EQ(StopAt("mostrar Form.Nada"), "no existe la propiedad Form.Nada");
  EXPECT_EQ(StopAt("mostrar MSFProductos.TextMatrix(1)"),
            "no existe la propiedad MSFProductos.TextMatrix(1)");
  EXPECT_EQ(StopAt("mostrar MSFProductos.TextMatrix(a,b)"),
            "no existe la propiedad MSFProductos.TextMatrix(a,b)");
  EXPECT_EQ(StopAt("mostrar MSFProductos.TextMatrix(99,0)"),
            "no se puede leer MSFProductos.TextMatrix(99,0): error 381: Subscript out of range");
  EXPECT_EQ(StopAt("mostrar Lineas"), "falta la propiedad: se escribe CONTROL.PROPIEDAD");
  EXPECT_EQ(StopAt("mostrar Shape1.Font.Size"),
            "no se puede leer Shape1.Font.Size: error 438: Object doesn't support this property or method");
}

TEST_F(Script, WhatNoHandCouldDoStopsIt) {
  EXPECT_EQ(StopAt("clic LblBuscar"), "LblBuscar(1) está deshabilitado");
  EXPECT_EQ(StopAt("clic TxtMSF"), "TxtMSF está oculto");
  EXPECT_EQ(StopAt("clic Calendario"), "Calendario está oculto");
  EXPECT_EQ(StopAt("clic PicDatos"), "PicDatos está tapado por MSFProductos");
  EXPECT_EQ(StopAt("clic MSFProductos 13 0"), "MSFProductos no tiene la celda 13 0");
  EXPECT_EQ(StopAt("clic MSFProductos 1 -1"), "MSFProductos no tiene la celda 1 -1");
  EXPECT_EQ(StopAt("clic MSFProductos 1 4"), "la columna 4 de MSFProductos está oculta");
  EXPECT_EQ(StopAt("clic LblNuevo 1 0"), "LblNuevo(1) no tiene celdas");
  EXPECT_EQ(StopAt("clic Barra1 maximizar"), "Barra1 no tiene el botón maximizar");
  EXPECT_EQ(StopAt("clic LblNuevo cerrar"), "LblNuevo(1) no tiene el botón cerrar");
  EXPECT_EQ(StopAt("dia 2026-11-20"), "el calendario no está abierto");
  EXPECT_EQ(StopAt("foco TxtMSF"), "TxtMSF no puede tener el foco");
  EXPECT_EQ(StopAt("foco LblNuevo"), "LblNuevo(1) no puede tener el foco");
  EXPECT_EQ(StopAt("tecla Intro"), "no existe la tecla Intro");
  EXPECT_EQ(StopAt("tecla F13"), "no existe la tecla F13");
}

TEST_F(Script, WithoutAScreenMostCommandsStopIt) {
  for (const char* line :
       {"clic LblNuevo", "tecla F1", "teclas \"a\"", "foco MSFProductos", "mostrar lineas", "mostrar foco",
        "mostrar Form.Width", "espera Form.Width 1", "dia 2026-11-20", "captura x.png"}) {
    EXPECT_EQ(StopAt(line, ""), "la pantalla no está abierta") << line;
  }
  EXPECT_EQ(Run("mostrar mensajes\nmostrar sentencias\nmostrar biblioteca\n"), 0) << errors;
  EXPECT_EQ(output, "");
}

TEST_F(Script, ClosingTheScreenTakesItAway) {
  EXPECT_EQ(StopAt("mostrar foco", "orvendal 02 1 1\nclic Barra1 cerrar\n"), "la pantalla no está abierta");
}

TEST_F(Script, DisplayAndReferenceSizeComeBeforeTheCall) {
  EXPECT_EQ(StopAt("pantalla 800 600"), "pantalla va antes de orvendal");
  EXPECT_EQ(StopAt("base 15360 11520"), "base va antes de orvendal");
  EXPECT_EQ(StopAt("pantalla 800 16385", ""), "una pantalla tiene como mucho 16384 píxeles por lado");
  EXPECT_EQ(Run("orvendal 02 1 1\nclic Barra1 cerrar\npantalla 800 600\norvendal 02 1 1\n"
                "mostrar Form.Width\n"),
            0)
      << errors;
  EXPECT_EQ(output, "orvendal -> False\norvendal -> False\nForm.Width = 12000\n");
}

TEST_F(Script, AnEmployeeThatTheStoreDoesNotKnowNeedsAName) {
  EXPECT_EQ(StopAt("empleado X9"), "no existe el empleado X9");
  EXPECT_EQ(Run("orvendal 02 1 1\nempleado X9 \"Ana\"\nfoco TxtEmpleado\nmostrar TxtEmpleado.Text\n"), 0);
  EXPECT_NE(output.find("TxtEmpleado.Text = Ana\n"), std::string::npos) << output;
}

TEST_F(Script, AnAnswerThatIsNoButtonOfTheMessageStopsIt) {
  const std::string lines =
      "orvendal 01 1 1\nempleado E001\nclic MSFProductos 1 1\nclic LblBorrar\nrespuesta aceptar\n";
  EXPECT_EQ(StopAt("clic Barra1 cerrar", lines),
            "la respuesta preparada no es un botón del mensaje \"Se ha encontrado Modificaciones sin "
            "Guardar,\\r\\n¿Guardar Modificaciones?\"");
}

TEST_F(Script, AMessageWithOneButtonTakesAnAcceptanceAndNeedsNone) {
  EXPECT_EQ(Run("orvendal 01 1 1\nrespuesta aceptar\nempleado E001\nclic MSFProductos 1 1\n"
                "clic LblBorrar\nrespuesta no\nclic Barra1 cerrar\nmostrar mensajes\n"),
            0)
      << errors;
  EXPECT_NE(output.find("-> 7\n"), std::string::npos) << output;
}

TEST_F(Script, SqlShowsRowsSeparatedByTabsAndRunsSeveralStatements) {
  EXPECT_EQ(Run("sql \"CREATE TABLE T (a, b); INSERT INTO T VALUES (1, 'x\ty'), (2.5, NULL);\"\n"
                "sql \"SELECT a, b FROM T ORDER BY a; SELECT count(*) FROM T\"\n"),
            0)
      << errors;
  EXPECT_EQ(output, "1\tx\\ty\n2.5\t\n2\n");
  EXPECT_EQ(Run("sql \";;SELECT 1;; -- nada\\n;SELECT 2;\"\n"), 0) << errors;
  EXPECT_EQ(output, "1\n2\n");
  EXPECT_EQ(StopAt("sql \"SELECT nada FROM T\"", "").substr(0, 41),
            "la base de datos no admite la sentencia: ");
}

TEST_F(Script, WhatASqlTextHoldsIsNeverObeyedByTheTerminal) {
  EXPECT_EQ(
      Run("sql \"SELECT 'a' || char(27) || '[2J' || char(155) || char(8238) || char(0) || CAST(x'ff' AS "
          "TEXT)\"\n"
          "orvendal 02 1 1\nempleado E001 \"\x1b]0;x\x07\"\nclic MSFProductos 1 0\nmostrar "
          "TxtEmpleado.Text\nmostrar biblioteca\n"),
      0)
      << errors;
  EXPECT_TRUE(output.starts_with("a\\x1b[2J\\x9b\\u{202e}\\x00\\xff\n")) << output;
  EXPECT_NE(output.find("TxtEmpleado.Text = \\x1b]0;x\\x07\n"), std::string::npos) << output;
  EXPECT_EQ(output.find('\x1b'), std::string::npos);
  EXPECT_EQ(output.find('\x07'), std::string::npos);
}

TEST_F(Script, NoReasonToStopIsObeyedByTheTerminalOrBreaksItsLine) {
  UseStoreOnFile();
  EXPECT_EQ(StopAt("clic \x1b[2J"), "no existe el control \\x1b[2J");
  EXPECT_EQ(StopAt("\"una\\norden\""), "no existe la orden una\\norden");
  EXPECT_EQ(Run("orvendal 02 1 1\nespera LblGuardar(0).Caption \"\x1b\"\n"), 1);
  EXPECT_EQ(errors, "línea 2: se esperaba LblGuardar(0).Caption = \"\\x1b\" y es \"Guardar\"\n");
}

TEST_F(Script, ATableThatIsGoneStopsItWithASentence) {
  EXPECT_EQ(StopAt("empleado E001", "sql \"DROP TABLE Empleados\"\n"),
            "no se puede leer el empleado E001: no such table: Empleados");
}

TEST_F(Script, AnExceptionOfAnyKindStopsItWithASentence) {
  const TemporaryFolder folder;
  const auto stop = [&](std::function<void()> raise) {
    save_picture = [raise](Form&, const std::string&) {
      raise();
      return true;
    };
    const std::string sentence = StopAt("captura \"" + (folder / "p.png") + "\"");
    EXPECT_FALSE(std::filesystem::exists(folder / "p.png"));
    return sentence;
  };
  script_folder = folder.Path();
  UseStoreOnFile();
  EXPECT_EQ(stop([] { throw RuntimeError(6); }), "error 6: Overflow");
  EXPECT_EQ(stop([] { throw std::bad_alloc(); }), "no hay memoria suficiente");
  EXPECT_EQ(stop([] { throw std::runtime_error("esto"); }), "error inesperado: esto");
  EXPECT_EQ(stop([] { throw 1; }), "error inesperado");
}

TEST_F(Script, AReadingThatBreaksOffStopsIt) {
  // One line, and then a disk that fails.
  class Broken final : public std::streambuf {
   public:
    Broken() { setg(line_.data(), line_.data(), line_.data() + line_.size()); }

   protected:
    int_type underflow() override { throw std::runtime_error("no more of it"); }

   private:
    std::string line_ = "sql \"SELECT 1\"\nsql \"SELE";
  };
  Broken buffer;
  std::istream script(&buffer);
  std::ostringstream shown;
  std::ostringstream told;
  EXPECT_EQ(RunScript(script, options, nullptr, shown, told), 2);
  EXPECT_EQ(shown.str(), "1\n");
  EXPECT_EQ(told.str(), "línea 1: el guion no se puede leer más allá de esta línea\n");
}

TEST_F(Script, ADialogThatTheStoreKeepsFromComingUpLeavesItsAnswerToNoOther) {
  EXPECT_EQ(Run("orvendal 02 1 1\nsql \"ALTER TABLE Sucursales RENAME TO S\"\nsesion 03 1 1\ntecla F2\n"
                "sql \"ALTER TABLE S RENAME TO Sucursales\"\npuesto reconectar\ntecla F1\nsesion 04 1 1\n"
                "tecla F2\nmostrar Form.CodSucursal\n"),
            0)
      << errors;
  EXPECT_NE(output.find("Form.CodSucursal = 04\n"), std::string::npos) << output;
}

TEST_F(Script, LineBreaksInsideTextsShowAsEscapes) {
  EXPECT_EQ(Run("fallo open 1 -2147467259 \"una\\r\\ndos\"\norvendal 02 1 1\nsql \"SELECT 'a\\r\\nb'\"\n"),
            0);
  EXPECT_EQ(output, "error -2147467259: una\\r\\ndos\na\\r\\nb\n");
}

TEST_F(Script, ValuesReadTheSameInEveryRegion) {
  options.region = &Region::English();
  EXPECT_EQ(Run("orvendal 02 1 1\n"
                "mostrar LblNuevo(0).Font.Size\nmostrar LblNuevo(0).Font.Bold\nmostrar Calendario.Value\n"
                "mostrar PicDatos.BackColor\nmostrar PicServicios.BackColor\nmostrar Calendario.Left\n"
                "mostrar MSFProductos.rows\nmostrar TxtMSF.Text\n"),
            0)
      << errors;
  EXPECT_EQ(output,
            "orvendal -> False\nLblNuevo(0).Font.Size = 14.25\nLblNuevo(0).Font.Bold = True\n"
            "Calendario.Value = 2026-11-16\nPicDatos.BackColor = 0xD3E8E9\n"
            "PicServicios.BackColor = 0x80000005\nCalendario.Left = -10\nMSFProductos.rows = 13\n"
            "TxtMSF.Text = \n");
}

TEST_F(Script, ThePictureIsTheScreenAsItStands) {
  const TemporaryFolder folder;
  script_folder = folder.Path();
  UseStoreOnFile();
  const std::string file = folder / "pantalla.png";
  std::string path;
  bool written = true;
  save_picture = [&](Form& form, const std::string& place) {
    EXPECT_EQ(form.Name(), "FrmOrvendalciales");
    EXPECT_TRUE(form.IsLoaded());
    path = place;
    return written;
  };
  EXPECT_EQ(Run("orvendal 02 1 1\ncaptura \"" + file + "\"\n"), 0) << errors;
  EXPECT_EQ(path, file);
  EXPECT_EQ(output, "orvendal -> False\n");
  std::filesystem::remove(file);
  written = false;
  EXPECT_EQ(StopAt("captura \"" + file + "\""), "no se puede escribir la imagen " + file);
  EXPECT_FALSE(std::filesystem::exists(file));
  save_picture = nullptr;
  EXPECT_EQ(StopAt("captura pantalla.png"), "no se puede escribir la imagen pantalla.png");
}

TEST_F(Script, AStoreOnFileKeepsWhatTheScriptDid) {
  const TemporaryFolder folder;
  options.store = folder / "cadena.db";
  EXPECT_EQ(StopAt("orvendal 01 1 1", ""),
            "No existe la base de datos " + (folder / "cadena.db") +
                ". Compruebe el nombre; con --crear se hace una nueva, con una cadena de muestra.");
  EXPECT_FALSE(std::filesystem::exists(folder / "cadena.db"));
  options.create = true;
  EXPECT_EQ(Run("sql \"INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('77', 'Prueba')\"\n"), 0) << errors;
  EXPECT_EQ(Run("orvendal 77 1 1\nmostrar LblSucursal.Caption\n"), 0) << errors;
  EXPECT_EQ(output, "orvendal -> False\nLblSucursal.Caption =   Sucursal 77 Prueba  \n");
  // The workstation's panel opens the file anew.
  EXPECT_EQ(Run("orvendal 77 1 1\npuesto reconectar\ntecla F1\nclic LblCancelar\n"), 0) << errors;
  EXPECT_EQ(output, "orvendal -> False\n");
}

TEST_F(Script, AStoreThatCannotBeOpenedStopsIt) {
  const TemporaryFolder folder;
  options.store = folder / "no/hay/cadena.db";
  EXPECT_EQ(StopAt("orvendal 01 1 1", ""),
            "No existe la carpeta " + (folder / "no/hay") + " de la base de datos.");
}

TEST_F(Script, TheSampleChainEndsAtTheClocksDay) {
  EXPECT_EQ(Run("reloj 2027-03-01 08:00:00\nsql \"SELECT max(Fecha) FROM HistOrvendalcial\"\n"), 0);
  EXPECT_EQ(output, "2027-03-01 00:00:00\n");
}

TEST_F(Script, AFileThatCannotBeReadIsToldByItsName) {
  const TemporaryFolder folder;
  std::ostringstream shown;
  std::ostringstream told;
  for (const std::string& path : {folder / "nada.guion", folder.Path()}) {
    told.str("");
    EXPECT_EQ(RunScriptFile(path, options, nullptr, shown, told), 2);
    EXPECT_EQ(told.str(), "orvendal: no se puede leer el guion " + path + "\n");
  }
  std::ofstream(folder / "uno.guion") << "sql \"SELECT 1\"";
  EXPECT_EQ(RunScriptFile(folder / "uno.guion", options, nullptr, shown, told), 0);
  EXPECT_EQ(shown.str(), "1\n");
}

}  // namespace
}  // namespace orvendal
