// A script that takes in others: their lines run where they are included, and what stops one is told with its
// name.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "host/script/runner.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

class IncludingScript : public testing::Test {
 protected:
  IncludingScript() {
    std::filesystem::create_directories(std::filesystem::path(folder_.Path()) / "dia" / "escenas");
    options_.store = folder_ / "cadena.db";  // made once only
    options_.create = true;
  }

  void Write(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  // What dia/dia.guion shows on its two streams.
  std::string Shown(const std::string& text) {
    Write("dia/dia.guion", text);
    return ShownBy(folder_ / "dia/dia.guion");
  }
  std::string ShownBy(const std::string& file) {
    std::ostringstream output;
    std::ostringstream errors;
    exit_code_ = RunScriptFile(file, options_, nullptr, output, errors);
    return output.str() + errors.str();
  }

  TemporaryFolder folder_;
  Options options_;
  int exit_code_ = 0;
};

TEST_F(IncludingScript, ItsLinesRunWhereItIsIncluded) {
  Write("dia/escenas/dos.guion", "\xEF\xBB\xBFsql \"SELECT 2\"");
  EXPECT_EQ(
      Shown("sql \"SELECT 1\"\nincluir escenas/dos.guion\nsql \"SELECT 3\"\nincluir escenas/dos.guion\n"),
      "1\n2\n3\n2\n");
  EXPECT_EQ(exit_code_, 0);
}

TEST_F(IncludingScript, ANameCountsFromTheFolderOfTheScriptThatIncludesIt) {
  Write("dia/escenas/uno.guion", "incluir dos.guion\n");
  Write("dia/escenas/dos.guion", "incluir ../tres.guion\n");
  Write("dia/tres.guion", "sql \"SELECT 3\"\n");
  EXPECT_EQ(Shown("incluir escenas/uno.guion\n"), "3\n");
}

TEST_F(IncludingScript, AStopInsideIsToldWithFileAndLine) {
  Write("dia/escenas/uno.guion", "# one\nincluir dos.guion\n");
  Write("dia/escenas/dos.guion", "sql \"SELECT 2\"\nguardar\n");
  EXPECT_EQ(Shown("\n\nincluir escenas/uno.guion\n"),
            "2\nlínea 3: escenas/uno.guion, línea 2: dos.guion, línea 2: no existe la orden guardar\n");
  EXPECT_EQ(exit_code_, 2);
  // After an included script the lines count on.
  Write("dia/escenas/dos.guion", "sql \"SELECT 2\"\n");
  EXPECT_EQ(Shown("incluir escenas/uno.guion\nguardar\n"), "2\nlínea 2: no existe la orden guardar\n");
  // An expectation that fails keeps its exit code.
  Write("dia/escenas/dos.guion", "orvendal 02 1 1\nespera MSFProductos.Row 7\n");
  Shown("incluir escenas/dos.guion\n");
  EXPECT_EQ(exit_code_, 1);
}

TEST_F(IncludingScript, NoneIncludesItself) {
  EXPECT_EQ(Shown("sql \"SELECT 1\"\nincluir dia.guion\n"),
            "1\nlínea 2: un guion no puede incluirse a sí mismo, y dia.guion lo haría\n");
  Write("dia/escenas/uno.guion", "incluir dos.guion\n");
  Write("dia/escenas/dos.guion", "incluir ../escenas/uno.guion\n");
  EXPECT_EQ(
      Shown("incluir escenas/uno.guion\n"),
      "línea 1: escenas/uno.guion, línea 1: dos.guion, línea 1: un guion no puede incluirse a sí mismo, y "
      "../escenas/uno.guion lo haría\n");
  EXPECT_EQ(exit_code_, 2);
}

TEST_F(IncludingScript, WhatCannotBeIncludedIsTold) {
  EXPECT_EQ(Shown("incluir\n"), "línea 1: se escribe: incluir FICHERO.guion\n");
  EXPECT_EQ(Shown("incluir a.guion b.guion\n"), "línea 1: se escribe: incluir FICHERO.guion\n");
  EXPECT_EQ(Shown("incluir nada.guion\n"), "línea 1: no existe el guion nada.guion, que se quiere incluir\n");
  Write("dia/lista.txt", "sql \"SELECT 1\"\n");
  EXPECT_EQ(Shown("incluir lista.txt\n"),
            "línea 1: se incluye un fichero acabado en .guion, y no lista.txt\n");
  std::filesystem::create_directory(folder_ / "dia/carpeta.guion");
  EXPECT_EQ(Shown("incluir carpeta.guion\n"), "línea 1: no se puede leer el guion carpeta.guion\n");
}

// Somebody else's script does not read what lies around it.
TEST_F(IncludingScript, NothingOutsideItsFolderIsRead) {
  Write("fuera.guion", "secreto\n");
  const std::string refusal = "un guion incluye otros de su carpeta o de las que hay dentro de ella, y no ";
  const std::string absolute = folder_ / "fuera.guion";
  std::filesystem::create_symlink(absolute, folder_ / "dia/enlace.guion");
  for (const std::string& name : {std::string("../fuera.guion"), absolute, std::string("enlace.guion")}) {
    EXPECT_EQ(Shown("incluir " + name + "\n"), "línea 1: " + refusal + name + "\n");
  }
  Write("dia/escenas/uno.guion", "incluir ../../fuera.guion\n");
  EXPECT_EQ(Shown("incluir escenas/uno.guion\n"),
            "línea 1: escenas/uno.guion, línea 1: " + refusal + "../../fuera.guion\n");
}

TEST_F(IncludingScript, AScriptThatIsNoFileIncludesNone) {
  std::istringstream script("incluir dia.guion\n");
  std::ostringstream output;
  std::ostringstream errors;
  EXPECT_EQ(RunScript(script, options_, nullptr, output, errors), 2);
  EXPECT_EQ(errors.str(), "línea 1: un guion que no está en un fichero no puede incluir dia.guion\n");
}

}  // namespace
}  // namespace orvendal
