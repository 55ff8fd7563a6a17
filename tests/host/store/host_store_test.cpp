#include "host/store/host_store.h"

#include <gtest/gtest.h>

#include <fstream>

#include "host/sample/made_store.h"
#include "host/store/private_file.h"
#include "platform/data/ado_error.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

const Date kToday(2026, 11, 16);

class HostStore : public testing::Test {
 protected:
  StoreSettings At(const std::string& path) const {
    return {path, Dialect::kSqlServer, Region::Spanish(), SpanishWords()};
  }
  // Why the store cannot be opened; empty if it can.
  std::string WhyNot(const std::string& path) const {
    try {
      OpenOrMakeStore(At(path), kToday);
    } catch (const StoreUnavailable& error) {
      EXPECT_EQ(error.Number(), ado_error::kUnspecified);
      return error.Description();
    }
    return {};
  }
  std::string WhyNotAgain(const std::string& path) const {
    try {
      OpenExistingStore(At(path));
    } catch (const StoreUnavailable& error) {
      return error.Description();
    }
    return {};
  }
  static std::string Read(SqliteConnection& store, const std::string& sql) {
    SqliteStatement statement(store, sql);
    return statement.Step() ? statement.TextAt(0) : "-";
  }

  TemporaryFolder folder;
  std::string file = folder / "cadena.db";
};

TEST_F(HostStore, AMissingFileIsMadeWithTheSampleChain) {
  const auto store = OpenOrMakeStore(At(file), kToday);
  EXPECT_EQ(Read(*store, "SELECT COUNT(*) FROM Productos"), "2500");
  EXPECT_EQ(Read(*store, "SELECT COUNT(*) FROM Diario"), "0");
}

TEST_F(HostStore, AFileThatIsThereIsLeftAsItIs) {
  OpenOrMakeStore(At(file), kToday)->Execute("DELETE FROM Productos; DELETE FROM Sucursales");
  const auto store = OpenOrMakeStore(At(file), Date(2027, 1, 1));
  EXPECT_EQ(Read(*store, "SELECT COUNT(*) FROM Productos"), "0");
  EXPECT_EQ(Read(*store, "SELECT MAX(Fecha) FROM HistOrvendalcial"), "2026-11-16 00:00:00");
}

TEST_F(HostStore, AnEmptyFileIsFilledToo) {
  std::ofstream(file).close();
  EXPECT_EQ(Read(*OpenOrMakeStore(At(file), kToday), "SELECT COUNT(*) FROM Sucursales"), "12");
}

TEST_F(HostStore, TellsAMissingFolder) {
  EXPECT_EQ(WhyNot(folder / "no/esta/cadena.db"),
            "No existe la carpeta " + (folder / "no/esta") + " de la base de datos.");
}

TEST_F(HostStore, TellsAFolderThatIsNoFile) {
  EXPECT_EQ(WhyNot(folder.Path()), folder.Path() + " es una carpeta y no una base de datos.");
}

TEST_F(HostStore, TellsAFileThatIsNoDatabase) {
  std::ofstream(file) << std::string(5000, 'x');
  EXPECT_EQ(WhyNot(file), "El fichero " + file + " no es una base de datos.");
  EXPECT_EQ(WhyNotAgain(file), "El fichero " + file + " no es una base de datos.");
}

TEST_F(HostStore, TellsADatabaseOfSomethingElse) {
  SqliteConnection::Open(file, Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate)
      ->Execute("CREATE TABLE Otra (x)");
  EXPECT_EQ(WhyNot(file),
            "La base de datos " + file + " no es de este programa: le falta la tabla Sucursales.");
}

TEST_F(HostStore, TellsAStoreThatAnotherProgramHasLocked) {
  OpenOrMakeStore(At(file), kToday);
  const auto other =
      SqliteConnection::Open(file, Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting);
  other->Execute("PRAGMA journal_mode = DELETE; PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
  const std::string locked =
      "Otro programa tiene bloqueada la base de datos " + file + ". Inténtelo de nuevo más tarde.";
  EXPECT_EQ(WhyNot(file), locked);
  EXPECT_EQ(WhyNotAgain(file), locked);
}

TEST_F(HostStore, OpeningAgainMakesNothing) {
  EXPECT_EQ(WhyNotAgain(file), "No existe la base de datos " + file + ".");
  EXPECT_FALSE(std::filesystem::exists(file));
  OpenOrMakeStore(At(file), kToday);
  EXPECT_EQ(WhyNotAgain(file), "");
}

TEST_F(HostStore, TheReasonIsInTheLanguageChosen) {
  StoreSettings settings{file, Dialect::kSqlServer, Region::Spanish(), EnglishWords()};
  try {
    OpenExistingStore(settings);
    FAIL();
  } catch (const StoreUnavailable& error) {
    EXPECT_EQ(error.Description(), "The database " + file + " does not exist.");
  }
}

// Seen: others on the machine could read it.
TEST_F(HostStore, TheDefaultStoreIsForItsOwnerAlone) {
  namespace fs = std::filesystem;
  const std::string home = folder / "orvendal";
  const std::string store_file = home + "/cadena.db";
  const auto permissions = [](const std::string& path) {
    return static_cast<unsigned>(fs::status(path).permissions());
  };
  for (const bool was_there : {false, true}) {
    if (was_there) {  // as earlier versions left it
      fs::permissions(home, fs::perms(0755));
      fs::permissions(store_file, fs::perms(0644));
      std::ofstream(store_file + "-journal");
      fs::permissions(store_file + "-journal", fs::perms(0644));
    }
    MakePrivateFile(store_file);
    if (was_there) {
      EXPECT_EQ(permissions(store_file + "-journal"), 0600U);
    }
    const auto store = OpenOrMakeStore(At(store_file), kToday);
    store->Execute("DELETE FROM Productos WHERE Codigo = 'x'");
    EXPECT_EQ(permissions(home), 0700U);
    EXPECT_EQ(permissions(store_file), 0600U);
    EXPECT_EQ(permissions(store_file + "-wal"), 0600U);
    EXPECT_EQ(permissions(store_file + "-shm"), 0600U);
    EXPECT_EQ(Read(*store, "SELECT COUNT(*) FROM Sucursales"), "12");
  }
}

TEST_F(HostStore, AFolderThatOthersUseTooKeepsItsPermissions) {
  namespace fs = std::filesystem;
  const std::string shared = folder / "datos";
  fs::create_directory(shared);
  fs::create_directory_symlink("datos", folder / "orvendal");
  fs::permissions(shared, fs::perms(0755));
  MakePrivateFile(shared + "/cadena.db");
  MakePrivateFile(folder / "orvendal/cadena.db");
  EXPECT_EQ(static_cast<unsigned>(fs::status(shared).permissions()), 0755U);
  EXPECT_EQ(static_cast<unsigned>(fs::status(shared + "/cadena.db").permissions()), 0600U);
}

}  // namespace
}  // namespace orvendal
