#pragma once

struct sqlite3;

namespace orvendal::sqlite {

/// Authorizer of one connection: decides what its statements may do. Codes typed on the screen are pasted
/// into statements, scripts bring their own, and the file may come from anywhere: so the engine refuses what
/// reaches beyond the tables of the file, with an error of the statement. Refused are other files (ATTACH,
/// VACUUM, extensions), virtual tables, pointers given to the engine, values and patterns so long that a
/// single call of a function would hold up the program, and every pragma but those that only tell something.
/// All statements of a process together get 512 MiB of memory. The host's own statements may use any pragma.
/// Foreign keys are not enforced.
///
/// Invariant: watches its connection from its making until LetGo or its end.
class StatementGuard {
 public:
  /// Takes from the connection what no statement needs, before anything of the file is read.
  explicit StatementGuard(sqlite3* database);
  StatementGuard(const StatementGuard&) = delete;
  StatementGuard& operator=(const StatementGuard&) = delete;
  ~StatementGuard() { LetGo(); }

  void LetGo() noexcept;

  /// Scope in which statements are the host's own, which the authorizer lets through.
  class HostsOwn {
   public:
    explicit HostsOwn(StatementGuard& guard) : guard_(guard) { ++guard_.hosts_own_; }
    HostsOwn(const HostsOwn&) = delete;
    HostsOwn& operator=(const HostsOwn&) = delete;
    ~HostsOwn() { --guard_.hosts_own_; }

   private:
    StatementGuard& guard_;
  };

 private:
  static int Decide(void* guard, int action, const char* first, const char* second, const char* database,
                    const char* trigger_or_view);

  sqlite3* database_;
  int hosts_own_ = 0;
};

}  // namespace orvendal::sqlite
