#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QRectF>
#include <QString>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

#include "adapters/qt/qt_text_images.h"
#include "platform/forms/font.h"

namespace orvendal {

/// One line of text, as the widgets of the engine show it: control characters become blanks.
QString SingleLine(std::string_view text);

/// The fonts of the system for the fonts that forms name.
///
/// A form's point is 96/72 of a logical pixel on every display, and a font a whole number of logical pixels
/// high, as on the platform that forms come from. A family that is missing is replaced by one of like look.
/// Characters are neither kerned nor joined, so that widths add up and a caret stands where its character is
/// drawn. Measures are in logical pixels and the same at any scale. Texts that were measured lately are not
/// measured again.
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
  /// Of texts in these fonts.
  QtTextImages& Images() { return images_; }
  /// The family that stands in for `name`; `name` itself if the system has it.
  static QString FamilyFor(const QString& name);

 private:
  struct Less {
    bool operator()(const FontSpec& left, const FontSpec& right) const;
  };
  struct TextSize {
    double width = 0;
    std::optional<QRectF> ink;  // from the base line
  };
  struct Kept {
    QFont font;
    QFontMetricsF metrics;
    Measures line;
    QHash<QString, TextSize> sizes;
  };
  // Sizes that differ by less than a pixel are one font: family, pixels, bold, italic.
  using Cut = std::tuple<QString, int, bool, bool>;
  Kept& Entry(const FontSpec& spec);
  const QString& Family(const std::string& name);
  static TextSize& SizeOf(Kept& kept, const QString& text);

  std::map<FontSpec, Kept*, Less> specs_;
  std::map<Cut, Kept> kept_;
  std::map<std::string, QString> families_;
  FontSpec last_spec_;
  Kept* last_ = nullptr;  // of that one
  QtTextImages images_;
};

}  // namespace orvendal
