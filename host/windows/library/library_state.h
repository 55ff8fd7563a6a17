#pragma once

#include <functional>
#include <string>

#include "adapters/ado/ado_recordset_factory.h"
#include "adapters/win32/win32_window_host.h"
#include "host/host_context.h"
#include "host/language.h"
#include "host/library/stand_in_library.h"

namespace orvendal {

/// State that the library's objects in this process share: the session as it stands, windows, messages.
/// Made when it is first needed and kept until nothing needs the module any more; it belongs to the thread
/// that made it.
class LibraryState {
 public:
  /// Raises RPC_E_WRONG_THREAD on another thread than that of the first call.
  static LibraryState& Of();
  /// Whether the module can go: nothing keeps it and no window of it is left. Then the state is dropped.
  static bool LetGoIfUnused() noexcept;
  /// Lets the connection of the session go, if there is one on this thread.
  static void EndSession() noexcept;

  LibraryState(const LibraryState&) = delete;
  LibraryState& operator=(const LibraryState&) = delete;

  HostContext& Context() { return context_; }
  StandInLibrary& Library() { return library_; }
  Win32WindowHost& Windows() { return windows_; }

  Language GetLanguage() const { return language_; }
  void SetLanguage(Language language);

  /// Opens what an ADO connection string names. Raises what ADO raises.
  void OpenConnection(const std::string& connection_string);
  /// Opens the store in `file`, made with the sample chain if it is not there; an empty name is the user's
  /// own. `provider` is what the connection string calls it. Raises StoreUnavailable.
  void OpenStore(std::string file, const std::string& provider);
  /// Takes a connection that the host opened; empty for none.
  void UseConnection(ConnectionRef connection);

 private:
  class BoxMessages;

  LibraryState();
  ~LibraryState();
  bool IsMine() const;

  Win32WindowHost windows_;
  std::unique_ptr<BoxMessages> messages_;
  AdoRecordsetFactory recordsets_;
  Language language_;
  HostContext context_;
  StandInLibrary library_{context_};
  const DWORD thread_ = GetCurrentThreadId();
};

}  // namespace orvendal
