#pragma once

#include "host/host_context.h"
#include "platform/library/library.h"

namespace orvendal {

/// Messages, shown by whoever shows them in this program; the description of an error in them is told in the
/// words of the language.
class StandInMessages final : public Mensajes {
 public:
  explicit StandInMessages(HostContext& context) : context_(context) {}

  void Mostrar(std::string& texto, std::int32_t& estilo, std::string& titulo,
               std::int32_t& respuesta) override;

 private:
  HostContext& context_;
};

}  // namespace orvendal
