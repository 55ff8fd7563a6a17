#include "adapters/win32/win32_canvas.h"
#include "adapters/win32/win32_window_host.h"
#include "tests/support/caption_screen.h"
#include "tests/support/cut_texts.h"
#include "tests/windows/win32/win32_fixture.h"

namespace orvendal {
namespace {

constexpr double kDesignDpi = 96.0;

/// The desktop on a display of another size.
class SizedHost final : public Win32WindowHost {
 public:
  SizedHost(DisplaySize display, Win32HostOptions options)
      : Win32WindowHost(std::move(options)), display_(display) {}
  double ScreenWidth() override { return display_.width * kTwipsPerPixel; }
  double ScreenHeight() override { return display_.height * kTwipsPerPixel; }

 private:
  DisplaySize display_;
};

CutTexts TextsOf(Form& form, Win32Fonts& fonts, int dpi) {
  CutTexts texts(
      form, dpi / kDesignDpi / kTwipsPerPixel,
      [&fonts, dpi](int left, int top, int width, int height, const std::function<void(Canvas&)>& draw) {
        DibSurface surface(width, height);
        for (int y = 0; y < height; ++y) std::fill_n(surface.Row(y), width, 0xFFFFFFU);
        {
          Win32Canvas canvas(surface, fonts, dpi, {left, top, left + width, top + height});
          draw(canvas);
        }
        GdiFlush();
        CutTexts::Picture picture;
        for (int y = 0; y < height; ++y) {
          for (int x = 0; x < width; ++x) picture.push_back(surface.Row(y)[x] & 0xFFFFFFU);
        }
        return picture;
      });
  form.Paint(texts, {0, 0, form.Width(), form.Height()});
  return texts;
}

TEST(CaptionsOnWindows, NoneIsCutOnAnyDisplayInAnyLanguageAtAnyScale) {
  StillClock clock;
  for (const DisplaySize display : kCaptionDisplays) {
    for (const Language language : kCaptionLanguages) {
      for (const double scale : kCaptionScales) {
        Win32HostOptions options;
        options.region = &Region::Spanish();
        options.clock = &clock;
        options.dpi = static_cast<int>(kDesignDpi * scale);
        SizedHost host(display, options);
        CaptionScreen screen(host, language);
        const CutTexts texts = TextsOf(screen.Form(), host.Fonts(), options.dpi);
        EXPECT_GE(texts.Seen().size(), 15U);
        EXPECT_EQ(texts.Cut(), std::vector<std::string>()) << Named(display, language, scale);
      }
    }
  }
}

}  // namespace
}  // namespace orvendal
