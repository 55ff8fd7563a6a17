#pragma once

#include <cstdint>

namespace orvendal {

/// The platform's colour word 0xBBGGRR; with the top bit set, the index of a system colour.
using ColorWord = std::uint32_t;

namespace system_color {
inline constexpr ColorWord kScrollBars = 0x80000000;
inline constexpr ColorWord kActiveTitleBar = 0x80000002;
inline constexpr ColorWord kWindowBackground = 0x80000005;
inline constexpr ColorWord kWindowFrame = 0x80000006;
inline constexpr ColorWord kWindowText = 0x80000008;
inline constexpr ColorWord kTitleBarText = 0x80000009;
inline constexpr ColorWord kApplicationWorkspace = 0x8000000C;
inline constexpr ColorWord kHighlight = 0x8000000D;
inline constexpr ColorWord kHighlightText = 0x8000000E;
inline constexpr ColorWord kButtonFace = 0x8000000F;
inline constexpr ColorWord kButtonShadow = 0x80000010;
inline constexpr ColorWord kGrayText = 0x80000011;
inline constexpr ColorWord kButtonText = 0x80000012;
inline constexpr ColorWord kButtonHighlight = 0x80000014;
inline constexpr ColorWord kButtonDarkShadow = 0x80000015;
}  // namespace system_color

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Rgb&) const = default;
};

constexpr bool IsSystemColor(ColorWord color) {
  return (color & 0x80000000U) != 0;
}
constexpr std::uint32_t SystemColorIndex(ColorWord color) {
  return color & 0xFFU;
}
constexpr Rgb RgbOf(ColorWord color) {
  return {static_cast<std::uint8_t>(color & 0xFFU), static_cast<std::uint8_t>((color >> 8) & 0xFFU),
          static_cast<std::uint8_t>((color >> 16) & 0xFFU)};
}

/// The classic desktop's colour for a system colour index, as a plain colour word; for hosts whose system has
/// none.
ColorWord ClassicSystemColor(std::uint32_t index);

}  // namespace orvendal
