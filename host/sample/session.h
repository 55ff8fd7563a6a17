#pragma once

#include <utility>

#include "host/host_context.h"
#include "host/options.h"
#include "host/sample/chosen_store.h"
#include "host/sample/dictionaries.h"
#include "platform/library/library.h"

namespace orvendal {

/// The context of a session as the options ask for it, without a connection.
HostContext ContextFor(const Options& options, WindowHost& window_host, MessagePresenter& messages,
                       RecordsetFactory& recordsets);

/// Opens the store that was chosen and gives the context its connection, and the way to open it anew. A store
/// in memory is gone with its connection, so that opening it anew keeps the one that there is. The context
/// outlives what it was given. Raises StoreUnavailable.
OpenedStore OpenStoreOf(HostContext& context, const ChosenStore& chosen, const Options& options, Date today);

/// Branch, workstation and shift in one line, as the library is told them with each statement.
std::string SessionText(const HostContext& context);

/// The sample host's session object: it fills the session from the context. It leaves the branch code as the
/// caller gave it.
class SampleSession final : public DatosClase {
 public:
  SampleSession(HostContext& context, Dictionaries dictionaries)
      : context_(context), dictionaries_(std::move(dictionaries)) {}

  void RellenarSesion(const SessionArguments& session) override;

 private:
  HostContext& context_;
  Dictionaries dictionaries_;
};

}  // namespace orvendal
