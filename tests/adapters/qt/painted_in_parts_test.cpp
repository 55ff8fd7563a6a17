// A screen that is painted piece by piece, in whatever order, shows what it shows painted whole, and what a
// canvas shows that is asked to paint what nobody will see, too: nothing is left out because something was
// taken to lie over it.

#include <QPainter>
#include <random>

#include "adapters/qt/qt_canvas.h"
#include "adapters/qt/qt_picture.h"
#include "tests/adapters/qt/qt_fixture.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

// Does not tell what need not be painted.
class SilentCanvas final : public Canvas {
 public:
  explicit SilentCanvas(Canvas& canvas) : canvas_(canvas) {}
  void FillRectangle(const Rect& rect, Rgb color) override { canvas_.FillRectangle(rect, color); }
  void FrameRectangle(const Rect& rect, Rgb color, double width) override {
    canvas_.FrameRectangle(rect, color, width);
  }
  void FocusRectangle(const Rect& rect) override { canvas_.FocusRectangle(rect); }
  void RoundedRectangle(const Rect& rect, double radius, std::optional<Rgb> fill, Rgb border,
                        double width) override {
    canvas_.RoundedRectangle(rect, radius, fill, border, width);
  }
  void DrawLine(Point from, Point to, Rgb color, double width) override {
    canvas_.DrawLine(from, to, color, width);
  }
  void FillPolygon(const std::vector<Point>& points, Rgb color) override {
    canvas_.FillPolygon(points, color);
  }
  void DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb color,
                HorizontalAlign horizontal, VerticalAlign vertical) override {
    canvas_.DrawText(box, text, font, color, horizontal, vertical);
  }
  void DrawBitmap(Point at, const Bitmap& bitmap, const Rect& clip) override {
    canvas_.DrawBitmap(at, bitmap, clip);
  }
  void Push(Point origin, const Rect& clip) override { canvas_.Push(origin, clip); }
  void Pop() override { canvas_.Pop(); }

 private:
  Canvas& canvas_;
};

class PaintedInParts : public ::testing::TestWithParam<double> {
 protected:
  PaintedInParts() : driver(host) { driver.AddCounts(30); }
  ~PaintedInParts() override {
    if (driver.HasForm()) driver.form().Unload();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static QtHostOptions Options() {
    QtHostOptions options;
    options.display = QSize(kWidth, kHeight);
    return options;
  }

  QImage InParts(std::uint32_t seed, bool tells) {
    const double scale = GetParam();
    QImage image(qRound(kWidth * scale), qRound(kHeight * scale), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    QtCanvas telling(painter, fonts, scale);
    SilentCanvas silent(telling);
    for (const QRect& part : Parts(seed)) {
      driver.form().Paint(tells ? static_cast<Canvas&>(telling) : silent,
                          {part.x() * kTwipsPerPixel, part.y() * kTwipsPerPixel,
                           part.width() * kTwipsPerPixel, part.height() * kTwipsPerPixel});
    }
    return image;
  }

  void ExpectSameInParts(const char* what) {
    const QImage whole = RenderForm(driver.form(), fonts, GetParam());
    // Slanted lines, which the cross in the title bar has, are not the same in parts.
    const int below_title = qRound((driver.form().Barra1.Height() / kTwipsPerPixel + 1) * GetParam());
    for (std::uint32_t seed = 1; seed <= 3; ++seed) {
      QImage parts = InParts(seed, true);
      ASSERT_EQ(parts, InParts(seed, false)) << what << ", seed " << seed;
      if (const auto caret = driver.form().CaretRectangle()) {
        QPainter painter(&parts);
        QtCanvas(painter, fonts, GetParam()).Invert(*caret);
      }
      int different = 0;
      QPoint first;
      for (int y = below_title; y < whole.height(); ++y) {
        for (int x = 0; x < whole.width(); ++x) {
          if (whole.pixel(x, y) != parts.pixel(x, y) && ++different == 1) first = QPoint(x, y);
        }
      }
      ASSERT_EQ(different, 0) << what << ", seed " << seed << ", first at " << first.x() << "," << first.y();
    }
  }

  StillClock clock;
  QtWindowHost host{Region::Spanish(), clock, Options()};
  QtFonts fonts;
  ScreenDriver driver;

 private:
  // Tiles between cuts at any logical pixels, in any order; then some places once more.
  static std::vector<QRect> Parts(std::uint32_t seed) {
    std::mt19937 random(seed);
    const auto cuts = [&random](int length) {
      std::vector<int> all = {0, length};
      for (int i = 0; i < 7; ++i)
        all.push_back(1 + static_cast<int>(random() % static_cast<unsigned>(length - 1)));
      std::sort(all.begin(), all.end());
      return all;
    };
    const std::vector<int> across = cuts(kWidth);
    const std::vector<int> down = cuts(kHeight);
    std::vector<QRect> parts;
    for (std::size_t y = 1; y < down.size(); ++y) {
      for (std::size_t x = 1; x < across.size(); ++x) {
        parts.emplace_back(across[x - 1], down[y - 1], across[x] - across[x - 1], down[y] - down[y - 1]);
      }
    }
    std::shuffle(parts.begin(), parts.end(), random);
    for (int i = 0; i < 20; ++i) {
      parts.emplace_back(static_cast<int>(random() % 1000), static_cast<int>(random() % 700),
                         1 + static_cast<int>(random() % 24), 1 + static_cast<int>(random() % 60));
    }
    return parts;
  }
};

TEST_P(PaintedInParts, TheScreenWithItsLinesItsEditorAndItsCalendar) {
  driver.OpenWithStylist();
  ExpectSameInParts("lines");
  driver.DoubleClickCell(5, 3);
  ExpectSameInParts("editor");
  driver.Type("12");
  driver.form().MSFProductos.TopRow(12);
  ExpectSameInParts("editor beyond the edge");
  driver.Key(key::kEscape);
  driver.Click("TxtFechaHora");
  ExpectSameInParts("date");
}

INSTANTIATE_TEST_SUITE_P(Scales, PaintedInParts, ::testing::Values(1.0, 1.25, 1.5, 2.0));

}  // namespace
}  // namespace orvendal
