#pragma once

#include "host/language.h"

namespace orvendal {

/// The language in which the system speaks to its user, as far as the host speaks it.
Language LanguageOfUser();

}  // namespace orvendal
