#include "host/store/store_fit.h"

#include <algorithm>
#include <array>
#include <vector>

#include "adapters/sqlite/column_type.h"
#include "host/store/sample_mark.h"
#include "host/store/schema.h"
#include "host/store/store_table.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

using sqlite::ColumnKind;
using sqlite::ColumnType;
using sqlite::ColumnTypeOf;

// In this order they are told.
constexpr std::array kScreenTables = {"Sucursales",  "Empleados",    "Productos",
                                      "Referencias", "ProdSucStock", "HistOrvendalcial"};
// Made when it is first written, so that it may be missing.
constexpr const char* kJournal = kJournalTable;

// A table that is written to.
struct Written {
  const char* table;
  std::vector<std::string> row_key;  // no two rows of ours are equal in these fields
};
const std::array<Written, 3>& WrittenTables() {
  static const std::array<Written, 3> tables = {Written{"ProdSucStock", {"IdSucursal", "IdProducto"}},
                                                {"HistOrvendalcial", {"IdSucursal", "Fecha", "IdProducto"}},
                                                {kJournal, {}}};
  return tables;
}

// Null for a table that is only read.
const Written* WritingOf(const std::string& table) {
  const auto& tables = WrittenTables();
  const auto found = std::find_if(tables.begin(), tables.end(), [&table](const Written& each) {
    return EqualsIgnoringCase(each.table, table);
  });
  return found == tables.end() ? nullptr : &*found;
}

// The branch of an employee is the host's own field, which only sorts the picker's list.
bool MayBeMissing(const std::string& table, const std::string& field) {
  return table == "Empleados" && field == "IdSucursal";
}

// Where the codes come from that a field takes.
struct Source {
  const char* field;
  const char* table;
  const char* source_field;
};
constexpr std::array kSources = {Source{"IdProducto", "Productos", "Codigo"},
                                 Source{"IdEmpleado", "Empleados", "Codigo"}};

// Whether a text stays a text in a field declared so, by the engine's own rules: as a number "007" is 7.
bool KeepsTexts(const std::string& type) {
  std::string declared = type;
  for (char& c : declared) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  const auto has = [&declared](const char* word) { return declared.find(word) != std::string::npos; };
  return declared.empty() || (!has("INT") && (has("CHAR") || has("TEXT") || has("CLOB")));
}

// Whether a field of type `present` takes what one of type `needed` does.
bool TakesTheKind(const std::string& needed, const std::string& present) {
  const ColumnType found = ColumnTypeOf(present.c_str());
  switch (ColumnTypeOf(needed.c_str()).kind) {
    case ColumnKind::kText:
      return (found.kind == ColumnKind::kText || present.empty()) && KeepsTexts(present);
    case ColumnKind::kNumber:
      return found.kind == ColumnKind::kNumber && !found.whole_numbers;
    case ColumnKind::kDate:
      return found.kind == ColumnKind::kDate;
    case ColumnKind::kUntyped:
      break;
  }
  return true;
}

// Characters that a field takes; 0 for no limit.
std::size_t WidthOf(const StoreField& field) {
  const ColumnType type = ColumnTypeOf(field.type.c_str());
  return type.kind == ColumnKind::kText ? type.length : 0;
}

bool DemandsValue(const StoreField& field) {
  return field.may_not_be_null && field.default_value.empty() && !field.generated && !field.row_number;
}

// What the screen and its journal need, from a store that has it all.
std::vector<StoreTable> TablesNeeded() {
  const auto model =
      SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
  CreateSchema(*model);
  model->Execute(JournalDefinition());
  std::vector<StoreTable> tables;
  for (const char* name : kScreenTables) tables.push_back(ReadTable(*model, name));
  tables.push_back(ReadTable(*model, kJournal));
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

  void AddTable(const StoreTable& table) {
    Append(names, table.name, ", ");
    Append(remedy, Flat(table.definition), "; ");
  }
  void AddField(const StoreTable& table, const StoreField& field) {
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
    if (version < 0) return Fill(words_.store_version_unknown, {name_, std::to_string(version), known});
    if (version > kSchemaVersion) return Fill(words_.store_newer, {name_, std::to_string(version), known});
    for (const StoreTable& table : TablesNeeded()) Examine(table);
    const std::string mark(kSampleMark);
    if (WhatIs(store_, mark) == StoreName::kOther) Tell(no_table_, words_.store_no_table, mark);
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
  void Tell(std::string& trouble, std::string_view sentence, const std::string& what,
            const std::string& more = {}, const std::string& last = {}) const {
    if (trouble.empty()) trouble = Fill(sentence, {name_, what, more, last});
  }

  void Examine(const StoreTable& needed) {
    switch (WhatIs(store_, needed.name)) {
      case StoreName::kNothing:
        if (needed.name != kJournal) lack_.AddTable(needed);
        return;
      case StoreName::kOther:
        Tell(no_table_, words_.store_no_table, needed.name);
        return;
      case StoreName::kTable:
        break;
    }
    if (needed.name != kJournal) ++tables_present_;
    const StoreTable present = ReadTable(store_, needed.name);
    const Written* const written = WritingOf(needed.name);
    for (const StoreField& field : needed.fields) {
      const StoreField* const found = present.Find(field.name);
      if (found == nullptr) {
        if (!MayBeMissing(needed.name, field.name)) lack_.AddField(needed, field);
        continue;
      }
      ExamineKind(needed.name, field, *found);
      if (written != nullptr) ExamineWidth(needed.name, field, *found);
    }
    read_.push_back(present);
    if (written != nullptr) ExamineWritten(*written, needed, present);
  }

  void ExamineKind(const std::string& table, const StoreField& needed, const StoreField& present) {
    if (TakesTheKind(needed.type, present.type)) return;
    const ColumnKind kind = ColumnTypeOf(needed.type.c_str()).kind;
    const std::string_view sentence = kind == ColumnKind::kDate   ? words_.store_no_date
                                      : kind == ColumnKind::kText ? words_.store_no_text
                                                                  : words_.store_no_number;
    Tell(trouble_, sentence, table + "." + needed.name);
  }

  // The width of the sample schema, and that of the codes themselves where these are declared wider.
  void ExamineWidth(const std::string& table, const StoreField& needed, const StoreField& present) {
    const std::size_t width = WidthOf(present);
    if (width == 0) return;
    const std::size_t least = WidthOf(needed);
    const std::string name = table + "." + needed.name;
    const auto told = [](std::size_t characters) {
      return characters == 0 ? std::string("∞") : std::to_string(characters);
    };
    if (least == 0 || width < least) {
      Tell(trouble_, words_.store_narrow_field, name, told(width), told(least));
    }
    for (const Source& source : kSources) {
      if (!EqualsIgnoringCase(source.field, needed.name)) continue;
      const auto from = std::find_if(read_.begin(), read_.end(), [&source](const StoreTable& each) {
        return EqualsIgnoringCase(each.name, source.table);
      });
      const StoreField* const code = from == read_.end() ? nullptr : from->Find(source.source_field);
      if (code != nullptr && WidthOf(*code) > width) {
        Tell(trouble_, words_.store_narrow_field, name, told(width), told(WidthOf(*code)));
      }
    }
  }

  void ExamineWritten(const Written& writing, const StoreTable& needed, const StoreTable& present) {
    std::vector<std::string> names;
    for (const StoreField& field : needed.fields) names.push_back(field.name);
    for (const StoreField& field : present.fields) {
      const std::string name = needed.name + "." + field.name;
      if (field.generated) Tell(trouble_, words_.store_generated_field, name);
      if (needed.Find(field.name) == nullptr && DemandsValue(field)) {
        Tell(trouble_, words_.store_demanding_field, name);
      }
    }
    const std::string rule = OwnRuleOf(store_, present, names, writing.row_key);
    if (!rule.empty()) Tell(trouble_, words_.store_own_rule, needed.name, rule);
  }

  SqliteConnection& store_;
  const std::string& name_;
  const Words& words_;
  int tables_present_ = 0;
  std::vector<StoreTable> read_;
  std::string no_table_;
  std::string trouble_;
  Lack lack_;
};

}  // namespace

std::string WhyUnfit(SqliteConnection& store, const std::string& name, const Words& words) {
  return Examination(store, name, words).Run();
}

}  // namespace orvendal
