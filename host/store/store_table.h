#pragma once

#include <string>
#include <vector>

#include "adapters/sqlite/sqlite_store.h"

namespace orvendal {

struct StoreField {
  std::string name;
  std::string type;           // as declared; empty if it is not
  std::string default_value;  // as it stands in the definition; empty without one
  bool may_not_be_null = false;
  bool generated = false;
  bool row_number = false;  // the engine gives it a value
};

/// A table as the file defines it.
struct StoreTable {
  std::string name;
  std::string definition;  // the statement that made it
  std::vector<StoreField> fields;

  /// Null without such a field; case is ignored.
  const StoreField* Find(const std::string& field) const;
};

enum class StoreName { kNothing, kTable, kOther };

/// What `name` is in the store. Views and virtual tables are no tables.
StoreName WhatIs(SqliteConnection& store, const std::string& name);

/// The definition of a table that is there. Raises the store's error.
StoreTable ReadTable(SqliteConnection& store, const std::string& name);

/// What the table has of its own that may end a save when it has deleted the day already: triggers, CHECK,
/// unique keys that two lines of one day could share, indexes and defaults that calculate. In the words of
/// SQL, such as "TRIGGER Aviso", or in the engine's own if it refuses to prepare the writing; empty if there
/// is nothing. `written` are the fields that a row is given, `row_key` those of them in which no two rows are
/// equal. Runs the defaults that calculate, nothing else.
std::string OwnRuleOf(SqliteConnection& store, const StoreTable& table,
                      const std::vector<std::string>& written, const std::vector<std::string>& row_key);

}  // namespace orvendal
