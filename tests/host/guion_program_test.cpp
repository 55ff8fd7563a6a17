// Scripts run by the program itself, on a machine without a display.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "tests/host/temporary_folder.h"

namespace orvendal {
namespace {

class ScriptProgram : public testing::Test {
 protected:
  int Run(const std::string& words, const std::string& language = "C.UTF-8") {
    const std::string command = "cd '" + folder.Path() +
                                "' && env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u LC_ALL "
                                "-u LC_MESSAGES -u XDG_RUNTIME_DIR LANG=" +
                                language + " HOME='" + folder.Path() + "' '" ORVENDAL_PROGRAM "' " + words +
                                " >out 2>err";
    const int status = std::system(command.c_str());
    output = Content("out");
    errors = Content("err");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  void Write(const std::string& name, const std::string& text) { std::ofstream(folder / name) << text; }
  std::string Content(const std::string& name) const {
    std::ifstream file(folder / name, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }

  TemporaryFolder folder;
  std::string output;
  std::string errors;
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
  EXPECT_EQ(Run("guion a.guion --db cadena.db"), 0) << errors;
  EXPECT_EQ(Run("guion b.guion --db cadena.db --dialecto jet"), 0) << errors;
  EXPECT_EQ(output, "0\n");
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
