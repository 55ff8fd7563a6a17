#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "adapters/win32/windows_api.h"
#include "platform/forms/font.h"

namespace orvendal {

/// The system's fonts for the fonts that forms name, each made once.
///
/// A font is a whole number of device pixels high, the nearest to its points; so the fonts kept are bounded
/// by the heights that occur. Measures are in pixels of the given resolution. A family that is not installed
/// is replaced by one that looks like it.
class Win32Fonts {
 public:
  struct Measures {
    int ascent = 0;
    int height = 0;
  };

  Win32Fonts();
  ~Win32Fonts();
  Win32Fonts(const Win32Fonts&) = delete;
  Win32Fonts& operator=(const Win32Fonts&) = delete;

  /// Owned by this object; nobody leaves it selected.
  HFONT Font(const FontSpec& spec, int dpi) { return Entry(spec, dpi).font; }
  Measures LineMeasures(const FontSpec& spec, int dpi) { return Entry(spec, dpi).measures; }
  int TextWidth(const FontSpec& spec, int dpi, std::wstring_view text);
  /// The pixels that the letters touch, from the upper left corner of the line.
  RECT TextInk(const FontSpec& spec, int dpi, std::wstring_view text);

 private:
  using Key = std::tuple<std::string, int, int, bool>;  // name, height in pixels, weight, italic
  struct Kept {
    HFONT font = nullptr;
    Measures measures;
  };
  const Kept& Entry(const FontSpec& spec, int dpi);

  HDC dc_;
  std::map<Key, Kept> kept_;
};

}  // namespace orvendal
