#include "adapters/qt/qt_fonts.h"

#include <QFontDatabase>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <tuple>

namespace orvendal {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr int kLightestBold = 600;

QFont MakeFont(const FontSpec& spec) {
  QFont font(QtFonts::FamilyFor(QString::fromStdString(spec.name)));
  font.setPixelSize(std::max(1, qRound(spec.size * kPixelsPerPoint)));
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

const QtFonts::Kept& QtFonts::Entry(const FontSpec& spec) {
  const auto found = kept_.find(spec);
  if (found != kept_.end()) return found->second;
  const QFont font = MakeFont(spec);
  return kept_.emplace(spec, Kept{font, QFontMetricsF(font)}).first->second;
}

QtFonts::Measures QtFonts::LineMeasures(const FontSpec& spec) {
  const QFontMetricsF& metrics = Entry(spec).metrics;
  // A line is as high as the whole pixels that it touches; newer versions of Qt tell parts of them.
  const double ascent = std::ceil(metrics.ascent());
  return {ascent, ascent + std::ceil(metrics.descent())};
}

double QtFonts::TextWidth(const FontSpec& spec, const QString& text) {
  return Entry(spec).metrics.horizontalAdvance(text);
}

QRectF QtFonts::TextInk(const FontSpec& spec, const QString& text) {
  return Entry(spec).metrics.tightBoundingRect(text).translated(0, LineMeasures(spec).ascent);
}

}  // namespace orvendal
