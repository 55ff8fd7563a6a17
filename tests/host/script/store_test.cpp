// What a script, or a code that it types on the screen, may not do to the store and to the machine.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "host/script/parser.h"
#include "host/script/runner.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

class ScriptOnAStore : public testing::Test {
 protected:
  int Run(const std::string& text) {
    std::istringstream script(text);
    std::ostringstream shown;
    std::ostringstream told;
    const int exit_code = RunScript(script, options, {}, shown, told);
    output = shown.str();
    errors = told.str();
    return exit_code;
  }
  std::string Refused(const std::string& sql) {
    EXPECT_EQ(Run("sql \"" + sql + "\"\n"), ScriptStop::kCannotGoOn) << sql;
    EXPECT_EQ(output, "") << sql;
    return errors;
  }

  TemporaryFolder folder;
  Options options;
  std::string output;
  std::string errors;
};

TEST_F(ScriptOnAStore, ReachesNoOtherFileAndNoPointer) {
  const std::string refused =
      "línea 1: la base de datos no admite la sentencia: The store does not allow this statement.\n";
  const std::string other = folder / "otra.db";
  EXPECT_EQ(Refused("SELECT fts3_tokenizer('simple', x'4141414141414141')"), refused);
  EXPECT_EQ(Refused("ATTACH '" + other + "' AS otra"), refused);
  EXPECT_EQ(Refused("VACUUM INTO '" + other + "'"), refused);
  EXPECT_EQ(Refused("PRAGMA user_version = 9"), refused);
  EXPECT_EQ(Refused("SELECT 1 WHERE load_extension('x')"), refused);
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST_F(ScriptOnAStore, ACodeTypedOnTheScreenReachesNoPointerAndTheScreenGoesOn) {
  const std::string typed =
      "z' UNION SELECT fts3_tokenizer('simple', CAST('AAAAAAAA' AS BLOB)), '' FROM Productos WHERE '1' = '1";
  EXPECT_EQ(
      Run("orvendal 02 1 1\nempleado E002\nclic MSFProductos 1 0\ndobleclic MSFProductos 1 0\nteclas \"" +
          typed + "\"\ntecla Enter\nespera TxtMSF.Visible True\n"),
      0)
      << errors;
  EXPECT_EQ(output, "orvendal -> False\nerror -2147217911: The store does not allow this statement.\n");
}

TEST_F(ScriptOnAStore, ANumberWithoutEndInTheStoreIsAnErrorOfTheLine) {
  EXPECT_EQ(Run("sql \"UPDATE ProdSucStock SET Stock = 9e999 WHERE IdProducto = 'LAC001'\"\norvendal 02 1 1\n"
                "empleado E002\nclic MSFProductos 1 0\ndobleclic MSFProductos 1 0\nteclas \"LAC001\\n\"\n"),
            0)
      << errors;
  EXPECT_EQ(output,
            "orvendal -> False\nerror 6: Overflow: the field 'Stock' holds a number beyond all bounds.\n");
}

TEST_F(ScriptOnAStore, AStoreThatDoesNotFitIsRefusedBeforeTheFirstLine) {
  options.store = folder / "cadena.db";
  options.create = true;
  ASSERT_EQ(Run("sql \"SELECT COUNT(*) FROM Sucursales\"\n"), 0) << errors;
  ASSERT_EQ(Run("sql \"ALTER TABLE HistOrvendalcial DROP COLUMN Actualizado\"\n"), 0) << errors;
  EXPECT_EQ(Run("orvendal 02 1 1\n"), ScriptStop::kCannotGoOn);
  EXPECT_EQ(output, "");
  EXPECT_EQ(errors.find("línea 1: A la base de datos " + *options.store +
                        " le falta HistOrvendalcial.Actualizado."),
            0U)
      << errors;
}

TEST_F(ScriptOnAStore, TheNameOfAStoreIsTheNameOfAFile) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  options.store = "file:cadena?mode=memory";
  options.create = true;
  EXPECT_EQ(Run("sql \"SELECT COUNT(*) FROM Sucursales\"\n"), 0) << errors;
  EXPECT_TRUE(std::filesystem::exists(folder / "file:cadena?mode=memory"));
  std::filesystem::current_path(before);
}

}  // namespace
}  // namespace orvendal
