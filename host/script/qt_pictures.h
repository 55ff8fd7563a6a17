#pragma once

#include "host/script/commands.h"

namespace orvendal {

/// Pictures of the screen painted by Qt without a display. To be called once in a program that has no Qt
/// application of its own.
SavePicture QtPictures(const char* program_name);

}  // namespace orvendal
