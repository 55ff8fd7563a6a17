// Which store is opened, which may be made, and what its user is told.

#include "host/sample/chosen_store.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

class ChosenStores : public testing::Test {
 protected:
  OpenedStore Open(const std::optional<std::string>& named, bool create = false) {
    Options options;
    options.store = named;
    options.create = create;
    const ChosenStore chosen = ChooseStore(options, usual, SpanishWords());
    path = chosen.path;
    return OpenChosenStore(chosen, {path, Dialect::kSqlServer, Region::Spanish(), SpanishWords()},
                           Date(2026, 11, 16));
  }
  std::string WhyNot(const std::optional<std::string>& named, bool create = false) {
    try {
      Open(named, create);
      return {};
    } catch (const StoreUnavailable& error) {
      return error.Description();
    }
  }
  bool IsThere(const std::string& file) const { return std::filesystem::exists(folder / file); }

  TemporaryFolder folder;
  std::string usual = folder / "usual.db";
  std::string path;
};

TEST_F(ChosenStores, AMistypedNameMakesNothing) {
  EXPECT_EQ(WhyNot(folder / "tyenda.db"),
            "No existe la base de datos " + (folder / "tyenda.db") +
                ". Compruebe el nombre; con --crear se hace una nueva, con una cadena de muestra.");
  EXPECT_FALSE(IsThere("tyenda.db"));
  EXPECT_EQ(WhyNot(folder / "no/hay.db"),
            "No existe la carpeta " + (folder / "no") + " de la base de datos.");
}

TEST_F(ChosenStores, AnEmptyFileIsLeftEmpty) {
  std::ofstream(folder / "vacia.db").close();
  EXPECT_EQ(WhyNot(folder / "vacia.db"),
            "El fichero " + (folder / "vacia.db") +
                " está vacío. Compruebe el nombre; con --crear se llena con una cadena de muestra.");
  EXPECT_EQ(std::filesystem::file_size(folder / "vacia.db"), 0U);
  EXPECT_TRUE(Open(folder / "vacia.db", true).made);
}

TEST_F(ChosenStores, OnTheUsersWordANewOneIsMadeAndTold) {
  const OpenedStore made = Open(folder / "nueva.db", true);
  EXPECT_TRUE(made.made);
  EXPECT_TRUE(made.sample);
  EXPECT_EQ(StoreNotice(made, path, SpanishWords()), "Base de datos nueva: " + (folder / "nueva.db") +
                                                         "\nCadena de muestra: los datos son inventados.\n");
  const OpenedStore again = Open(folder / "nueva.db", true);
  EXPECT_FALSE(again.made);
  EXPECT_EQ(StoreNotice(again, path, EnglishWords()),
            "Database: " + (folder / "nueva.db") + "\nSample chain: the data are made up.\n");
}

TEST_F(ChosenStores, TheUsualOneIsMadeWithoutAWord) {
  EXPECT_TRUE(Open(std::nullopt).made);
  EXPECT_EQ(path, usual);
  EXPECT_FALSE(Open(std::nullopt).made);
  std::filesystem::remove(usual);
  EXPECT_TRUE(Open(usual).made) << "named or not, it is the same place";
}

TEST_F(ChosenStores, AChainOfSomebodysOwnIsNotCalledMadeUp) {
  Open(std::nullopt).connection->Execute("DROP TABLE CadenaDeMuestra");
  const OpenedStore own = Open(std::nullopt);
  EXPECT_FALSE(own.sample);
  EXPECT_EQ(StoreNotice(own, path, SpanishWords()), "Base de datos: " + usual + "\n");
}

TEST_F(ChosenStores, AStoreInMemoryIsNeverThereSoItNeedsTheUsersWordToo) {
  EXPECT_NE(WhyNot(kStoreInMemory), "");
  EXPECT_TRUE(Open(kStoreInMemory, true).sample);
}

TEST_F(ChosenStores, ARelativeNameIsToldInFull) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  Open("nueva.db", true);
  std::filesystem::current_path(before);
  EXPECT_EQ(path, (std::filesystem::canonical(folder.Path()) / "nueva.db").string());
}

TEST_F(ChosenStores, ANameCannotSteerTheTerminal) {
  const OpenedStore opened = Open(std::nullopt);
  EXPECT_EQ(StoreNotice(opened, "a\x1b[2J\nb", SpanishWords()).substr(0, 32),
            "Base de datos nueva: a\\x1b[2J\\nb");
}

}  // namespace
}  // namespace orvendal
