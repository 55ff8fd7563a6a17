#include "adapters/sqlite/statement_guard.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "platform/base/text.h"

namespace orvendal::sqlite {
namespace {

// In bytes. No field of a store comes near it, but for a picture that somebody else keeps there.
constexpr std::int64_t kMostMemory = std::int64_t{512} << 20;  // bytes
constexpr int kLongestValue = 4 * 1024 * 1024;
// In bytes, of the engine's own LIKE and GLOB, whose work is the pattern's length times the text's.
constexpr int kLongestEnginePattern = 100;

// They tell what there is.
constexpr std::array<std::string_view, 18> kTelling = {
    "application_id", "busy_timeout", "collation_list", "compile_options", "data_version", "database_list",
    "encoding",       "foreign_keys", "freelist_count", "function_list",   "journal_mode", "module_list",
    "page_count",     "page_size",    "pragma_list",    "schema_version",  "temp_store",   "user_version"};
// Of a table or an index, which stands in brackets or after an equals sign.
constexpr std::array<std::string_view, 10> kTellingOf = {
    "foreign_key_check", "foreign_key_list", "index_info", "index_list", "index_xinfo",
    "integrity_check",   "quick_check",      "table_info", "table_list", "table_xinfo"};
// Functions that give the engine code to run, and those whose one call may take hours.
constexpr std::array<std::string_view, 4> kFunctions = {"fts3_tokenizer", "load_extension", "json_patch",
                                                        "unhex"};

template <std::size_t Count>
bool Has(const std::array<std::string_view, Count>& names, const char* name) {
  return name != nullptr && std::any_of(names.begin(), names.end(), [name](std::string_view each) {
           return EqualsIgnoringCase(each, name);
         });
}

bool OnlyTells(const char* pragma, const char* value) {
  return Has(kTellingOf, pragma) || (value == nullptr && Has(kTelling, pragma));
}

}  // namespace

StatementGuard::StatementGuard(sqlite3* database) : database_(database) {
  for (const int dangerous : {SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION,
                              SQLITE_DBCONFIG_TRUSTED_SCHEMA}) {
    sqlite3_db_config(database_, dangerous, 0, nullptr);
  }
  sqlite3_db_config(database_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  // A misspelt name in double quotes must not turn into a text.
  sqlite3_db_config(database_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  // All stores of the process together: a statement that piles up values ends before the machine does.
  sqlite3_hard_heap_limit64(kMostMemory);
  sqlite3_limit(database_, SQLITE_LIMIT_ATTACHED, 0);
  sqlite3_limit(database_, SQLITE_LIMIT_LENGTH, kLongestValue);
  sqlite3_limit(database_, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, kLongestEnginePattern);
  // A foreign key would stop a save half way; the screen sees to its codes itself.
  sqlite3_db_config(database_, SQLITE_DBCONFIG_ENABLE_FKEY, 0, nullptr);
  // What a statement sorts or keeps for itself goes into no file.
  sqlite3_exec(database_, "PRAGMA temp_store = MEMORY", nullptr, nullptr, nullptr);
  sqlite3_set_authorizer(database_, Decide, this);
}

void StatementGuard::LetGo() noexcept {
  if (database_ != nullptr) sqlite3_set_authorizer(database_, nullptr, nullptr);
  database_ = nullptr;
}

int StatementGuard::Decide(void* guard, int action, const char* first, const char* second, const char*,
                           const char*) {
  switch (action) {
    case SQLITE_ATTACH:
    case SQLITE_DETACH:
    case SQLITE_CREATE_VTABLE:
    case SQLITE_DROP_VTABLE:
      return SQLITE_DENY;
    case SQLITE_FUNCTION:
      return Has(kFunctions, second) ? SQLITE_DENY : SQLITE_OK;
    case SQLITE_PRAGMA:
      return static_cast<StatementGuard*>(guard)->hosts_own_ > 0 || OnlyTells(first, second) ? SQLITE_OK
                                                                                             : SQLITE_DENY;
    default:
      return SQLITE_OK;
  }
}

}  // namespace orvendal::sqlite
