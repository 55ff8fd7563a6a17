#include "host/store/store_fit.h"

#include <algorithm>
#include <array>
#include <vector>

#include "adapters/sqlite/column_type.h"
#include "host/store/schema.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

using sqlite::ColumnKind;
using sqlite::ColumnTypeOf;

struct FieldOfTable {
  std::string name;
  std::string type;
  bool demands_value = false;
};

struct Table {
  std::string name;
  std::string definition;
  std::vector<FieldOfTable> fields;
};

// In this order they are told.
constexpr std::array kScreenTables = {"Sucursales",  "Empleados",    "Productos",
                                      "Referencias", "ProdSucStock", "HistOrvendalcial"};
// Made when it is first written, so that it may be missing.
constexpr const char* kJournal = kJournalTable;
constexpr std::array kWrittenTables = {"ProdSucStock", "HistOrvendalcial", kJournal};

// The branch of an employee is the host's own field, which only sorts the picker's list.
bool MayBeMissing(const std::string& table, const std::string& field) {
  return table == "Empleados" && field == "IdSucursal";
}

bool IsWritten(const std::string& table) {
  return std::any_of(kWrittenTables.begin(), kWrittenTables.end(),
                     [&table](const char* each) { return EqualsIgnoringCase(each, table); });
}

std::vector<FieldOfTable> FieldsOf(SqliteConnection& store, const std::string& table) {
  SqliteStatement fields(
      store,
      "SELECT name, type, \"notnull\" AND dflt_value IS NULL AND hidden = 0 AND NOT (pk = 1 "
      "AND upper(type) = 'INTEGER') FROM pragma_table_xinfo(?1) WHERE hidden = 0");
  fields.Bind(1, table);
  std::vector<FieldOfTable> found;
  while (fields.Step()) found.push_back({fields.TextAt(0), fields.TextAt(1), fields.TextAt(2) == "1"});
  return found;
}

enum class Kind { kNothing, kTable, kOther };

// A view, and a table that the engine only makes believe, have no place in the file.
Kind KindOf(SqliteConnection& store, const std::string& name, std::string& definition) {
  SqliteStatement look(
      store,
      "SELECT type = 'table' AND rootpage > 0, sql FROM sqlite_master WHERE type IN ('table', "
      "'view') AND name = ?1 COLLATE NOCASE");
  if (!look.Bind(1, name).Step()) return Kind::kNothing;
  definition = look.TextAt(1);
  return look.TextAt(0) == "1" ? Kind::kTable : Kind::kOther;
}

// What the screen and its journal need, from a store that has it all.
std::vector<Table> TablesNeeded() {
  const auto model =
      SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
  CreateSchema(*model);
  model->Execute(JournalDefinition());
  std::vector<Table> tables;
  const auto add = [&](const char* name) {
    Table table{name, {}, FieldsOf(*model, name)};
    KindOf(*model, name, table.definition);
    tables.push_back(std::move(table));
  };
  for (const char* name : kScreenTables) add(name);
  add(kJournal);
  return tables;
}

// On one line.
std::string Flat(const std::string& definition) {
  std::string flat;
  for (const char c : definition) {
    const bool blank = c == ' ' || c == '\n';
    if (!blank || (!flat.empty() && flat.back() != ' ')) flat += blank ? ' ' : c;
  }
  return flat;
}

void Append(std::string& list, const std::string& item, const char* separator) {
  if (!list.empty()) list += separator;
  list += item;
}

// What a store lacks, and the statements that add it.
struct Lack {
  std::string names;
  std::string remedy;

  void AddTable(const Table& table) {
    Append(names, table.name, ", ");
    Append(remedy, Flat(table.definition), "; ");
  }
  void AddField(const Table& table, const FieldOfTable& field) {
    Append(names, table.name + "." + field.name, ", ");
    const bool is_text = ColumnTypeOf(field.type.c_str()).kind == ColumnKind::kText;
    Append(remedy,
           "ALTER TABLE " + table.name + " ADD COLUMN " + field.name + " " + field.type +
               (is_text ? " COLLATE NOCASE" : ""),
           "; ");
  }
};

class Examination {
 public:
  Examination(SqliteConnection& store, const std::string& name, const Words& words)
      : store_(store), name_(name), words_(words) {}

  std::string Run() {
    const int version = Version();
    const std::string known = std::to_string(kSchemaVersion);
    if (version > kSchemaVersion) return Fill(words_.store_newer, {name_, std::to_string(version), known});
    for (const Table& table : TablesNeeded()) Examine(table);
    if (!no_table_.empty()) return no_table_;
    if (tables_present_ == 0) {
      return Fill(words_.store_foreign, {name_, kScreenTables.front()});
    }
    if (lack_.names.empty()) return trouble_;
    if (version == kSchemaVersion) return Fill(words_.store_lacks, {name_, lack_.names, lack_.remedy});
    Append(lack_.remedy, "PRAGMA user_version = " + known, "; ");
    return Fill(words_.store_older, {name_, std::to_string(version), known, lack_.names, lack_.remedy});
  }

 private:
  int Version() {
    SqliteStatement version(store_, "PRAGMA user_version");
    return version.Step() ? std::stoi(version.TextAt(0)) : 0;
  }

  // The first one is told.
  void Tell(std::string& trouble, std::string_view sentence, const std::string& what) const {
    if (trouble.empty()) trouble = Fill(sentence, {name_, what});
  }

  void Examine(const Table& needed) {
    std::string ignored;
    switch (KindOf(store_, needed.name, ignored)) {
      case Kind::kNothing:
        if (needed.name != kJournal) lack_.AddTable(needed);
        return;
      case Kind::kOther:
        Tell(no_table_, words_.store_no_table, needed.name);
        return;
      case Kind::kTable:
        break;
    }
    if (needed.name != kJournal) ++tables_present_;
    const std::vector<FieldOfTable> present = FieldsOf(store_, needed.name);
    const auto find = [](const std::vector<FieldOfTable>& fields, const FieldOfTable& wanted) {
      return std::find_if(fields.begin(), fields.end(), [&wanted](const FieldOfTable& field) {
        return EqualsIgnoringCase(field.name, wanted.name);
      });
    };
    for (const FieldOfTable& field : needed.fields) {
      const auto found = find(present, field);
      if (found == present.end()) {
        if (!MayBeMissing(needed.name, field.name)) lack_.AddField(needed, field);
      } else if (ColumnTypeOf(field.type.c_str()).kind == ColumnKind::kDate &&
                 ColumnTypeOf(found->type.c_str()).kind != ColumnKind::kDate) {
        Tell(trouble_, words_.store_no_date, needed.name + "." + field.name);
      }
    }
    for (const FieldOfTable& field : present) {
      const bool is_extra = find(needed.fields, field) == needed.fields.end();
      if (is_extra && field.demands_value && IsWritten(needed.name)) {
        Tell(trouble_, words_.store_demanding_field, needed.name + "." + field.name);
      }
    }
  }

  SqliteConnection& store_;
  const std::string& name_;
  const Words& words_;
  int tables_present_ = 0;
  std::string no_table_;
  std::string trouble_;
  Lack lack_;
};

}  // namespace

std::string WhyUnfit(SqliteConnection& store, const std::string& name, const Words& words) {
  return Examination(store, name, words).Run();
}

}  // namespace orvendal
