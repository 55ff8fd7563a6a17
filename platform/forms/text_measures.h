#pragma once

#include <string_view>

#include "platform/forms/font.h"
#include "platform/forms/geometry.h"

namespace orvendal {

/// Text metrics: the extents of lines of text in the fonts of one system, in twips. A text is one line of
/// UTF-8.
class TextMeasures {
 public:
  virtual ~TextMeasures() = default;

  virtual double TextWidth(const FontSpec& font, std::string_view text) = 0;
  /// Of any line, whatever stands in it.
  virtual double LineHeight(const FontSpec& font) = 0;
  /// Where the letters of that line really leave colour, from the upper left corner of a box of TextWidth by
  /// LineHeight: leaning letters reach out of it, most others leave room above and below.
  virtual Rect TextInk(const FontSpec& font, std::string_view text) {
    return {0, 0, TextWidth(font, text), LineHeight(font)};
  }
};

}  // namespace orvendal
