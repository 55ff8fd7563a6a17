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

int PixelsOf(const FontSpec& spec) {
  return std::max(1, qRound(spec.size * kPixelsPerPoint));
}

QFont MakeFont(const QString& family, int pixels, bool bold, bool italic) {
  QFont font(family);
  font.setPixelSize(pixels);
  // Half-bold is the heaviest cut of some families; asking for more would make an artificial one.
  font.setWeight(bold ? QFont::DemiBold : QFont::Normal);
  font.setItalic(italic);
  font.setKerning(false);
  font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::PreferNoShaping));
  font.setHintingPreference(QFont::PreferVerticalHinting);
  return font;
}

// A line is as high as the whole pixels that it touches; newer versions of Qt tell parts of them.
QtFonts::Measures LineOf(const QFontMetricsF& metrics) {
  const double ascent = std::ceil(metrics.ascent());
  return {ascent, ascent + std::ceil(metrics.descent())};
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

const QString& QtFonts::Family(const std::string& name) {
  const auto found = families_.find(name);
  if (found != families_.end()) return found->second;
  return families_.emplace(name, FamilyFor(QString::fromStdString(name))).first->second;
}

QtFonts::Kept& QtFonts::Entry(const FontSpec& spec) {
  if (last_ != nullptr && spec == last_spec_) return *last_;
  auto found = specs_.find(spec);
  if (found == specs_.end()) {
    const QString& family = Family(spec.name);
    const int pixels = PixelsOf(spec);
    const bool bold = spec.weight >= kLightestBold;
    const Cut cut(family, pixels, bold, spec.italic);
    auto kept = kept_.find(cut);
    if (kept == kept_.end()) {
      const QFont font = MakeFont(family, pixels, bold, spec.italic);
      const QFontMetricsF metrics(font);
      kept = kept_.emplace(cut, Kept{font, metrics, LineOf(metrics), {}}).first;
    }
    found = specs_.emplace(spec, &kept->second).first;
  }
  last_spec_ = spec;
  last_ = found->second;
  return *last_;
}

QtFonts::TextSize& QtFonts::SizeOf(Kept& kept, const QString& text) {
  constexpr qsizetype kMostSizes = 1000;
  constexpr qsizetype kLongestText = 200;
  const auto found = kept.sizes.find(text);
  if (found != kept.sizes.end()) return *found;
  if (kept.sizes.size() >= kMostSizes || text.size() > kLongestText) kept.sizes.clear();
  return *kept.sizes.insert(text, {kept.metrics.horizontalAdvance(text), std::nullopt});
}

QtFonts::Measures QtFonts::LineMeasures(const FontSpec& spec) {
  return Entry(spec).line;
}

double QtFonts::TextWidth(const FontSpec& spec, const QString& text) {
  return SizeOf(Entry(spec), text).width;
}

QRectF QtFonts::TextInk(const FontSpec& spec, const QString& text) {
  Kept& kept = Entry(spec);
  TextSize& size = SizeOf(kept, text);
  if (!size.ink) size.ink = kept.metrics.tightBoundingRect(text);
  return size.ink->translated(0, kept.line.ascent);
}

}  // namespace orvendal
