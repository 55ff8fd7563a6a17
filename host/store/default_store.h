#pragma once

#include <string>

namespace orvendal {

/// The file of the store if none is named: orvendal/cadena.db where the user's data belong.
std::string DefaultStore();

}  // namespace orvendal
