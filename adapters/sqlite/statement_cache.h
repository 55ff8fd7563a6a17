#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace orvendal::sqlite {

class StatementCache;

/// The use of a prepared statement. Gives it back, reset, when it ends. It is stepped through the lease
/// alone, which ends it when it has run for longer than the connection allows.
class StatementLease {
 public:
  StatementLease() = default;
  /// An empty `sql` marks a statement that is not to be kept.
  StatementLease(std::shared_ptr<StatementCache> cache, std::string sql, sqlite3_stmt* statement);
  StatementLease(StatementLease&& other) noexcept;
  StatementLease& operator=(StatementLease&& other) noexcept;
  StatementLease(const StatementLease&) = delete;
  StatementLease& operator=(const StatementLease&) = delete;
  ~StatementLease() { GiveBack(); }

  /// For parameters and columns.
  sqlite3_stmt* Get() const { return statement_; }
  /// As the engine steps. The time of a statement runs from its first step to its last.
  int Step();
  void Reset();
  explicit operator bool() const { return statement_ != nullptr; }

 private:
  void GiveBack() noexcept;

  std::shared_ptr<StatementCache> cache_;
  std::string sql_;
  sqlite3_stmt* statement_ = nullptr;
  bool running_ = false;
  std::chrono::steady_clock::time_point deadline_;
};

/// The prepared statements of a connection that are not in use, the latest ones. It may outlive the
/// connection; then it keeps nothing.
class StatementCache {
 public:
  explicit StatementCache(sqlite3* database);
  StatementCache(const StatementCache&) = delete;
  StatementCache& operator=(const StatementCache&) = delete;
  ~StatementCache() { Close(); }

  /// An empty lease if the engine cannot prepare `sql`, whose reason is the connection's last error, or if
  /// there is no statement in it. What follows the first statement of `sql` goes to `rest`, if that is given;
  /// only a statement with nothing after it is kept for further use.
  static StatementLease Prepare(const std::shared_ptr<StatementCache>& cache, const std::string& sql,
                                std::string* rest = nullptr);
  /// The same, never one that was prepared before: its columns are those that the tables have now.
  static StatementLease PrepareAfresh(const std::shared_ptr<StatementCache>& cache, const std::string& sql,
                                      std::string* rest = nullptr);
  /// How long a statement may run, the waiting of whoever steps it included; zero for without end.
  void TimeLimit(std::chrono::milliseconds limit) { time_limit_ = limit; }
  /// Changes whenever the tables that statements name may have changed: at Clear, and when a statement that
  /// was prepared earlier turned out to be out of date.
  std::uint64_t Generation() const { return generation_; }
  /// Forgets the statements that are not in use.
  void Clear() noexcept;
  void Close() noexcept;

 private:
  friend class StatementLease;
  struct Idle {
    std::string sql;
    sqlite3_stmt* statement;
  };

  static int IsLate(void* cache);

  sqlite3* database_;
  std::chrono::milliseconds time_limit_{0};
  std::chrono::steady_clock::time_point deadline_ = std::chrono::steady_clock::time_point::max();
  std::uint64_t generation_ = 0;
  std::vector<Idle> idle_;  // the latest last
};

}  // namespace orvendal::sqlite
