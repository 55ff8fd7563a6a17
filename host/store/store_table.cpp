#include "host/store/store_table.h"

#include <algorithm>
#include <string_view>

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

bool Contains(const std::vector<std::string>& names, const std::string& wanted) {
  return std::any_of(names.begin(), names.end(),
                     [&wanted](const std::string& each) { return EqualsIgnoringCase(each, wanted); });
}

bool IsWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '$' ||
         static_cast<unsigned char>(c) >= 0x80;
}

// Past the text, name or comment that begins at `at`; `at` itself if none does.
std::size_t AfterQuoted(std::string_view sql, std::size_t at) {
  const auto after = [&](std::string_view end, std::size_t from) {
    const std::size_t found = sql.find(end, from);
    return found == std::string_view::npos ? sql.size() : found + end.size();
  };
  const std::string_view rest = sql.substr(at);
  if (rest.starts_with("--")) return after("\n", at);
  if (rest.starts_with("/*")) return after("*/", at + 2);
  if (rest.starts_with("[")) return after("]", at);
  for (const std::string_view quote : {"'", "\"", "`"}) {
    if (rest.starts_with(quote)) return after(quote, at + 1);  // a doubled one begins the next text
  }
  return at;
}

bool HasWord(std::string_view sql, std::string_view wanted) {
  for (std::size_t at = 0; at < sql.size();) {
    const std::size_t quoted_end = AfterQuoted(sql, at);
    if (quoted_end != at) {
      at = quoted_end;
      continue;
    }
    const std::size_t start = at;
    while (at < sql.size() && IsWordCharacter(sql[at])) ++at;
    if (EqualsIgnoringCase(sql.substr(start, at - start), wanted)) return true;
    if (at == start) ++at;
  }
  return false;
}

std::string TriggerOf(SqliteConnection& store, const StoreTable& table) {
  SqliteStatement trigger(store,
                          "SELECT name FROM sqlite_master WHERE type = 'trigger' AND tbl_name = ?1 COLLATE "
                          "NOCASE ORDER BY name");
  return trigger.Bind(1, table.name).Step() ? "TRIGGER " + trigger.TextAt(0) : std::string();
}

// Null in every row of ours, and no Null equals another.
bool StaysNull(const StoreTable& table, const std::string& name, const std::vector<std::string>& written) {
  const StoreField* const field = table.Find(name);
  return field != nullptr && field->default_value.empty() && !field->generated && !field->row_number &&
         !Contains(written, name);
}

std::string IndexOf(SqliteConnection& store, const StoreTable& table, const std::vector<std::string>& written,
                    const std::vector<std::string>& row_key) {
  SqliteStatement indexes(store, "SELECT name, \"unique\", partial FROM pragma_index_list(?1) ORDER BY seq");
  indexes.Bind(1, table.name);
  while (indexes.Step()) {
    const std::string name = indexes.TextAt(0);
    bool calculates = indexes.TextAt(2) == "1";
    bool never_equal = false;
    std::vector<std::string> columns;
    std::string list;
    SqliteStatement parts(store, "SELECT cid, name FROM pragma_index_info(?1) ORDER BY seqno");
    parts.Bind(1, name);
    while (parts.Step()) {
      constexpr const char* kExpression = "-2";
      calculates = calculates || parts.TextAt(0) == kExpression;
      columns.push_back(parts.TextAt(1));
      list += (list.empty() ? "" : ", ") + columns.back();
      never_equal = never_equal || StaysNull(table, columns.back(), written);
    }
    if (calculates) return "INDEX " + name;
    const bool holds_key =
        !row_key.empty() && std::all_of(row_key.begin(), row_key.end(),
                                        [&](const std::string& key) { return Contains(columns, key); });
    if (indexes.TextAt(1) == "1" && !holds_key && !never_equal) return "UNIQUE (" + list + ")";
  }
  return {};
}

// Whether it stands for one value, which the engine need not work out.
bool IsPlain(const std::string& default_value) {
  const char first = default_value.front();
  if (first == '\'' || first == '"' || first == '`' || first == '[') return true;
  return std::all_of(default_value.begin(), default_value.end(), IsWordCharacter);
}

std::string DefaultOf(SqliteConnection& store, const StoreTable& table,
                      const std::vector<std::string>& written) {
  for (const StoreField& field : table.fields) {
    if (field.default_value.empty() || Contains(written, field.name) || IsPlain(field.default_value))
      continue;
    const std::string rule = field.name + " DEFAULT " + field.default_value;
    try {
      SqliteStatement worked_out(store, "SELECT (" + field.default_value + ") IS NULL");
      if (worked_out.Step() && worked_out.TextAt(0) == "1" && field.may_not_be_null) return rule;
    } catch (const RuntimeError&) {
      return rule;
    }
  }
  return {};
}

// What the engine says against the statements that write to the table: a collation or a function that it
// does not have, say. They are only prepared.
std::string RefusalOfEngine(SqliteConnection& store, const StoreTable& table,
                            const std::vector<std::string>& written) {
  std::string names;
  std::string values;
  std::string changes;
  for (const std::string& field : written) {
    names += (names.empty() ? "" : ", ") + field;
    values += values.empty() ? "?" : ", ?";
    changes += (changes.empty() ? "" : ", ") + field + " = ?";
  }
  try {
    SqliteStatement(store, "INSERT INTO " + table.name + " (" + names + ") VALUES (" + values + ")");
    SqliteStatement(store, "UPDATE " + table.name + " SET " + changes);
    SqliteStatement(store, "DELETE FROM " + table.name + " WHERE " + written.front() + " IS NULL");
  } catch (const RuntimeError& error) {
    return error.Description();
  }
  return {};
}

}  // namespace

const StoreField* StoreTable::Find(const std::string& field) const {
  const auto found = std::find_if(fields.begin(), fields.end(), [&field](const StoreField& each) {
    return EqualsIgnoringCase(each.name, field);
  });
  return found == fields.end() ? nullptr : &*found;
}

StoreName WhatIs(SqliteConnection& store, const std::string& name) {
  // Views and virtual tables have no root page in the file. An index takes a table's name, too.
  SqliteStatement look(store,
                       "SELECT type = 'table' AND rootpage > 0 FROM sqlite_master WHERE type IN ('table', "
                       "'view', 'index') AND name = ?1 COLLATE NOCASE");
  if (!look.Bind(1, name).Step()) return StoreName::kNothing;
  return look.TextAt(0) == "1" ? StoreName::kTable : StoreName::kOther;
}

StoreTable ReadTable(SqliteConnection& store, const std::string& name) {
  StoreTable table{name, {}, {}};
  SqliteStatement definition(
      store, "SELECT sql FROM sqlite_master WHERE type = 'table' AND name = ?1 COLLATE NOCASE");
  if (definition.Bind(1, name).Step()) table.definition = definition.TextAt(0);
  // A whole-number key is the row's own number unless an index had to be made for it.
  SqliteStatement fields(store,
                         "SELECT name, type, CASE WHEN upper(dflt_value) = 'NULL' THEN NULL ELSE dflt_value "
                         "END, \"notnull\", hidden IN (2, 3), pk = 1 AND upper(type) = 'INTEGER' AND "
                         "NOT EXISTS (SELECT 1 FROM pragma_index_list(?1) WHERE origin = 'pk') FROM "
                         "pragma_table_xinfo(?1) WHERE "
                         "hidden <> 1");
  fields.Bind(1, name);
  while (fields.Step()) {
    table.fields.push_back({fields.TextAt(0), fields.TextAt(1), fields.TextAt(2), fields.TextAt(3) == "1",
                            fields.TextAt(4) == "1", fields.TextAt(5) == "1"});
  }
  return table;
}

std::string OwnRuleOf(SqliteConnection& store, const StoreTable& table,
                      const std::vector<std::string>& written, const std::vector<std::string>& row_key) {
  if (const std::string trigger = TriggerOf(store, table); !trigger.empty()) return trigger;
  if (HasWord(table.definition, "CHECK")) return "CHECK";
  if (const std::string index = IndexOf(store, table, written, row_key); !index.empty()) return index;
  if (const std::string value = DefaultOf(store, table, written); !value.empty()) return value;
  return RefusalOfEngine(store, table, written);
}

}  // namespace orvendal
