// The program itself, started as a user would, on a machine without a display.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "tests/host/started_program.h"

namespace orvendal {
namespace {

class Program : public StartedProgram {
 protected:
  // Runs it with those words; gives the exit code.
  int Run(const std::string& words) { return RunAfter("", words); }
  // Runs it after other commands of the shell.
  int RunAfter(const std::string& before, const std::string& words) {
    return RunInShell(before +
                      "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u LC_ALL -u LC_MESSAGES "
                      "LANG=C.UTF-8 XDG_DATA_HOME='" +
                      folder.Path() + "' " + display + " '" ORVENDAL_PROGRAM "' " + words);
  }

  std::string display;  // what the environment says of one
};

TEST_F(Program, WritesAPictureAndTheDaysLinesWithoutADisplay) {
  const std::string picture = folder / "pantalla.png";
  ASSERT_EQ(Run("--captura '" + picture + "'"), 0) << errors;
  EXPECT_EQ(errors, "Base de datos nueva: " + (folder / "orvendal/cadena.db") +
                        "\nCadena de muestra: los datos son inventados.\n");
  EXPECT_EQ(Content("pantalla.png").substr(1, 3), "PNG");
  ASSERT_FALSE(output.empty());
  const std::string first = output.substr(0, output.find('\n'));
  EXPECT_EQ(first.substr(0, 2), "1\t");
  EXPECT_EQ(std::count(first.begin(), first.end(), '\t'), 9);
  EXPECT_TRUE(std::filesystem::exists(folder / "orvendal/cadena.db"));
}

TEST_F(Program, TheStoreThatItMakesIsForItsOwnerAlone) {
  ASSERT_EQ(Run("--captura '" + (folder / "pantalla.png") + "'"), 0) << errors;
  const auto permissions = [this](const char* name) {
    return static_cast<unsigned>(std::filesystem::status(folder / name).permissions());
  };
  EXPECT_EQ(permissions("orvendal"), 0700U);
  EXPECT_EQ(permissions("orvendal/cadena.db"), 0600U);
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
  EXPECT_TRUE(errors.ends_with("\nError al cargar la sucursal\n")) << errors;
}

// Seen: the program crashed.
TEST_F(Program, ADisplayThatIsNotThereIsOneLineAndExitCodeOne) {
  for (const char* wrong : {"", "DISPLAY=:9871", "DISPLAY=no.such.display:0",
                            "WAYLAND_DISPLAY=no-such-socket", "QT_QPA_PLATFORM=no-such-platform"}) {
    display = wrong;
    EXPECT_EQ(Run("</dev/null"), 1) << wrong;
    EXPECT_EQ(errors, "orvendal: No hay pantalla. Con --captura FICHERO.png se guarda una imagen sin ella.\n")
        << wrong;
  }
}

TEST_F(Program, WrongUseIsOneLineAndExitCodeTwo) {
  EXPECT_EQ(Run("--nada"), 2);
  EXPECT_EQ(errors, "orvendal: No existe la opción --nada. La ayuda está en orvendal --help.\n");
  EXPECT_EQ(output, "");
}

TEST_F(Program, WrongUseKeepsItsExitCodeWhereTheDisplayOfTheIconIsGone) {
  display = "DISPLAY=:9871";
  EXPECT_EQ(Run("--nada </dev/null"), 2);
  EXPECT_EQ(errors, "orvendal: No existe la opción --nada. La ayuda está en orvendal --help.\n");
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
  EXPECT_TRUE(
      errors.ends_with("\norvendal: No se puede escribir la imagen " + (folder / "no/hay/p.png") + ".\n"))
      << errors;
}

TEST_F(Program, AMistypedStoreIsToldAndNotMade) {
  EXPECT_EQ(Run("--db '" + (folder / "tyenda.db") + "' --captura '" + (folder / "p.png") + "'"), 1);
  EXPECT_EQ(errors, "orvendal: No existe la base de datos " + (folder / "tyenda.db") +
                        ". Compruebe el nombre; con --crear se hace una nueva, con una cadena de muestra.\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "tyenda.db"));
  EXPECT_FALSE(std::filesystem::exists(folder / "p.png"));
}

TEST_F(Program, WhatTheStoreHoldsIsNeverObeyedByTheTerminal) {
  std::ofstream(folder / "a.guion")
      << "sql \"UPDATE Productos SET Descripcion = 'rojo' || char(27) || '[31m'\"\n";
  const std::string store = " --db '" + (folder / "x.db") + "'";
  ASSERT_EQ(Run("guion '" + (folder / "a.guion") + "' --crear" + store), 0) << errors;
  // The script's clock has made the counts of a day of its own; the screen shows today's.
  std::ofstream(folder / "b.guion")
      << "sql \"UPDATE HistOrvendalcial SET Fecha = date('now', 'localtime') || ' 00:00:00' WHERE Fecha = "
         "(SELECT max(Fecha) FROM HistOrvendalcial)\"\n";
  ASSERT_EQ(Run("guion '" + (folder / "b.guion") + "'" + store), 0) << errors;
  ASSERT_EQ(Run("--captura '" + (folder / "p.png") + "'" + store), 0) << errors;
  EXPECT_NE(output.find("\trojo\\x1b[31m\t"), std::string::npos) << output;
  EXPECT_EQ(output.find('\x1b'), std::string::npos);
}

TEST_F(Program, LinesThatNobodyGetsAreToldWithExitCodeOne) {
  EXPECT_EQ(Run("--captura '" + (folder / "p.png") + "' >/dev/full"), 1);
  EXPECT_TRUE(errors.ends_with("\norvendal: No se puede escribir en la salida del programa.\n")) << errors;
  EXPECT_EQ(Run("--help >/dev/full"), 1);
  EXPECT_EQ(errors, "orvendal: No se puede escribir en la salida del programa.\n");
}

TEST_F(Program, ACurrentFolderThatIsGoneIsTold) {
  EXPECT_EQ(RunAfter("mkdir '" + (folder / "g") + "' && cd '" + (folder / "g") + "' && rmdir '" +
                         (folder / "g") + "' && ",
                     "--db x.db --captura '" + (folder / "p.png") + "'"),
            1);
  EXPECT_EQ(
      errors,
      "orvendal: Ya no existe la carpeta actual: escriba la base de datos x.db con su ruta completa.\n");
}

TEST_F(Program, ARecordNeverReplacesAFile) {
  std::ofstream(folder / "mio") << "mine";
  const std::string picture = "--captura '" + (folder / "p.png") + "'";
  EXPECT_EQ(Run(picture + " --grabar '" + (folder / "mio") + "'"), 1);
  EXPECT_NE(errors.find("No se puede hacer el fichero " + (folder / "mio") + " para la grabación: "),
            std::string::npos)
      << errors;
  EXPECT_EQ(Content("mio"), "mine");
}

TEST_F(Program, ARecordedSessionIsPrivateAndShowsTheSameLinesWhenItIsReplayed) {
  const std::string record = folder / "sesion.guion";
  ASSERT_EQ(
      Run("--dialecto jet --idioma ca --captura '" + (folder / "p.png") + "' --grabar '" + record + "'"), 0)
      << errors;
  const std::string lines = output;
  EXPECT_FALSE(lines.empty());
  EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(record).permissions()), 0600U);
  EXPECT_TRUE(Content("sesion.guion").starts_with("# opciones: --idioma ca --region es-ES --dialecto jet\n"));
  ASSERT_EQ(Run("guion '" + record + "' --db '" + (folder / "orvendal/cadena.db") + "'"), 0) << errors;
  EXPECT_EQ(output, "orvendal -> False\n" + lines);
}

// Everything in the folder and what it holds; what changes is what was written.
std::map<std::string, std::string> FilesOf(const std::string& place) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(place)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    files[std::filesystem::relative(entry.path(), place).string()] = content.str();
  }
  return files;
}

TEST_F(Program, TwoScreensOnDifferentStoresShareNoFile) {
  const std::string picture = " --captura '" + (folder / "p.png") + "'";
  ASSERT_EQ(Run("--crear --db '" + (folder / "una.db") + "'" + picture), 0) << errors;
  const auto names = [](const std::map<std::string, std::string>& files) {
    std::vector<std::string> found;
    for (const auto& [name, content] : files) found.push_back(name);
    return found;
  };
  std::map<std::string, std::string> before = FilesOf(folder.Path());
  EXPECT_EQ(names(before), (std::vector<std::string>{"err", "out", "p.png", "una.db"}));
  ASSERT_EQ(Run("--crear --db '" + (folder / "otra.db") + "'" + picture), 0) << errors;
  std::map<std::string, std::string> after = FilesOf(folder.Path());
  EXPECT_EQ(names(after), (std::vector<std::string>{"err", "otra.db", "out", "p.png", "una.db"}));
  EXPECT_EQ(after["una.db"], before["una.db"]);
  ASSERT_EQ(Run(picture), 0) << errors;
  EXPECT_EQ(FilesOf(folder.Path())["una.db"], before["una.db"]);
  EXPECT_EQ(FilesOf(folder.Path())["otra.db"], after["otra.db"]);
}

// Started as a desktop does it: with a display, and no terminal on any stream.
class ProgramFromAnIcon : public testing::Test {
 protected:
  ~ProgramFromAnIcon() override {
    if (process > 0) kill(process, SIGKILL);
    if (process > 0) waitpid(process, nullptr, 0);
    if (stream >= 0) close(stream);
  }
  void Start(std::vector<const char*> words) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    process = fork();
    if (process == 0) {
      dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
      dup2(ends[1], STDOUT_FILENO);
      dup2(ends[1], STDERR_FILENO);
      close(ends[0]);
      close(ends[1]);
      setenv("QT_QPA_PLATFORM", "offscreen", 1);
      setenv("LC_ALL", "C.UTF-8", 1);
      setenv("XDG_DATA_HOME", folder.Path().c_str(), 1);
      words.insert(words.begin(), ORVENDAL_PROGRAM);
      words.push_back(nullptr);
      execv(ORVENDAL_PROGRAM, const_cast<char* const*>(words.data()));
      std::_Exit(127);
    }
    close(ends[1]);
    stream = ends[0];
  }
  // What it writes until there is that in it; less if it ends before.
  std::string ReadUntil(const std::string& wanted) {
    std::string text;
    for (char c = 0; text.find(wanted) == std::string::npos && read(stream, &c, 1) == 1;) text += c;
    return text;
  }
  // Whether it goes on, longer than a program takes that has nothing left to do. What Qt remarks is no end.
  bool StaysUp() {
    pollfd end{stream, POLLIN, 0};
    char remark = 0;
    while (poll(&end, 1, 1500) > 0) {
      if (read(stream, &remark, 1) != 1) return false;
    }
    return true;
  }

  TemporaryFolder folder;
  pid_t process = -1;
  int stream = -1;
};

TEST_F(ProgramFromAnIcon, AStoreThatCannotBeOpenedIsToldInABoxThatStaysUntilItIsClosed) {
  const std::string missing = folder / "no/esta.db";
  Start({"--db", missing.c_str()});
  const std::string sentence = "No existe la carpeta " + (folder / "no") + " de la base de datos.\n";
  EXPECT_NE(ReadUntil(sentence).find(sentence), std::string::npos);
  EXPECT_TRUE(StaysUp());
}

TEST_F(ProgramFromAnIcon, AnOptionThatIsWrongIsToldInABox) {
  Start({"--nada"});
  const std::string sentence = "No existe la opción --nada. La ayuda está en orvendal --help.\n";
  EXPECT_NE(ReadUntil(sentence).find(sentence), std::string::npos);
  EXPECT_TRUE(StaysUp());
}

TEST_F(ProgramFromAnIcon, WhoAsksForAPictureOrAScriptIsKeptByNoBox) {
  const std::string missing = folder / "no/esta.db";
  const std::string picture = folder / "p.png";
  Start({"--db", missing.c_str(), "--captura", picture.c_str()});
  ReadUntil("esto no sale");  // to the end
  int status = 0;
  EXPECT_EQ(waitpid(process, &status, 0), process);
  EXPECT_EQ(WEXITSTATUS(status), 1);
  close(stream);
  Start({"guion"});
  ReadUntil("esto no sale");
  EXPECT_EQ(waitpid(process, &status, 0), process);
  EXPECT_EQ(WEXITSTATUS(status), 2);
  process = -1;
}

TEST_F(Program, WithoutADisplayItSaysHowToGetAPicture) {
  EXPECT_EQ(Run(""), 1);
  EXPECT_NE(errors.find("--captura"), std::string::npos);
}

}  // namespace
}  // namespace orvendal
