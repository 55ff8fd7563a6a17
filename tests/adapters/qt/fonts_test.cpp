#include <QFontDatabase>
#include <QFontInfo>

#include "adapters/qt/qt_fonts.h"
#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

const FontSpec kTextFont{"Bookman Old Style", 9.75, 600, false};

TEST(Fonts, AFamilyThatIsMissingIsReplacedByOneThatIsThere) {
  for (const char* name : {"Bookman Old Style", "MS Sans Serif", "No Such Family At All"}) {
    const QString family = QtFonts::FamilyFor(name);
    EXPECT_TRUE(QFontDatabase::hasFamily(family)) << name << " " << family.toStdString();
  }
  if (QFontDatabase::hasFamily("URW Bookman") && !QFontDatabase::hasFamily("Bookman Old Style")) {
    EXPECT_EQ(QtFonts::FamilyFor("Bookman Old Style"), "URW Bookman");
  }
}

TEST(Fonts, AFamilyThatIsThereIsTaken) {
  const QString installed = QFontDatabase::families().first();
  EXPECT_EQ(QtFonts::FamilyFor(installed), installed);
}

TEST(Fonts, AFontIsAWholeNumberOfPixelsHigh) {
  QtFonts fonts;
  const std::pair<double, int> expected[] = {{8.25, 11}, {9.75, 13},  {10, 13},
                                             {12, 16},   {14.25, 19}, {0.1, 1}};
  for (const auto& [points, pixels] : expected) {
    FontSpec spec = kTextFont;
    spec.size = points;
    EXPECT_EQ(fonts.Font(spec).pixelSize(), pixels) << points;
  }
}

TEST(Fonts, ALargerFontTakesMoreRoom) {
  QtFonts fonts;
  FontSpec larger = kTextFont;
  larger.size = 10.5;
  const QString text = QStringLiteral("Modificaciones sin guardar");
  EXPECT_GT(fonts.TextWidth(larger, text), fonts.TextWidth(kTextFont, text));
}

// Measures are kept for texts that come again.
TEST(Fonts, ATextMeasuresTheSameHoweverManyWereMeasuredBefore) {
  QtFonts fonts;
  const QFontMetricsF metrics(fonts.Font(kTextFont));
  FontSpec italic = kTextFont;
  italic.italic = true;
  const QFontMetricsF italic_metrics(fonts.Font(italic));
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 1500; ++i) {
      const QString text = "P" + QString::number(i * 7919);
      ASSERT_EQ(fonts.TextWidth(kTextFont, text), metrics.horizontalAdvance(text));
      ASSERT_EQ(fonts.TextWidth(italic, text), italic_metrics.horizontalAdvance(text));
      const double ascent = fonts.LineMeasures(kTextFont).ascent;
      ASSERT_EQ(fonts.TextInk(kTextFont, text), metrics.tightBoundingRect(text).translated(0, ascent));
    }
  }
  const QString long_text(5000, u'm');
  EXPECT_EQ(fonts.TextWidth(kTextFont, long_text), metrics.horizontalAdvance(long_text));
}

TEST(Fonts, SizesThatGiveTheSamePixelsAreOneFont) {
  QtFonts fonts;
  FontSpec near = kTextFont;
  near.size = 10;
  EXPECT_EQ(&fonts.Font(near), &fonts.Font(kTextFont));
  near.size = 10.5;
  EXPECT_NE(&fonts.Font(near), &fonts.Font(kTextFont));
}

TEST(Fonts, SemiBoldIsHeavierThanNormal) {
  QtFonts fonts;
  FontSpec normal = kTextFont;
  normal.weight = 400;
  EXPECT_GT(fonts.TextWidth(kTextFont, "Estilista"), fonts.TextWidth(normal, "Estilista"));
  EXPECT_GE(fonts.Font(kTextFont).weight(), QFont::DemiBold);
  EXPECT_LT(fonts.Font(normal).weight(), QFont::DemiBold);
}

TEST(Fonts, WidthsOfPartsAddUpSoThatTheCaretStandsBetweenCharacters) {
  QtFonts fonts;
  for (const char* text : {"AVAToWaffiflfj", "ñandú Él"}) {
    const QString whole = QString::fromUtf8(text);
    double sum = 0;
    for (const QChar character : whole) sum += fonts.TextWidth(kTextFont, QString(character));
    EXPECT_NEAR(fonts.TextWidth(kTextFont, whole), sum, 0.01) << text;
  }
}

TEST(Fonts, ALineIsAsHighAsItsFontInWholePixels) {
  QtFonts fonts;
  const QtFonts::Measures measures = fonts.LineMeasures(kTextFont);
  EXPECT_EQ(measures.height, std::floor(measures.height));
  EXPECT_GT(measures.height, 13);  // 9.75 points are 13 pixels
  EXPECT_LT(measures.height, 24);
  EXPECT_GT(measures.ascent, measures.height / 2);
}

TEST(Fonts, LineBreaksInATextOfOneLineAreBlanks) {
  EXPECT_EQ(SingleLine("a\r\nb\tc"), QStringLiteral("a  b c"));
  EXPECT_EQ(SingleLine("Él"), QString::fromUtf8("Él"));
}

}  // namespace
}  // namespace orvendal
