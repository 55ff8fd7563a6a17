// The program itself, started as a user would, on a machine without a display.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "tests/host/temporary_folder.h"

namespace orvendal {
namespace {

class Program : public testing::Test {
 protected:
  // Runs it with those words; gives the exit code.
  int Run(const std::string& words) {
    const std::string command =
        "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u LC_ALL -u LC_MESSAGES "
        "LANG=C.UTF-8 XDG_DATA_HOME='" +
        folder.Path() + "' '" ORVENDAL_PROGRAM "' " + words + " >'" + (folder / "out") + "' 2>'" +
        (folder / "err") + "'";
    const int status = std::system(command.c_str());
    output = Content("out");
    errors = Content("err");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
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

TEST_F(Program, WritesAPictureAndTheDaysLinesWithoutADisplay) {
  const std::string picture = folder / "pantalla.png";
  ASSERT_EQ(Run("--captura '" + picture + "'"), 0) << errors;
  EXPECT_EQ(errors, "");
  EXPECT_EQ(Content("pantalla.png").substr(1, 3), "PNG");
  ASSERT_FALSE(output.empty());
  const std::string first = output.substr(0, output.find('\n'));
  EXPECT_EQ(first.substr(0, 2), "1\t");
  EXPECT_EQ(std::count(first.begin(), first.end(), '\t'), 9);
  EXPECT_TRUE(std::filesystem::exists(folder / "orvendal/cadena.db"));
}

TEST_F(Program, ShowsTheSameDayWithEitherProvider) {
  const std::string picture = " --captura '" + (folder / "pantalla.png") + "'";
  ASSERT_EQ(Run("--dialecto jet" + picture), 0) << errors;
  const std::string jet = output;
  ASSERT_EQ(Run("--dialecto sqlserver" + picture), 0) << errors;
  EXPECT_FALSE(output.empty());
  EXPECT_EQ(output, jet);
}

TEST_F(Program, ABranchThatHasNotCountedTodayShowsNoLines) {
  EXPECT_EQ(Run("--sucursal 02 --captura '" + (folder / "p.png") + "'"), 0) << errors;
  EXPECT_EQ(output, "");
}

TEST_F(Program, ABranchThatThereIsNotIsToldAndTheScreenStillOpens) {
  EXPECT_EQ(Run("--sucursal ZZ --captura '" + (folder / "p.png") + "'"), 0);
  EXPECT_EQ(errors, "Error al cargar la sucursal\n");
}

TEST_F(Program, WrongUseIsOneLineAndExitCodeTwo) {
  EXPECT_EQ(Run("--nada"), 2);
  EXPECT_EQ(errors, "orvendal: No existe la opción --nada. La ayuda está en orvendal --help.\n");
  EXPECT_EQ(output, "");
}

TEST_F(Program, HelpGoesToStandardOutput) {
  EXPECT_EQ(Run("--help"), 0);
  EXPECT_NE(output.find("--sucursal"), std::string::npos);
  EXPECT_EQ(errors, "");
}

TEST_F(Program, AStoreThatCannotBeOpenedIsToldInPlainWords) {
  EXPECT_EQ(Run("--db '" + (folder / "no/esta.db") + "' --captura x.png"), 1);
  EXPECT_EQ(errors, "orvendal: No existe la carpeta " + (folder / "no") + " de la base de datos.\n");
}

TEST_F(Program, APictureThatCannotBeWrittenIsToldWithExitCodeOne) {
  EXPECT_EQ(Run("--captura '" + (folder / "no/hay/p.png") + "'"), 1);
  EXPECT_EQ(errors, "orvendal: No se puede escribir la imagen " + (folder / "no/hay/p.png") + ".\n");
}

TEST_F(Program, WithoutADisplayItSaysHowToGetAPicture) {
  EXPECT_EQ(Run(""), 1);
  EXPECT_NE(errors.find("--captura"), std::string::npos);
}

}  // namespace
}  // namespace orvendal
