#include "host/host_store.h"

#include <sqlite3.h>

#include <array>
#include <filesystem>

#include "host/sample_chain.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

namespace fs = std::filesystem;

// Texts are UTF-8 on every system.
fs::path PathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}
std::string TextOf(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

constexpr const char* kInMemory = ":memory:";
constexpr std::array kTables = {"Sucursales",  "Empleados",    "Productos",
                                "Referencias", "ProdSucStock", "HistOrvendalcial"};

// The engine's own reason, found by asking the file once more for a read and a write.
int ProbeStore(const std::string& path) {
  sqlite3* database = nullptr;
  int code = sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
  for (const char* sql : {"PRAGMA schema_version", "BEGIN IMMEDIATE", "ROLLBACK"}) {
    if (code == SQLITE_OK) code = sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
  }
  sqlite3_close(database);
  return code;
}

std::string_view ReasonOfCode(int code, const Words& words) {
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return words.store_locked;
    case SQLITE_NOTADB:
      return words.store_no_database;
    case SQLITE_CORRUPT:
      return words.store_damaged;
    case SQLITE_READONLY:
      return words.store_read_only;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return words.store_refused;
    default:
      return {};
  }
}

StoreUnavailable Explain(const StoreSettings& settings, const RuntimeError& error, bool may_make) {
  const Words& words = settings.words;
  const fs::path file = PathOf(settings.path);
  std::error_code ignored;
  if (settings.path != kInMemory) {
    const fs::path folder = file.parent_path();
    if (!folder.empty() && !fs::is_directory(folder, ignored)) {
      return StoreUnavailable(Fill(words.folder_missing, {TextOf(folder)}));
    }
    if (fs::is_directory(file, ignored))
      return StoreUnavailable(Fill(words.store_is_folder, {settings.path}));
    if (!fs::exists(file, ignored)) {
      return StoreUnavailable(Fill(may_make ? words.store_refused : words.store_missing, {settings.path}));
    }
    const std::string_view reason = ReasonOfCode(ProbeStore(settings.path), words);
    if (!reason.empty()) return StoreUnavailable(Fill(reason, {settings.path}));
  }
  return StoreUnavailable(Fill(words.store_other, {settings.path, error.Description()}));
}

bool HasTable(SqliteConnection& store, const std::string& name) {
  SqliteStatement look(store,
                       "SELECT 1 FROM sqlite_master WHERE type IN ('table', 'view') AND name = ?1 "
                       "COLLATE NOCASE");
  return look.Bind(1, name).Step();
}

bool HasNoTable(SqliteConnection& store) {
  SqliteStatement look(store, "SELECT 1 FROM sqlite_master LIMIT 1");
  return !look.Step();
}

// Another copy of the program may be a moment ahead.
void MakeUnlessMade(SqliteConnection& store, Date today) {
  try {
    MakeSampleStore(store, today);
  } catch (const RuntimeError&) {
    if (HasNoTable(store)) throw;
  }
}

void CheckTables(SqliteConnection& store, const StoreSettings& settings) {
  for (const char* table : kTables) {
    if (!HasTable(store, table)) {
      throw StoreUnavailable(Fill(settings.words.store_foreign, {settings.path, table}));
    }
  }
}

}  // namespace

StoreUnavailable::StoreUnavailable(const std::string& description)
    : RuntimeError(ado_error::kUnspecified, description) {}

std::shared_ptr<SqliteConnection> OpenOrMakeStore(const StoreSettings& settings, Date today) {
  try {
    auto store = SqliteConnection::Open(settings.path, settings.dialect, settings.region, OpenMode::kCreate);
    if (HasNoTable(*store)) MakeUnlessMade(*store, today);
    CheckTables(*store, settings);
    return store;
  } catch (const StoreUnavailable&) {
    throw;
  } catch (const RuntimeError& error) {
    throw Explain(settings, error, true);
  }
}

std::shared_ptr<SqliteConnection> OpenExistingStore(const StoreSettings& settings) {
  try {
    auto store =
        SqliteConnection::Open(settings.path, settings.dialect, settings.region, OpenMode::kExisting);
    CheckTables(*store, settings);
    return store;
  } catch (const StoreUnavailable&) {
    throw;
  } catch (const RuntimeError& error) {
    throw Explain(settings, error, false);
  }
}

SqliteConnection& EmbeddedStore(const ConnectionRef& connection) {
  auto* store = dynamic_cast<SqliteConnection*>(connection.get());
  if (store == nullptr) throw AdoError(ado_error::kInvalidConnection);
  return *store;
}

}  // namespace orvendal
