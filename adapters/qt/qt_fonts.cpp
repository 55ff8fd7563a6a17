#include "adapters/qt/qt_fonts.h"

#include <QFontDatabase>
#include <QImage>
#include <QStringList>
#include <cmath>
#include <tuple>

namespace orvendal {
namespace {

constexpr int kReferenceDotsPerInch = 96;
constexpr double kPointsPerInch = 72.0;
constexpr int kLightestBold = 600;

// A device of 96 dots per inch to measure on, whatever the display has.
const QImage& ReferenceDevice() {
  static const QImage device = [] {
    QImage image(1, 1, QImage::Format_RGB32);
    const int dots_per_meter = static_cast<int>(std::ceil(kReferenceDotsPerInch / 0.0254));
    image.setDotsPerMeterX(dots_per_meter);
    image.setDotsPerMeterY(dots_per_meter);
    return image;
  }();
  return device;
}

QFont MakeFont(const FontSpec& spec, int dots_per_inch) {
  QFont font(QtFonts::FamilyFor(QString::fromStdString(spec.name)));
  font.setPointSizeF(spec.size * kReferenceDotsPerInch / dots_per_inch);
  // Half-bold is the heaviest cut of some families; asking for more would make an artificial one.
  font.setWeight(spec.weight >= kLightestBold ? QFont::DemiBold : QFont::Normal);
  font.setItalic(spec.italic);
  font.setKerning(false);
  font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::PreferNoShaping));
  font.setHintingPreference(QFont::PreferVerticalHinting);
  return font;
}

QString FirstInstalled(const QStringList& families) {
  for (const QString& family : families) {
    if (QFontDatabase::hasFamily(family)) return family;
  }
  return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

}  // namespace

QString SingleLine(std::string_view text) {
  QString line = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  for (QChar& character : line) {
    if (character.unicode() < 0x20 || character == QChar::LineSeparator ||
        character == QChar::ParagraphSeparator)
      character = u' ';
  }
  return line;
}

bool QtFonts::Less::operator()(const FontSpec& left, const FontSpec& right) const {
  return std::tie(left.size, left.weight, left.italic, left.name) <
         std::tie(right.size, right.weight, right.italic, right.name);
}

QString QtFonts::FamilyFor(const QString& name) {
  if (QFontDatabase::hasFamily(name)) return name;
  if (name.compare(u"Bookman Old Style", Qt::CaseInsensitive) == 0) {
    return FirstInstalled({"URW Bookman", "Bookman URW", "URW Bookman L", "TeX Gyre Bonum", "DejaVu Serif"});
  }
  return FirstInstalled({"Microsoft Sans Serif", "Liberation Sans", "Arimo", "Nimbus Sans", "Helvetica",
                         "Arial", "DejaVu Sans"});
}

const QFont& QtFonts::Font(const FontSpec& spec, int dots_per_inch) {
  auto& fonts = fonts_[dots_per_inch];
  const auto found = fonts.find(spec);
  if (found != fonts.end()) return found->second;
  return fonts.emplace(spec, MakeFont(spec, dots_per_inch)).first->second;
}

const QFontMetricsF& QtFonts::Metrics(const FontSpec& spec) {
  const auto found = metrics_.find(spec);
  if (found != metrics_.end()) return found->second;
  const QFont& font = Font(spec, kReferenceDotsPerInch);
  return metrics_.emplace(spec, QFontMetricsF(font, &ReferenceDevice())).first->second;
}

QtFonts::Measures QtFonts::LineMeasures(const FontSpec& spec) {
  const QFontMetricsF& metrics = Metrics(spec);
  const double ascent = std::round(metrics.ascent());
  return {ascent, ascent + std::round(metrics.descent())};
}

double QtFonts::TextWidth(const FontSpec& spec, const QString& text) {
  return Metrics(spec).horizontalAdvance(text);
}

}  // namespace orvendal
