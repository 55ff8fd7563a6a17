#include "adapters/qt/qt_text_measures.h"

namespace orvendal {

double QtTextMeasures::TextWidth(const FontSpec& font, std::string_view text) {
  return fonts_.TextWidth(font, SingleLine(text)) * kTwipsPerPixel;
}

double QtTextMeasures::LineHeight(const FontSpec& font) {
  return fonts_.LineMeasures(font).height * kTwipsPerPixel;
}

Rect QtTextMeasures::TextInk(const FontSpec& font, std::string_view text) {
  const QRectF ink = fonts_.TextInk(font, SingleLine(text));
  return {ink.x() * kTwipsPerPixel, ink.y() * kTwipsPerPixel, ink.width() * kTwipsPerPixel,
          ink.height() * kTwipsPerPixel};
}

}  // namespace orvendal
