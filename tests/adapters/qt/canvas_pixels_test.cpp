#include <QImage>
#include <QPainter>
#include <set>

#include "adapters/qt/qt_canvas.h"
#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kBlue{0, 0, 255};
constexpr Rgb kBlack{0, 0, 0};

// What `paint` leaves on a white sheet of that many pixels of scale 1.
QImage Painted(double scale, const std::function<void(QtCanvas&)>& paint, int width = 100, int height = 60) {
  QImage image(qRound(width * scale), qRound(height * scale), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  QtFonts fonts;
  QtCanvas canvas(painter, fonts, scale);
  paint(canvas);
  return image;
}

std::set<QRgb> ColorsOf(const QImage& image) {
  std::set<QRgb> colors;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y));
  }
  return colors;
}

// The smallest rectangle that holds all that is not white.
QRect Ink(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != qRgb(255, 255, 255)) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

TEST(CanvasPixels, AreasThatShareAnEdgeMeetWithoutGapAtAnyScale) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
    for (double edge = 200; edge < 260; edge += 7) {
      const QImage image = Painted(scale, [&](QtCanvas& canvas) {
        canvas.FillRectangle({0, 0, 101, 900}, kBlue);
        canvas.FillRectangle({101, 0, edge - 101, 900}, kRed);
        canvas.FillRectangle({edge, 0, 1500 - edge, 900}, kBlue);
      });
      EXPECT_EQ(ColorsOf(image), (std::set<QRgb>{qRgb(255, 0, 0), qRgb(0, 0, 255)})) << scale << " " << edge;
    }
  }
}

TEST(CanvasPixels, AFrameIsWholePixelsWideAndStaysInside) {
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QImage image = Painted(scale, [](QtCanvas& canvas) {
      canvas.FrameRectangle({150, 150, 600, 300}, kBlack, kTwipsPerPixel);
    });
    EXPECT_EQ(ColorsOf(image), (std::set<QRgb>{qRgb(0, 0, 0), qRgb(255, 255, 255)})) << scale;
    const int left = qRound(10 * scale), right = qRound(50 * scale), top = qRound(10 * scale);
    EXPECT_EQ(Ink(image), QRect(QPoint(left, top), QPoint(right - 1, qRound(30 * scale) - 1))) << scale;
    EXPECT_EQ(image.pixel(left + qRound(scale), top + qRound(scale)), qRgb(255, 255, 255)) << scale;
  }
}

TEST(CanvasPixels, AHairlineIsOnePixel) {
  const QImage image = Painted(1, [](QtCanvas& canvas) {
    canvas.FrameRectangle({0, 0, 150, 150}, kBlack, 0);
  });
  EXPECT_EQ(image.pixel(0, 5), qRgb(0, 0, 0));
  EXPECT_EQ(image.pixel(1, 5), qRgb(255, 255, 255));
}

TEST(CanvasPixels, StraightLinesAreCrispAtAnyScale) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
    const QImage image = Painted(scale, [](QtCanvas& canvas) {
      canvas.DrawLine({100, 333}, {1200, 333}, kBlack, kTwipsPerPixel);
      canvas.DrawLine({707, 100}, {707, 800}, kBlack, kTwipsPerPixel);
    });
    EXPECT_EQ(ColorsOf(image), (std::set<QRgb>{qRgb(0, 0, 0), qRgb(255, 255, 255)})) << scale;
  }
}

TEST(CanvasPixels, NothingIsPaintedOutsideTheClip) {
  const QImage image = Painted(1, [](QtCanvas& canvas) {
    canvas.Push({150, 150}, {150, 150, 300, 300});
    canvas.FillRectangle({-1000, -1000, 5000, 5000}, kRed);
    canvas.RoundedRectangle({-100, -100, 1000, 1000}, 50, kBlue, kBlack, 45);
    canvas.FillPolygon({{-500, 0}, {900, 0}, {0, 900}}, kBlack);
    canvas.DrawText({-300, 0, 3000, 300}, "WWWWWWWWWWWW", {}, kBlack, HorizontalAlign::kLeft,
                    VerticalAlign::kTop);
    canvas.FocusRectangle({-30, -30, 600, 600});
    canvas.Pop();
  });
  EXPECT_EQ(Ink(image), QRect(10, 10, 20, 20));
}

TEST(CanvasPixels, AnInnerClipCannotReachOutOfTheOuterOneAndPopGivesItBack) {
  const QImage image = Painted(1, [](QtCanvas& canvas) {
    canvas.Push({150, 150}, {150, 150, 150, 150});
    canvas.Push({0, 0}, {-150, -150, 3000, 3000});
    canvas.FillRectangle({-150, -150, 3000, 3000}, kRed);
    canvas.Pop();
    canvas.Pop();
    canvas.FillRectangle({600, 0, 15, 15}, kBlue);
  });
  EXPECT_EQ(image.pixel(10, 10), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(9, 9), qRgb(255, 255, 255));
  EXPECT_EQ(image.pixel(20, 20), qRgb(255, 255, 255));
  EXPECT_EQ(image.pixel(40, 0), qRgb(0, 0, 255));
}

TEST(CanvasPixels, ATextIsClippedToItsBox) {
  const Rect box{300, 300, 450, 150};
  const QImage image = Painted(1, [&](QtCanvas& canvas) {
    canvas.DrawText(box, "WWWWWWWWWW", {"Bookman Old Style", 14.25, 600, true}, kBlack,
                    HorizontalAlign::kCenter, VerticalAlign::kCenter);
  });
  EXPECT_FALSE(Ink(image).isEmpty());
  EXPECT_TRUE(QRect(20, 20, 30, 10).contains(Ink(image)));
}

TEST(CanvasPixels, ATextStandsWhereItIsAligned) {
  const auto ink_of = [](HorizontalAlign horizontal, VerticalAlign vertical) {
    return Ink(Painted(1, [&](QtCanvas& canvas) {
      canvas.DrawText({0, 0, 1500, 900}, "H", {}, kBlack, horizontal, vertical);
    }));
  };
  const QRect upper_left = ink_of(HorizontalAlign::kLeft, VerticalAlign::kTop);
  const QRect middle = ink_of(HorizontalAlign::kCenter, VerticalAlign::kCenter);
  const QRect lower_right = ink_of(HorizontalAlign::kRight, VerticalAlign::kBottom);
  EXPECT_LT(upper_left.right(), 12);
  EXPECT_LT(upper_left.bottom(), 14);
  EXPECT_NEAR(middle.center().x(), 50, 1);
  EXPECT_NEAR(middle.center().y(), 30, 2);
  EXPECT_GT(lower_right.left(), 88);
  EXPECT_GT(lower_right.bottom(), 52);
}

TEST(CanvasPixels, ATextTakesTheSameRoomAtAnyScale) {
  const FontSpec font{"Bookman Old Style", 9.75, 600, false};
  const std::string text = "Champú para cabellos teñidos";
  const auto width_at = [&](double scale) {
    return Ink(Painted(
                   scale,
                   [&](QtCanvas& canvas) {
                     canvas.DrawText({0, 0, 6000, 600}, text, font, kBlack, HorizontalAlign::kLeft,
                                     VerticalAlign::kTop);
                   },
                   400, 40))
               .width() /
           scale;
  };
  EXPECT_NEAR(width_at(1.5), width_at(1.0), 1.5);
  EXPECT_NEAR(width_at(2.0), width_at(1.0), 1.5);
}

// Texts that come again are copied; what they lie on is not always of one colour.
TEST(CanvasPixels, ATextThatIsPaintedAgainLooksTheSameOnAnyGround) {
  const FontSpec font{"MS Sans Serif", 12, 400, false};
  Bitmap bitmap;
  bitmap.width = bitmap.height = 10;
  bitmap.palette = {kBlue};
  bitmap.pixels.assign(100, 0);
  using Paint = std::function<void(QtCanvas&)>;
  const std::vector<std::pair<const char*, Paint>> grounds = {
      {"one colour", [](QtCanvas&) {}},
      {"a line under it",
       [](QtCanvas& canvas) {
         canvas.FillRectangle({0, 150, 3000, 15}, kBlue);
       }},
      {"half of it",
       [](QtCanvas& canvas) {
         canvas.FillRectangle({0, 0, 300, 600}, kBlue);
       }},
      {"less high",
       [](QtCanvas& canvas) {
         canvas.FillRectangle({0, 0, 3000, 150}, kBlue);
       }},
      {"its upper edge",
       [](QtCanvas& canvas) {
         canvas.FillRectangle({0, 0, 3000, 15}, kBlue);
       }},
      {"a frame",
       [](QtCanvas& canvas) {
         canvas.FrameRectangle({150, 75, 600, 150}, kBlue, 15);
       }},
      {"dots",
       [](QtCanvas& canvas) {
         canvas.FocusRectangle({150, 75, 600, 150});
       }},
      {"round corners",
       [](QtCanvas& canvas) {
         canvas.RoundedRectangle({150, 75, 600, 150}, 60, kBlue, kBlue, 15);
       }},
      {"a slanted line",
       [](QtCanvas& canvas) {
         canvas.DrawLine({0, 0}, {900, 300}, kBlue, 15);
       }},
      {"an arrow",
       [](QtCanvas& canvas) {
         canvas.FillPolygon({{150, 0}, {600, 300}, {150, 300}}, kBlue);
       }},
      {"a picture",
       [&](QtCanvas& canvas) {
         canvas.DrawBitmap({150, 75}, bitmap, {0, 0, 3000, 600});
       }},
      {"another text",
       [&](QtCanvas& canvas) {
         canvas.DrawText({60, 0, 3000, 600}, "Wwwww", font, kBlue, HorizontalAlign::kLeft,
                         VerticalAlign::kTop);
       }},
      {"a caret",
       [](QtCanvas& canvas) {
         canvas.Invert({300, 0, 15, 300});
       }},
  };
  const auto image_of = [&](QtFonts& fonts, const Paint& ground, double width) {
    QImage image(220, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtCanvas canvas(painter, fonts, 1);
    canvas.FillRectangle({0, 0, 3000, 600}, kRed);
    ground(canvas);
    canvas.DrawText({0, 0, width, 600}, "Champú", font, kBlack, HorizontalAlign::kLeft, VerticalAlign::kTop);
    return image;
  };
  QtFonts used;
  for (int round = 0; round < 3; ++round) {
    for (const auto& [name, ground] : grounds) {
      for (const double width : {3000.0, 400.0}) {
        QtFonts fresh;
        EXPECT_EQ(image_of(used, ground, width), image_of(fresh, ground, width))
            << name << ", round " << round;
      }
    }
  }
}

TEST(CanvasPixels, APictureIsPaintedAtItsOwnSizeInItsPalette) {
  Bitmap bitmap;
  bitmap.width = 3;
  bitmap.height = 2;
  bitmap.palette = {kRed, kBlue, kBlack};
  bitmap.pixels = {0, 1, 2, 2, 1, 0};
  const auto paint = [&](QtCanvas& canvas) { canvas.DrawBitmap({150, 150}, bitmap, {0, 0, 1500, 900}); };
  const QImage image = Painted(1, paint);
  EXPECT_EQ(Ink(image), QRect(10, 10, 3, 2));
  EXPECT_EQ(image.pixel(10, 10), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(11, 10), qRgb(0, 0, 255));
  EXPECT_EQ(image.pixel(10, 11), qRgb(0, 0, 0));
  EXPECT_EQ(image.pixel(12, 11), qRgb(255, 0, 0));

  const QImage doubled = Painted(2, paint);
  EXPECT_EQ(Ink(doubled), QRect(20, 20, 6, 4));
  EXPECT_EQ(doubled.pixel(22, 20), qRgb(0, 0, 255));
  EXPECT_EQ(doubled.pixel(23, 21), qRgb(0, 0, 255));
  EXPECT_EQ(ColorsOf(doubled).size(), 4U);
}

TEST(CanvasPixels, APictureIsClippedAndAnUnfinishedOneLeftOut) {
  Bitmap bitmap;
  bitmap.width = 40;
  bitmap.height = 40;
  bitmap.palette = {kRed};
  bitmap.pixels.assign(1600, 0);
  EXPECT_EQ(Ink(Painted(1,
                        [&](QtCanvas& canvas) {
                          canvas.DrawBitmap({0, 0}, bitmap, {75, 75, 150, 150});
                        })),
            QRect(5, 5, 10, 10));
  bitmap.pixels.pop_back();
  EXPECT_TRUE(Ink(Painted(1, [&](QtCanvas& canvas) {
                canvas.DrawBitmap({0, 0}, bitmap, {0, 0, 900, 900});
              })).isEmpty());
}

TEST(CanvasPixels, TheFocusFrameIsSeenOnBlackAndOnWhite) {
  const QImage image = Painted(1, [](QtCanvas& canvas) {
    canvas.FillRectangle({0, 0, 750, 900}, kBlack);
    canvas.FocusRectangle({75, 75, 1350, 600});
  });
  const auto dots = [&](int from, int to, QRgb background) {
    int count = 0;
    for (int x = from; x < to; ++x) count += image.pixel(x, 5) != background ? 1 : 0;
    return count;
  };
  EXPECT_EQ(dots(10, 40, qRgb(0, 0, 0)), 15);
  EXPECT_EQ(dots(60, 90, qRgb(255, 255, 255)), 15);
  EXPECT_EQ(image.pixel(50, 20), qRgb(255, 255, 255));
}

TEST(CanvasPixels, ARoundedFrameIsCenteredOnItsEdgeWithOpenCorners) {
  const QImage image = Painted(1, [](QtCanvas& canvas) {
    canvas.RoundedRectangle({150, 150, 1200, 600}, 150, kRed, kBlue, 45);
  });
  // The left border covers one pixel outside the edge and two inside.
  EXPECT_EQ(image.pixel(8, 30), qRgb(255, 255, 255));
  EXPECT_EQ(image.pixel(9, 30), qRgb(0, 0, 255));
  EXPECT_EQ(image.pixel(11, 30), qRgb(0, 0, 255));
  EXPECT_EQ(image.pixel(12, 30), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(90, 30), qRgb(0, 0, 255));
  EXPECT_EQ(image.pixel(91, 30), qRgb(255, 255, 255));
  EXPECT_EQ(image.pixel(9, 9), qRgb(255, 255, 255));
}

TEST(CanvasPixels, ARectangleWithoutFillLeavesItsInsideAlone) {
  const QImage image = Painted(1, [](QtCanvas& canvas) {
    canvas.RoundedRectangle({150, 150, 900, 450}, 0, std::nullopt, kBlue, 30);
  });
  EXPECT_EQ(image.pixel(40, 25), qRgb(255, 255, 255));
  EXPECT_EQ(ColorsOf(image), (std::set<QRgb>{qRgb(0, 0, 255), qRgb(255, 255, 255)}));
}

TEST(CanvasPixels, AnArrowIsFilledInsideItsPoints) {
  const QImage image = Painted(1, [](QtCanvas& canvas) {
    canvas.FillPolygon({{150, 150}, {450, 150}, {300, 300}}, kBlack);
  });
  EXPECT_EQ(image.pixel(20, 12), qRgb(0, 0, 0));
  EXPECT_EQ(image.pixel(12, 18), qRgb(255, 255, 255));
  EXPECT_TRUE(QRect(10, 10, 20, 10).contains(Ink(image)));
}

TEST(CanvasPixels, ACaretIsSeenOnAnyGround) {
  const QImage image = Painted(1, [](QtCanvas& canvas) {
    canvas.FillRectangle({0, 0, 750, 900}, kBlack);
    canvas.Invert({300, 300, 1, 150});
    canvas.Invert({900, 300, 1, 150});
  });
  EXPECT_EQ(image.pixel(20, 25), qRgb(255, 255, 255));
  EXPECT_EQ(image.pixel(21, 25), qRgb(0, 0, 0));
  EXPECT_EQ(image.pixel(60, 25), qRgb(0, 0, 0));
}

}  // namespace
}  // namespace orvendal
