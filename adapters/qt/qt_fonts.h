#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QRectF>
#include <QString>
#include <map>
#include <string_view>

#include "platform/forms/font.h"

namespace orvendal {

/// One line of text, as the widgets of the engine show it: control characters become blanks.
QString SingleLine(std::string_view text);

/// The fonts of the system for the fonts that forms name.
///
/// A form's point is 96/72 of a logical pixel on every display, and a font a whole number of logical pixels
/// high, as on the platform that forms come from. A family that is missing is replaced by one of like look.
/// Characters are neither kerned nor joined, so that widths add up and a caret stands where its character is
/// drawn. Measures are in logical pixels and the same at any scale.
class QtFonts {
 public:
  struct Measures {
    double ascent = 0;
    double height = 0;
  };

  const QFont& Font(const FontSpec& spec) { return Entry(spec).font; }
  /// Whole pixels.
  Measures LineMeasures(const FontSpec& spec);
  double TextWidth(const FontSpec& spec, const QString& text);
  /// The pixels that the letters touch, from the upper left corner of the line.
  QRectF TextInk(const FontSpec& spec, const QString& text);
  /// The family that stands in for `name`; `name` itself if the system has it.
  static QString FamilyFor(const QString& name);

 private:
  struct Less {
    bool operator()(const FontSpec& left, const FontSpec& right) const;
  };
  struct Kept {
    QFont font;
    QFontMetricsF metrics;
  };
  const Kept& Entry(const FontSpec& spec);

  std::map<FontSpec, Kept, Less> kept_;
};

}  // namespace orvendal
