#include <QBackingStore>
#include <QScreen>

#include "adapters/qt/qt_picture.h"
#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

// The whole program runs on a display with one and a half pixels to a pixel.
class WindowScale : public QtFormTest {
 protected:
  // What stands on the screen, not what the window would paint now.
  QImage OnScreen() {
    const auto* image = dynamic_cast<QImage*>(Window()->backingStore()->paintDevice());
    return image == nullptr ? QImage() : image->copy().convertToFormat(QImage::Format_RGB32);
  }
  int PixelsThatDiffer() {
    const QImage screen = OnScreen();
    const QImage whole = RenderForm(*form, Window()->devicePixelRatioF());
    if (screen.size() != whole.size()) return -1;
    int count = 0;
    for (int y = 0; y < whole.height(); ++y) {
      for (int x = 0; x < whole.width(); ++x) count += screen.pixel(x, y) != whole.pixel(x, y) ? 1 : 0;
    }
    return count;
  }
};

TEST_F(WindowScale, LengthsOfTheFormDoNotDependOnTheScale) {
  ShowForm();
  EXPECT_DOUBLE_EQ(Window()->devicePixelRatioF(), 1.5);
  EXPECT_EQ(Window()->size(), QSize(400, 300));
  EXPECT_EQ(host.ScreenWidth(), Window()->screen()->geometry().width() * 15.0);
  int clicks = 0;
  form->right.OnMouseDown = [&](int, int, double x, double y) {
    ++clicks;
    EXPECT_EQ(x, 150);
    EXPECT_EQ(y, 300);
  };
  QTest::mouseClick(Window(), Qt::LeftButton, {}, QPoint(210, 20));
  EXPECT_EQ(clicks, 1);
}

TEST_F(WindowScale, EdgesAreCrisp) {
  ShowForm();
  const QImage image = OnScreen();
  ASSERT_EQ(image.size(), QSize(600, 450));
  EXPECT_EQ(image.pixel(299, 20), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(300, 20), qRgb(0, 0, 255));
  EXPECT_EQ(image.pixel(20, 149), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(20, 150), qRgb(212, 208, 200));
}

TEST_F(WindowScale, PaintingAPartLeavesTheSamePictureAsPaintingAll) {
  ShowForm();
  EXPECT_EQ(PixelsThatDiffer(), 0);
  for (int step = 0; step < 12; ++step) {
    form->right.Move((101 + 3 * step) * kTwipsPerPixel + step, (7 + step) * kTwipsPerPixel,
                     (51 + step) * kTwipsPerPixel + 4, 33 * kTwipsPerPixel);
    form->right.Color({0, static_cast<std::uint8_t>(20 * step), 255});
    form->box.Text("Champú " + std::to_string(step));
    QApplication::processEvents();
    EXPECT_EQ(PixelsThatDiffer(), 0) << step;
  }
}

}  // namespace
}  // namespace orvendal
