#include "host/library/stand_in_messages.h"

#include "host/error_words.h"

namespace orvendal {

void StandInMessages::Mostrar(std::string& texto, std::int32_t& estilo, std::string& titulo,
                              std::int32_t& respuesta) {
  const ModalScope scope(context_.window_host);
  respuesta =
      context_.messages.Present(MessageInWords(context_.words, texto, context_.store_name), estilo, titulo);
}

}  // namespace orvendal
