#include "platform/forms/color.h"

#include <array>

namespace orvendal {

ColorWord ClassicSystemColor(std::uint32_t index) {
  static constexpr std::array<ColorWord, 25> kClassic = {
      0xC8D0D4, 0xA56E3A, 0x800000, 0x808080, 0xFFFFFF, 0xFFFFFF, 0x000000, 0x000000, 0x000000,
      0xFFFFFF, 0xC8D0D4, 0xC8D0D4, 0x808080, 0xC56A31, 0xFFFFFF, 0xC8D0D4, 0x808080, 0x808080,
      0x000000, 0xC8D0D4, 0xFFFFFF, 0x404040, 0xC8D0D4, 0x000000, 0xE1FFFF};
  return index < kClassic.size() ? kClassic[index] : 0;
}

}  // namespace orvendal
