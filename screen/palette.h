#pragma once

#include "platform/forms/color.h"

namespace orvendal::palette {

inline constexpr ColorWord kSand =
    0xD3E8E9;  // panels, title labels, grid body, face of an unavailable button
inline constexpr ColorWord kDarkSand =
    0xA5CACB;  // grid header, rim of an unavailable button, field with the focus
inline constexpr ColorWord kLavender = 0xF8B7AF;    // field labels, the bar behind the panels
inline constexpr ColorWord kButtonFace = 0xE1C0B3;  // face of an available button, line under the cursor
inline constexpr ColorWord kButtonRim = 0x800000;   // rim of an available button
inline constexpr ColorWord kMaroon = 0x000080;      // group frames and title labels
inline constexpr ColorWord kPeriwinkle = 0xFFC0C0;  // selection of the grid, calendar background
inline constexpr ColorWord kWhite = 0xFFFFFF;
inline constexpr ColorWord kBlack = 0x000000;

}  // namespace orvendal::palette
