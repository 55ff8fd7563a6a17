#include "adapters/sqlite/statement_cache.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace orvendal::sqlite {
namespace {

constexpr std::size_t kMostIdle = 16;
// Steps of the engine's machine from one look at the clock to the next: some microseconds, or the time of a
// few dozen calls of functions, each of which may take a second at worst.
constexpr int kStepsBetweenLooks = 250;

}  // namespace

StatementLease::StatementLease(std::shared_ptr<StatementCache> cache, std::string sql,
                               sqlite3_stmt* statement)
    : cache_(std::move(cache)), sql_(std::move(sql)), statement_(statement) {}

StatementLease::StatementLease(StatementLease&& other) noexcept
    : cache_(std::move(other.cache_)),
      sql_(std::move(other.sql_)),
      statement_(std::exchange(other.statement_, nullptr)),
      running_(other.running_),
      deadline_(other.deadline_) {}

StatementLease& StatementLease::operator=(StatementLease&& other) noexcept {
  if (this != &other) {
    GiveBack();
    cache_ = std::move(other.cache_);
    sql_ = std::move(other.sql_);
    statement_ = std::exchange(other.statement_, nullptr);
    running_ = other.running_;
    deadline_ = other.deadline_;
  }
  return *this;
}

int StatementLease::Step() {
  using Clock = std::chrono::steady_clock;
  if (!running_) {
    const std::chrono::milliseconds limit = cache_->time_limit_;
    deadline_ = limit.count() > 0 ? Clock::now() + limit : Clock::time_point::max();
  }
  // Steps of two statements may alternate; each has a deadline of its own.
  cache_->deadline_ = deadline_;
  const int code = sqlite3_step(statement_);
  cache_->deadline_ = Clock::time_point::max();
  if (!running_ && sqlite3_stmt_status(statement_, SQLITE_STMTSTATUS_REPREPARE, 1) != 0)
    ++cache_->generation_;
  running_ = code == SQLITE_ROW;
  return code;
}

void StatementLease::Reset() {
  sqlite3_reset(statement_);
  running_ = false;
}

void StatementLease::GiveBack() noexcept {
  if (statement_ == nullptr) return;
  sqlite3_stmt* statement = std::exchange(statement_, nullptr);
  sqlite3_reset(statement);
  sqlite3_clear_bindings(statement);
  if (cache_->database_ == nullptr || sql_.empty()) {
    sqlite3_finalize(statement);
    return;
  }
  std::vector<StatementCache::Idle>& idle = cache_->idle_;
  if (idle.size() == kMostIdle) {
    sqlite3_finalize(idle.front().statement);
    idle.erase(idle.begin());
  }
  idle.push_back({std::move(sql_), statement});
}

StatementCache::StatementCache(sqlite3* database) : database_(database) {
  sqlite3_progress_handler(database_, kStepsBetweenLooks, IsLate, this);
}

int StatementCache::IsLate(void* cache) {
  return std::chrono::steady_clock::now() > static_cast<StatementCache*>(cache)->deadline_ ? 1 : 0;
}

StatementLease StatementCache::Prepare(const std::shared_ptr<StatementCache>& cache, const std::string& sql,
                                       std::string* rest) {
  std::vector<Idle>& idle = cache->idle_;
  const auto found =
      std::find_if(idle.rbegin(), idle.rend(), [&sql](const Idle& entry) { return entry.sql == sql; });
  if (found != idle.rend()) {
    StatementLease lease(cache, std::move(found->sql), found->statement);
    idle.erase(std::next(found).base());
    return lease;
  }
  return PrepareAfresh(cache, sql, rest);
}

StatementLease StatementCache::PrepareAfresh(const std::shared_ptr<StatementCache>& cache,
                                             const std::string& sql, std::string* rest) {
  sqlite3_stmt* statement = nullptr;
  const char* end = nullptr;
  const int code =
      sqlite3_prepare_v2(cache->database_, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, &end);
  if (code != SQLITE_OK || statement == nullptr) return {};
  const std::size_t used = static_cast<std::size_t>(end - sql.c_str());
  if (rest != nullptr) *rest = sql.substr(used);
  return {cache, used == sql.size() ? sql : std::string(), statement};
}

void StatementCache::Clear() noexcept {
  ++generation_;
  for (const Idle& entry : idle_) sqlite3_finalize(entry.statement);
  idle_.clear();
}

void StatementCache::Close() noexcept {
  Clear();
  if (database_ != nullptr) sqlite3_progress_handler(database_, 0, nullptr, nullptr);
  database_ = nullptr;
}

}  // namespace orvendal::sqlite
