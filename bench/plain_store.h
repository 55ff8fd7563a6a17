#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "bench/bench_store.h"

struct sqlite3;
struct sqlite3_stmt;

namespace orvendal::bench {

/// The floor: SQLite's own functions on the same file, with statements prepared once, doing what the screen's
/// statements say and no more.
class PlainStore {
 public:
  using Line = std::array<std::string, 9>;

  explicit PlainStore(const std::string& path);
  ~PlainStore();
  PlainStore(const PlainStore&) = delete;
  PlainStore& operator=(const PlainStore&) = delete;

  /// Steps the day's join into nine strings a row.
  std::vector<Line> ReadDay(const std::string& branch);
  /// Deletes the day; for each line looks its product up and inserts the row, which commits by itself.
  void WriteDay(const std::string& branch, const std::vector<Line>& lines);
  /// What entering a line asks: the products of that code, the description, the stock.
  std::size_t LookUpLine(const std::string& branch, const std::string& code);

 private:
  sqlite3_stmt* Prepare(const char* sql);
  /// The first column of the first row, and the statement ready for its next use.
  std::string One(sqlite3_stmt* statement, int column);
  void RunToItsEnd(sqlite3_stmt* statement);

  sqlite3* database_ = nullptr;
  std::vector<sqlite3_stmt*> statements_;
  sqlite3_stmt* day_ = nullptr;
  sqlite3_stmt* delete_day_ = nullptr;
  sqlite3_stmt* product_ = nullptr;
  sqlite3_stmt* insert_ = nullptr;
  sqlite3_stmt* products_of_code_ = nullptr;
  sqlite3_stmt* description_ = nullptr;
  sqlite3_stmt* stock_ = nullptr;
};

}  // namespace orvendal::bench
