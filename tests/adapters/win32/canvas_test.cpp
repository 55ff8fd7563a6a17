#include <cmath>
#include <set>

#include "adapters/win32/win32_canvas.h"
#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kBlue{0, 0, 255};
constexpr Rgb kBlack{0, 0, 0};
constexpr std::uint32_t kWhitePixel = 0xFFFFFF, kRedPixel = 0xFF0000, kBluePixel = 0x0000FF, kBlackPixel = 0;

struct Ink {
  int left = 0, top = 0, right = 0, bottom = 0;
  bool operator==(const Ink&) const = default;
  bool IsEmpty() const { return right <= left; }
};
std::ostream& operator<<(std::ostream& out, const Ink& ink) {
  return out << ink.left << ',' << ink.top << ' ' << ink.right << ',' << ink.bottom;
}

int Rounded(double value) {
  return static_cast<int>(std::floor(value + 0.5));
}

/// A white sheet of 100 by 60 pixels of 96 dots to an inch.
class Sheet {
 public:
  explicit Sheet(int dpi = 96, int width = 100, int height = 60)
      : dpi_(dpi), surface_(Rounded(width * dpi / 96.0), Rounded(height * dpi / 96.0)) {
    for (int y = 0; y < surface_.Height(); ++y) {
      std::fill(surface_.Row(y), surface_.Row(y) + surface_.Width(), kWhitePixel);
    }
  }
  Sheet& Paint(const std::function<void(Canvas&)>& paint) {
    Win32Canvas canvas(surface_, fonts_, dpi_, {0, 0, surface_.Width(), surface_.Height()});
    paint(canvas);
    return *this;
  }
  std::uint32_t At(int x, int y) const { return surface_.Row(y)[x] & 0xFFFFFF; }
  std::set<std::uint32_t> Colors() const {
    std::set<std::uint32_t> colors;
    for (int y = 0; y < surface_.Height(); ++y) {
      for (int x = 0; x < surface_.Width(); ++x) colors.insert(At(x, y));
    }
    return colors;
  }
  /// The smallest rectangle that holds all that is not white.
  Ink InkOf() const {
    Ink ink{surface_.Width(), surface_.Height(), 0, 0};
    for (int y = 0; y < surface_.Height(); ++y) {
      for (int x = 0; x < surface_.Width(); ++x) {
        if (At(x, y) == kWhitePixel) continue;
        ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1),
               std::max(ink.bottom, y + 1)};
      }
    }
    return ink.right == 0 ? Ink{} : ink;
  }

 private:
  int dpi_;
  Win32Fonts fonts_;
  DibSurface surface_;
};

TEST(CanvasOnWindows, AreasThatShareAnEdgeMeetWithoutGapAtAnyResolution) {
  for (const int dpi : {96, 120, 144, 192}) {
    for (double edge = 200; edge < 260; edge += 7) {
      Sheet sheet(dpi);
      sheet.Paint([&](Canvas& canvas) {
        canvas.FillRectangle({0, 0, edge, 900}, kRed);
        canvas.FillRectangle({edge, 0, 1500 - edge, 900}, kBlue);
      });
      EXPECT_EQ(sheet.Colors(), (std::set<std::uint32_t>{kRedPixel, kBluePixel})) << dpi << " " << edge;
    }
  }
}

TEST(CanvasOnWindows, AFrameIsWholePixelsWideAndStaysInside) {
  for (const int dpi : {96, 144, 192}) {
    Sheet sheet(dpi);
    sheet.Paint([](Canvas& canvas) { canvas.FrameRectangle({150, 150, 600, 300}, kBlack, kTwipsPerPixel); });
    const double scale = dpi / 96.0;
    EXPECT_EQ(sheet.Colors(), (std::set<std::uint32_t>{kBlackPixel, kWhitePixel})) << dpi;
    EXPECT_EQ(sheet.InkOf(),
              (Ink{Rounded(10 * scale), Rounded(10 * scale), Rounded(50 * scale), Rounded(30 * scale)}));
    EXPECT_EQ(sheet.At(Rounded(12 * scale), Rounded(12 * scale)), kWhitePixel) << dpi;
  }
}

TEST(CanvasOnWindows, AHairlineIsOnePixelAndStraightLinesAreCrisp) {
  Sheet sheet(120);
  sheet.Paint([](Canvas& canvas) {
    canvas.DrawLine({100, 333}, {1200, 333}, kBlack, 0);
    canvas.DrawLine({707, 100}, {707, 800}, kBlack, kTwipsPerPixel);
  });
  EXPECT_EQ(sheet.Colors(), (std::set<std::uint32_t>{kBlackPixel, kWhitePixel}));
}

TEST(CanvasOnWindows, NothingIsPaintedOutsideTheClip) {
  Sheet sheet;
  sheet.Paint([](Canvas& canvas) {
    canvas.Push({150, 150}, {150, 150, 300, 300});
    canvas.FillRectangle({-1000, -1000, 5000, 5000}, kRed);
    canvas.RoundedRectangle({-100, -100, 1000, 1000}, 50, kBlue, kBlack, 45);
    canvas.FillPolygon({{-500, 0}, {900, 0}, {0, 900}}, kBlack);
    canvas.DrawLine({-500, -300}, {900, 700}, kBlack, 60);
    canvas.DrawText({-300, 0, 3000, 300}, "WWWWWWWWWWWW", {}, kBlack, HorizontalAlign::kLeft,
                    VerticalAlign::kTop);
    canvas.FocusRectangle({-30, -30, 600, 600});
    canvas.Pop();
  });
  EXPECT_EQ(sheet.InkOf(), (Ink{10, 10, 30, 30}));
}

TEST(CanvasOnWindows, AnInnerClipCannotReachOutOfTheOuterOneAndPopGivesItBack) {
  Sheet sheet;
  sheet.Paint([](Canvas& canvas) {
    canvas.Push({150, 150}, {150, 150, 150, 150});
    canvas.Push({0, 0}, {-150, -150, 3000, 3000});
    canvas.FillRectangle({-150, -150, 3000, 3000}, kRed);
    canvas.Pop();
    canvas.Pop();
    canvas.FillRectangle({600, 0, 15, 15}, kBlue);
  });
  EXPECT_EQ(sheet.At(10, 10), kRedPixel);
  EXPECT_EQ(sheet.At(9, 9), kWhitePixel);
  EXPECT_EQ(sheet.At(20, 20), kWhitePixel);
  EXPECT_EQ(sheet.At(40, 0), kBluePixel);
}

TEST(CanvasOnWindows, ATextIsClippedToItsBox) {
  Sheet sheet;
  sheet.Paint([](Canvas& canvas) {
    canvas.DrawText({300, 300, 450, 150}, "WWWWWWWWWW", {"Bookman Old Style", 14.25, 600, true}, kBlack,
                    HorizontalAlign::kCenter, VerticalAlign::kCenter);
  });
  const Ink ink = sheet.InkOf();
  EXPECT_FALSE(ink.IsEmpty());
  EXPECT_GE(ink.left, 20);
  EXPECT_GE(ink.top, 20);
  EXPECT_LE(ink.right, 50);
  EXPECT_LE(ink.bottom, 30);
}

TEST(CanvasOnWindows, ATextStandsWhereItIsAligned) {
  const auto ink_of = [](HorizontalAlign horizontal, VerticalAlign vertical) {
    return Sheet()
        .Paint([&](Canvas& canvas) {
          canvas.DrawText({0, 0, 1500, 900}, "H", {}, kBlack, horizontal, vertical);
        })
        .InkOf();
  };
  const Ink upper_left = ink_of(HorizontalAlign::kLeft, VerticalAlign::kTop);
  const Ink middle = ink_of(HorizontalAlign::kCenter, VerticalAlign::kCenter);
  const Ink lower_right = ink_of(HorizontalAlign::kRight, VerticalAlign::kBottom);
  EXPECT_FALSE(upper_left.IsEmpty());
  EXPECT_LT(upper_left.right, 14);
  EXPECT_LT(upper_left.bottom, 16);
  EXPECT_NEAR((middle.left + middle.right) / 2.0, 50, 2);
  EXPECT_NEAR((middle.top + middle.bottom) / 2.0, 30, 3);
  EXPECT_GT(lower_right.left, 86);
  EXPECT_GT(lower_right.bottom, 50);
}

TEST(CanvasOnWindows, AFontIsTheNearestWholePixelHighAtEachResolution) {
  Win32Fonts fonts;
  const FontSpec font{"Bookman Old Style", 9.75, 600, false};
  const int normal = fonts.LineMeasures(font, 96).height;
  EXPECT_GE(normal, 13);
  EXPECT_NEAR(fonts.LineMeasures(font, 192).height, 2 * normal, 2);
  EXPECT_EQ(fonts.Font(font, 96), fonts.Font({"Bookman Old Style", 9.9, 600, false}, 96));
  EXPECT_NE(fonts.Font(font, 96), fonts.Font(font, 192));
}

TEST(CanvasOnWindows, APictureIsPaintedAtItsOwnSizeInItsPalette) {
  Bitmap bitmap;
  bitmap.width = 3;
  bitmap.height = 2;
  bitmap.palette = {kRed, kBlue, kBlack};
  bitmap.pixels = {0, 1, 2, 2, 1, 0};
  const auto paint = [&](Canvas& canvas) { canvas.DrawBitmap({150, 150}, bitmap, {0, 0, 1500, 900}); };
  Sheet sheet;
  sheet.Paint(paint);
  EXPECT_EQ(sheet.InkOf(), (Ink{10, 10, 13, 12}));
  EXPECT_EQ(sheet.At(10, 10), kRedPixel);
  EXPECT_EQ(sheet.At(11, 10), kBluePixel);
  EXPECT_EQ(sheet.At(10, 11), kBlackPixel);
  EXPECT_EQ(sheet.At(12, 11), kRedPixel);

  Sheet doubled(192);
  doubled.Paint(paint);
  EXPECT_EQ(doubled.InkOf(), (Ink{20, 20, 26, 24}));
  EXPECT_EQ(doubled.At(22, 20), kBluePixel);
  EXPECT_EQ(doubled.Colors().size(), 4U);

  bitmap.pixels.pop_back();
  EXPECT_TRUE(Sheet().Paint(paint).InkOf().IsEmpty());
}

TEST(CanvasOnWindows, TheFocusFrameIsSeenOnBlackAndOnWhite) {
  Sheet sheet;
  sheet.Paint([](Canvas& canvas) {
    canvas.FillRectangle({0, 0, 750, 900}, kBlack);
    canvas.FocusRectangle({75, 75, 1350, 600});
  });
  int on_black = 0, on_white = 0;
  for (int x = 10; x < 40; ++x) on_black += sheet.At(x, 5) != kBlackPixel ? 1 : 0;
  for (int x = 60; x < 90; ++x) on_white += sheet.At(x, 5) != kWhitePixel ? 1 : 0;
  EXPECT_EQ(on_black, 15);
  EXPECT_EQ(on_white, 15);
  EXPECT_EQ(sheet.At(50, 20), kWhitePixel);
}

TEST(CanvasOnWindows, ARoundedFrameIsCenteredOnItsEdgeWithOpenCorners) {
  Sheet sheet;
  sheet.Paint([](Canvas& canvas) { canvas.RoundedRectangle({150, 150, 1200, 600}, 150, kRed, kBlue, 45); });
  EXPECT_EQ(sheet.At(8, 30), kWhitePixel);
  EXPECT_EQ(sheet.At(9, 30), kBluePixel);
  EXPECT_EQ(sheet.At(11, 30), kBluePixel);
  EXPECT_EQ(sheet.At(12, 30), kRedPixel);
  EXPECT_EQ(sheet.At(90, 30), kBluePixel);
  EXPECT_EQ(sheet.At(91, 30), kWhitePixel);
  EXPECT_EQ(sheet.At(9, 9), kWhitePixel);
  EXPECT_GT(sheet.Colors().size(), 5U) << "the corners are smooth";
}

TEST(CanvasOnWindows, ARectangleWithoutFillLeavesItsInsideAlone) {
  Sheet sheet;
  sheet.Paint([](Canvas& canvas) {
    canvas.RoundedRectangle({150, 150, 900, 450}, 0, std::nullopt, kBlue, 30);
  });
  EXPECT_EQ(sheet.Colors(), (std::set<std::uint32_t>{kBluePixel, kWhitePixel}));
}

TEST(CanvasOnWindows, AnArrowIsFilledInsideItsPoints) {
  Sheet sheet;
  sheet.Paint([](Canvas& canvas) { canvas.FillPolygon({{150, 150}, {450, 150}, {300, 300}}, kBlack); });
  EXPECT_EQ(sheet.At(20, 12), kBlackPixel);
  EXPECT_EQ(sheet.At(12, 18), kWhitePixel);
  const Ink ink = sheet.InkOf();
  EXPECT_TRUE(ink.left >= 10 && ink.right <= 30 && ink.top >= 10 && ink.bottom <= 20) << ink;
}

TEST(CanvasOnWindows, APartOfAFormIsPaintedLikeTheWhole) {
  const auto paint = [](Canvas& canvas) {
    canvas.FillRectangle({0, 0, 1500, 900}, {212, 208, 200});
    canvas.RoundedRectangle({95, 95, 1207, 607}, 150, kRed, kBlue, 45);
    canvas.FillPolygon({{155, 152}, {451, 153}, {303, 305}}, kBlack);
    canvas.DrawText({200, 300, 900, 300}, "Champú", {}, kBlack, HorizontalAlign::kCenter,
                    VerticalAlign::kCenter);
    canvas.FocusRectangle({45, 45, 1400, 800});
  };
  for (const int dpi : {96, 120, 144}) {
    Win32Fonts fonts;
    const int width = Rounded(100 * dpi / 96.0), height = Rounded(60 * dpi / 96.0);
    DibSurface whole(width, height), part(37, 23);
    {
      Win32Canvas canvas(whole, fonts, dpi, {0, 0, width, height});
      paint(canvas);
    }
    const RECT place{21, 13, 58, 36};
    {
      Win32Canvas canvas(part, fonts, dpi, place);
      paint(canvas);
    }
    int different = 0;
    for (int y = 0; y < 23; ++y) {
      for (int x = 0; x < 37; ++x) {
        if ((part.Row(y)[x] & 0xFFFFFF) != (whole.Row(y + place.top)[x + place.left] & 0xFFFFFF)) ++different;
      }
    }
    EXPECT_EQ(different, 0) << dpi;
  }
}

}  // namespace
}  // namespace orvendal
