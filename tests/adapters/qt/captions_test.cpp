#include <QImage>
#include <QPainter>

#include "adapters/headless/headless_host.h"
#include "adapters/qt/qt_canvas.h"
#include "adapters/qt/qt_picture.h"
#include "tests/adapters/qt/qt_fixture.h"
#include "tests/support/caption_screen.h"
#include "tests/support/cut_texts.h"

namespace orvendal {
namespace {

CutTexts TextsOf(Form& form, QtFonts& fonts, double scale) {
  const double pixels_per_twip = scale / kTwipsPerPixel;
  CutTexts texts(form, pixels_per_twip,
                 [&fonts, scale, pixels_per_twip](int left, int top, int width, int height,
                                                  const std::function<void(Canvas&)>& draw) {
                   QImage image(width, height, QImage::Format_RGB32);
                   image.fill(Qt::white);
                   QPainter painter(&image);
                   QtCanvas canvas(painter, fonts, scale, {-left / pixels_per_twip, -top / pixels_per_twip});
                   draw(canvas);
                   const auto* first = reinterpret_cast<const QRgb*>(image.constBits());
                   return CutTexts::Picture(first, first + width * height);
                 });
  form.Paint(texts, {0, 0, form.Width(), form.Height()});
  return texts;
}

QtHostOptions Playing(DisplaySize display) {
  QtHostOptions options;
  options.display = QSize(display.width, display.height);
  return options;
}

/// As a window shows it.
struct WindowScreen {
  WindowScreen(DisplaySize display, Language language)
      : host(Region::Spanish(), clock, Playing(display)), screen(host, language) {}
  ~WindowScreen() {
    screen.Close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  StillClock clock;
  QtWindowHost host;
  CaptionScreen screen;
};

/// As a script shows it, laid out by numbers that every machine shares.
struct ScriptScreen {
  ScriptScreen(DisplaySize display, Language language)
      : host(Region::Spanish(), clock),
        screen((host.SetScreen(display.width, display.height), host), language) {}
  StillClock clock;
  HeadlessHost host;
  CaptionScreen screen;
};

TEST(Captions, NoneIsCutOnAnyDisplayInAnyLanguageAtAnyScale) {
  for (const DisplaySize display : kCaptionDisplays) {
    for (const Language language : kCaptionLanguages) {
      WindowScreen window(display, language);
      for (const double scale : kCaptionScales) {
        const CutTexts texts = TextsOf(window.screen.Form(), window.host.Fonts(), scale);
        EXPECT_GE(texts.Seen().size(), 15U);
        EXPECT_EQ(texts.Cut(), std::vector<std::string>()) << Named(display, language, scale);
      }
    }
  }
}

TEST(ScriptPictures, NoCaptionIsCut) {
  for (const DisplaySize display : {DisplaySize{640, 480}, DisplaySize{1024, 768}, DisplaySize{1920, 1080}}) {
    for (const Language language : kCaptionLanguages) {
      ScriptScreen script(display, language);
      QtFonts fonts;
      QtTextMeasures measures(fonts);
      const HeadlessHost::MeasuredBy painting(script.host, measures);
      const CutTexts texts = TextsOf(script.screen.Form(), fonts, 1.0);
      EXPECT_GE(texts.Seen().size(), 15U);
      EXPECT_EQ(texts.Cut(), std::vector<std::string>()) << Named(display, language, 1.0);
    }
  }
}

// With other fonts than those that the numbers were taken from, the widths of labels differ.
bool HasTheFontsOfTheNumbers() {
  return QtFonts::FamilyFor("Bookman Old Style") == "URW Bookman" &&
         QtFonts::FamilyFor("MS Sans Serif") == "Nimbus Sans";
}

TEST(ScriptPictures, APictureIsWhatAWindowShows) {
  ASSERT_TRUE(HasTheFontsOfTheNumbers())
      << "install the fonts URW Bookman and Nimbus Sans (fonts-urw-base35)";
  for (const DisplaySize display : kCaptionDisplays) {
    for (const Language language : kCaptionLanguages) {
      WindowScreen window(display, language);
      ScriptScreen script(display, language);
      QtTextMeasures measures(window.host.Fonts());
      const HeadlessHost::MeasuredBy painting(script.host, measures);
      const QImage shown = RenderForm(window.screen.Form(), window.host.Fonts());
      const QImage saved = RenderForm(script.screen.Form(), window.host.Fonts());
      ASSERT_EQ(shown.size(), saved.size());
      int different = 0;
      for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) different += shown.pixel(x, y) == saved.pixel(x, y) ? 0 : 1;
      }
      EXPECT_EQ(different, 0) << Named(display, language, 1.0);
    }
  }
}

}  // namespace
}  // namespace orvendal
