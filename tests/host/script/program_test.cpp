// Scripts run by the program itself, on a machine without a display.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "tests/host/started_program.h"

namespace orvendal {
namespace {

class ScriptProgram : public StartedProgram {
 protected:
  int Run(const std::string& words, const std::string& language = "C.UTF-8") {
    return RunAfter("", words, language);
  }
  int RunIn(const std::string& place, const std::string& words) {
    return RunAfter("cd '" + place + "' && ", words);
  }
  // Runs it after other commands of the shell, which begin in the folder.
  int RunAfter(const std::string& before, const std::string& words, const std::string& language = "C.UTF-8") {
    return RunInShell("cd '" + folder.Path() + "' && " + before +
                      "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u LC_ALL "
                      "-u LC_MESSAGES -u XDG_RUNTIME_DIR LANG=" +
                      language + " HOME='" + folder.Path() + "' '" ORVENDAL_PROGRAM "' " + words);
  }
  void Write(const std::string& name, const std::string& text) { std::ofstream(folder / name) << text; }
};

TEST_F(ScriptProgram, PaintsThePictureInTheSizeOfTheScreen) {
  Write("a.guion", "pantalla 800 600\norvendal 01 1 1\ncaptura uno.png\ncaptura dos.png\n");
  ASSERT_EQ(Run("guion a.guion"), 0) << errors;
  EXPECT_EQ(output, "orvendal -> False\n");
  EXPECT_EQ(errors, "");
  const std::string png = Content("uno.png");
  ASSERT_GT(png.size(), 24U);
  EXPECT_EQ(png.substr(1, 3), "PNG");
  EXPECT_EQ(png.substr(16, 8), std::string("\x00\x00\x03\x20\x00\x00\x02\x58", 8));
  EXPECT_EQ(png, Content("dos.png"));
}

TEST_F(ScriptProgram, ShowsTheSameWhateverTheUsersLanguage) {
  Write("a.guion", "orvendal 02 1 1\nmostrar LblFecha.Caption\nclic LblGuardar\n");
  EXPECT_EQ(Run("guion a.guion", "ca_ES.UTF-8"), 2);
  EXPECT_EQ(output, "orvendal -> False\nLblFecha.Caption =   Fecha\n");
  EXPECT_EQ(errors, "línea 3: LblGuardar(1) está deshabilitado\n");
  EXPECT_EQ(Run("guion a.guion --idioma ca"), 2);
  EXPECT_EQ(output, "orvendal -> False\nLblFecha.Caption =   Data\n");
}

TEST_F(ScriptProgram, WorksInMemoryUnlessAStoreIsNamed) {
  Write("a.guion", "sql \"DELETE FROM Empleados\"\nsql \"SELECT count(*) FROM Empleados\"\n");
  EXPECT_EQ(Run("guion a.guion"), 0) << errors;
  EXPECT_EQ(output, "0\n");
  EXPECT_FALSE(std::filesystem::exists(folder / ".local"));
  Write("b.guion", "sql \"SELECT count(*) FROM Empleados\"\n");
  EXPECT_EQ(Run("guion b.guion"), 0) << errors;
  EXPECT_EQ(output, "80\n");
  EXPECT_EQ(Run("guion a.guion --db cadena.db --crear"), 0) << errors;
  EXPECT_EQ(Run("guion b.guion --db cadena.db --dialecto jet"), 0) << errors;
  EXPECT_EQ(output, "0\n");
}

TEST_F(ScriptProgram, AMistypedStoreIsToldAndNotMade) {
  Write("a.guion", "sql \"SELECT 1\"\n");
  EXPECT_EQ(Run("guion a.guion --db cadena.bd"), 2);
  EXPECT_EQ(errors, "línea 1: No existe la base de datos " + (folder / "cadena.bd") +
                        ". Compruebe el nombre; con --crear se hace una nueva, con una cadena de muestra.\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "cadena.bd"));
}

TEST_F(ScriptProgram, APictureNeverReplacesAFileNorLeavesTheFolders) {
  std::filesystem::create_directory(folder / "guiones");
  std::filesystem::create_directory(folder / "aqui");
  Write("victima.png", "intacta");
  Write("aqui/hay.png", "intacta");
  std::filesystem::create_symlink("..", folder / "aqui/fuera");
  std::filesystem::create_symlink("../nueva.png", folder / "aqui/enlace.png");
  const std::string script =
      "'" + (folder / "guiones/a.guion") + "' --crear --db '" + (folder / "x.db") + "'";
  for (const std::string& name :
       {std::string("hay.png"), folder / "victima.png", std::string("../victima.png"),
        std::string("fuera/victima.png"), std::string("../nueva.png"), std::string("fuera/nueva.png"),
        std::string("enlace.png"), folder / "nueva.png", std::string("/dev/null"), std::string("nota.txt"),
        std::string("png"), std::string("no/hay.png"), std::string("../guiones/../nueva.png")}) {
    Write("guiones/a.guion", "orvendal 01 1 1\ncaptura \"" + name + "\"\n");
    EXPECT_EQ(RunIn("aqui", "guion " + script), 2) << name;
    EXPECT_NE(errors.find(name), std::string::npos) << errors;
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
  }
  EXPECT_EQ(Content("victima.png"), "intacta");
  EXPECT_EQ(Content("aqui/hay.png"), "intacta");
  EXPECT_FALSE(std::filesystem::exists(folder / "nueva.png"));
  Write("guiones/a.guion", "orvendal 01 1 1\ncaptura nueva.png\ncaptura ../guiones/otra.png\ncaptura \"" +
                               (folder / "aqui/tercera.png") + "\"\n");
  EXPECT_EQ(RunIn("aqui", "guion " + script), 0) << errors;
  for (const char* name : {"aqui/nueva.png", "guiones/otra.png", "aqui/tercera.png"}) {
    EXPECT_EQ(Content(name).substr(1, 3), "PNG") << name;
  }
}

TEST_F(ScriptProgram, APictureWhoseNameIsNoTextGoesToThatFileAndToNoOther) {
  Write("victima.png", "intacta");
  std::filesystem::create_symlink("victima.png", folder / "p\xef\xbf\xbd.png");
  Write("a.guion", "orvendal 01 1 1\ncaptura p\xff.png\n");
  EXPECT_EQ(Run("guion a.guion"), 0) << errors;
  EXPECT_EQ(Content("victima.png"), "intacta");
  EXPECT_EQ(Content("p\xff.png").substr(1, 3), "PNG");
}

TEST_F(ScriptProgram, APictureThatTheDiskDoesNotTakeIsToldAndLeavesNothing) {
  Write("a.guion", "orvendal 01 1 1\ncaptura p.png\n");
  EXPECT_EQ(RunAfter("ulimit -f 4 && ", "guion a.guion"), 2);
  EXPECT_EQ(errors, "línea 2: no se puede escribir la imagen p.png\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "p.png"));
}

// The sanitizers need open files themselves, and take a pipe that they do not get for a fault.
#ifndef __SANITIZE_ADDRESS__
TEST_F(ScriptProgram, APictureThatNothingCanPaintIsToldWithItsExitCode) {
  Write("a.guion", "orvendal 01 1 1\ncaptura p.png\n");
  bool told = false;
  // How many files are open before differs with who runs the test; one of the limits stops Qt at its start.
  for (int files = 5; files <= 12 && !told; ++files) {
    std::filesystem::remove(folder / "p.png");
    const int exit_code = RunAfter("ulimit -n " + std::to_string(files) + " && ", "guion a.guion");
    if (errors.find("shared libraries") != std::string::npos) continue;  // it has not even begun
    EXPECT_TRUE(exit_code == 2 || exit_code == 0) << files << " files, exit code " << exit_code;
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), exit_code == 0 ? 0 : 1) << errors;
    told = errors.starts_with("orvendal: ");
  }
  EXPECT_TRUE(told);
}
#endif

TEST_F(ScriptProgram, WhatCannotBeShownStopsItWithOneLine) {
  Write("a.guion", "sql \"SELECT 1\"\nsql \"SELECT 2\"\n");
  EXPECT_EQ(Run("guion a.guion >/dev/full"), 2);
  EXPECT_EQ(errors, "línea 1: no se puede escribir lo que muestra el guion\n");
  Write("b.guion",
        "sql \"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000) "
        "SELECT i FROM n\"\n");
  EXPECT_EQ(Run("guion b.guion | true"), 0);
  EXPECT_EQ(errors, "línea 1: no se puede escribir lo que muestra el guion\n");
}

TEST_F(ScriptProgram, AScriptThatCannotBeReadIsTold) {
  Write("a.guion", "sql \"SELECT 1\"\n");
  for (const char* name : {"/proc/self/mem", ".", "a.guion/b"}) {
    EXPECT_EQ(Run(std::string("guion ") + name), 2);
    EXPECT_EQ(errors, "orvendal: no se puede leer el guion " + std::string(name) + "\n");
  }
}

TEST_F(ScriptProgram, AFolderThatIsGoneIsTold) {
  Write("a.guion", "orvendal 01 1 1\ncaptura p.png\n");
  const std::string gone = "mkdir g && cd g && rmdir ../g && ";
  EXPECT_EQ(RunAfter(gone, "guion ../a.guion"), 2);  // which is nowhere
  EXPECT_EQ(RunAfter(gone, "guion '" + (folder / "a.guion") + "'"), 2);
  EXPECT_EQ(errors, "línea 2: ya no existe la carpeta actual: no se puede guardar la imagen p.png\n");
  EXPECT_EQ(RunAfter(gone, "guion '" + (folder / "a.guion") + "' --db x.db"), 2);
  EXPECT_EQ(errors,
            "línea 1: Ya no existe la carpeta actual: escriba la base de datos x.db con su ruta completa.\n");
}

TEST_F(ScriptProgram, GivesTheExitCodesOfScripts) {
  Write("a.guion", "orvendal 02 1 1\nespera Form.Width 1\n");
  EXPECT_EQ(Run("guion a.guion"), 1);
  EXPECT_EQ(Run("guion nada.guion"), 2);
  EXPECT_EQ(errors, "orvendal: no se puede leer el guion nada.guion\n");
  EXPECT_EQ(Run("guion"), 2);
}

}  // namespace
}  // namespace orvendal
