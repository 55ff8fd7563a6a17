#pragma once

#include "adapters/qt/qt_fonts.h"
#include "platform/forms/text_measures.h"

namespace orvendal {

/// Text metrics of Qt, where it paints.
class QtTextMeasures final : public TextMeasures {
 public:
  /// `fonts` outlives the object.
  explicit QtTextMeasures(QtFonts& fonts) : fonts_(fonts) {}

  double TextWidth(const FontSpec& font, std::string_view text) override;
  double LineHeight(const FontSpec& font) override;
  Rect TextInk(const FontSpec& font, std::string_view text) override;

 private:
  QtFonts& fonts_;
};

}  // namespace orvendal
