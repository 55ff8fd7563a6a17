#pragma once

#include <windows.h>

#include <unknwn.h>

namespace orvendal {

/// What every function of the planted library answers.
inline constexpr LRESULT kPlantedAnswer = 0x50BAD;

}  // namespace orvendal
