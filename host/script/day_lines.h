#pragma once

#include <string>

#include "platform/forms/form.h"

namespace orvendal {

/// The used lines of a grid of the screen, one a line: the row's number and its columns, separated by tabs.
/// Empty if the form has no grid of that name.
std::string LinesOf(const Form& form, std::string_view grid_name);

}  // namespace orvendal
