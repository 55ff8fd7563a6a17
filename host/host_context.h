#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "host/words.h"
#include "platform/base/value.h"
#include "platform/data/recordset.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// Shows a message and waits for the answer: a box on a desktop, an answer prepared beforehand elsewhere.
class MessagePresenter {
 public:
  virtual ~MessagePresenter() = default;
  /// `style` is that of a message box (message::kStop and so on); an empty title is shown as the name of the
  /// program. The code of the button pressed; a message that was closed without a button gives
  /// message::kCancel, or message::kOk if that is its only button.
  virtual std::int32_t Present(const std::string& text, std::int32_t style, const std::string& title) = 0;
};

/// State that the sample host shares with its session object and its stand-in library. Outlives both.
struct HostContext {
  WindowHost& window_host;
  MessagePresenter& messages;
  std::reference_wrapper<const Words> words;
  /// For the library's own statements, which are not observed.
  RecordsetFactory& recordsets;

  /// The open connection of the application.
  ConnectionRef connection{};
  /// Opens the store anew; raises StoreUnavailable. Empty where the host cannot.
  std::function<ConnectionRef()> reopen_store{};
  /// The store as it is named to the user.
  std::string store_name{};

  std::string sucursal{};
  std::string puesto = "1";
  std::string turno = "1";
  std::int32_t ancho_base = 15360;  // twips
  std::int32_t alto_base = 11520;   // twips
  Value dato_pantalla = 0.0;
};

}  // namespace orvendal
