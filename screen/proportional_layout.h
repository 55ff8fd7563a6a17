#pragma once

#include <cstdint>

#include "platform/forms/form.h"

namespace orvendal {

/// Scales every control of the form from the size `ancho_origen` x `alto_origen` to `nuevo_ancho` x
/// `nuevo_alto` (twips), each length cut to its whole part, and takes a fixed step off the fonts, whatever
/// the ratio. Timers, the panel of the calendar and the title bar are left alone. An origin of 0 raises
/// error 11.
void EscalarControles(Form& form, std::int32_t nuevo_ancho, std::int32_t nuevo_alto,
                      std::int32_t ancho_origen, std::int32_t alto_origen);

}  // namespace orvendal
