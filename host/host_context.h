#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "host/dictionaries.h"
#include "host/message_presenter.h"
#include "host/words.h"
#include "platform/base/value.h"
#include "platform/data/recordset.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// State that the sample host shares with its session object and its stand-in library. Outlives both.
struct HostContext {
  WindowHost& window_host;
  MessagePresenter& messages;
  std::reference_wrapper<const Words> words;
  /// For the library's own statements, which nobody watches.
  RecordsetFactory& recordsets;

  /// The open connection of the application.
  ConnectionRef connection;
  /// Opens the store anew; raises StoreUnavailable. Empty where the host cannot.
  std::function<ConnectionRef()> reopen_store;
  /// The store as it is named to the user.
  std::string store_name;

  std::string sucursal;
  std::string puesto;
  std::string turno;
  std::int32_t ancho_base = 15360;  // twips
  std::int32_t alto_base = 11520;   // twips
  Value dato_pantalla = 0.0;
  Dictionaries dictionaries;
};

/// What was told about a statement: who works where.
std::string SessionText(const HostContext& context);

}  // namespace orvendal
