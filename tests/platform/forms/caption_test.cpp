#include <gtest/gtest.h>

#include "platform/forms/boton.h"
#include "platform/forms/command_button.h"
#include "platform/forms/control_looks.h"
#include "platform/forms/label.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

constexpr double kPixel = kTwipsPerPixel;

/// Fonts whose letters lean over their box by so many pixels to the left and to the right.
class LeaningFonts final : public TextMeasures {
 public:
  explicit LeaningFonts(TextMeasures& upright) : upright_(upright) {}
  double left = 0;
  double right = 0;
  double TextWidth(const FontSpec& font, std::string_view text) override {
    return upright_.TextWidth(font, text);
  }
  double LineHeight(const FontSpec& font) override { return upright_.LineHeight(font); }
  Rect TextInk(const FontSpec& font, std::string_view text) override {
    Rect ink = upright_.TextInk(font, text);
    ink.left = -left * kPixel;
    ink.width = TextWidth(font, text) + (left + right) * kPixel;
    return ink;
  }

 private:
  TextMeasures& upright_;
};

/// How texts are painted.
class TextsSeen final : public Canvas {
 public:
  struct Text {
    Rect line;
    Rect clip;
    std::string text;
    FontSpec font;
  };
  std::vector<Text> texts;
  std::vector<Rect> lines;

  void FillRectangle(const Rect&, Rgb) override {}
  void FrameRectangle(const Rect&, Rgb, double) override {}
  void FocusRectangle(const Rect&) override {}
  void RoundedRectangle(const Rect&, double, std::optional<Rgb>, Rgb, double) override {}
  void DrawLine(Point from, Point to, Rgb, double) override {
    lines.push_back({from.x, from.y, to.x - from.x, to.y - from.y});
  }
  void FillPolygon(const std::vector<Point>&, Rgb) override {}
  void DrawBitmap(Point, const Bitmap&, const Rect&) override {}
  void DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb, HorizontalAlign,
                VerticalAlign vertical) override {
    EXPECT_EQ(vertical, VerticalAlign::kTop);
    texts.push_back({box, clips_.back(), std::string(text), font});
  }
  // Of the control, since each test has one only.
  void Push(Point, const Rect& clip) override { clips_.push_back(clip); }
  void Pop() override { clips_.pop_back(); }

 private:
  std::vector<Rect> clips_;
};

class CaptionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    form->Show();
    label.Font().Spec(kFont);
  }
  double WidthOf(const FontSpec& font, const std::string& text = "Cancelar") {
    return host.TextWidth(font, text);
  }
  FontSpec Sized(double points) {
    FontSpec font = kFont;
    font.size = points;
    return font;
  }
  TextsSeen::Text Painted() {
    TextsSeen canvas;
    form->Paint(canvas, {0, 0, form->Width(), form->Height()});
    if (canvas.texts.size() != 1) throw std::logic_error("not one text painted");
    return canvas.texts.front();
  }

  const FontSpec kFont{"Bookman Old Style", 14.25, 600, false};
  FixedClock clock{Date(2026, 11, 16, 9, 5, 0)};
  HeadlessHost upright{Region::Spanish(), clock};
  LeaningFonts fonts{upright};
  HeadlessHost host{Region::Spanish(), clock};
  const HeadlessHost::MeasuredBy measured{host, fonts};
  std::shared_ptr<StageForm> form = std::make_shared<StageForm>(host);
  Label& label = form->Add<Label>("LblCancelar", {0, 0, 3000, 600});
};

TEST_F(CaptionTest, ACaptionThatFitsKeepsItsFont) {
  label.Design("Cancelar", true, false);
  label.Width(WidthOf(kFont));
  EXPECT_EQ(Painted().font, kFont);
}

TEST_F(CaptionTest, ACaptionThatIsTooWideIsWrittenInTheLargestFontThatFits) {
  label.Design("Cancelar", true, false);
  // A font is a whole number of pixels high: 14.25 points are 19, and 18 and 17 follow.
  label.Width(WidthOf(kFont) - 1);
  EXPECT_EQ(WidthOf(Painted().font), WidthOf(Sized(13.5)));
  label.Width(WidthOf(Sized(13.5)) - 1);
  EXPECT_EQ(WidthOf(Painted().font), WidthOf(Sized(12.75)));
  EXPECT_EQ(Painted().font.name, kFont.name);
  EXPECT_EQ(Painted().font.weight, kFont.weight);
}

// Seen: captions were cut where the letters of a desktop are wider.
TEST_F(CaptionTest, ALabelThatDoesNotSizeItselfWritesSmallerToo) {
  label.Design("Cancelar", false, false);
  label.Width(WidthOf(kFont) - 1);
  EXPECT_EQ(WidthOf(Painted().font), WidthOf(Sized(13.5)));
}

TEST_F(CaptionTest, ABorderTakesItsRoom) {
  label.Design("Cancelar", false, false);
  label.BorderStyle(1);
  label.Width(WidthOf(kFont) + 2 * kPixel);
  EXPECT_EQ(Painted().font, kFont);
  label.Width(WidthOf(kFont) + 2 * kPixel - 1);
  EXPECT_LT(Painted().font.size, kFont.size);
}

TEST_F(CaptionTest, ButtonsWriteSmallerRatherThanCut) {
  label.Visible(false);
  auto& button = form->Add<CommandButton>("Button", {0, 0, 3000, 600});
  auto& boton = form->Add<Boton>("Boton", {0, 0, 3000, 600});
  form->Unload();
  form->Show();
  label.Visible(false);
  boton.Visible(false);
  button.Caption("Cancelar");
  button.Font().Spec(kFont);
  button.Width(WidthOf(kFont));  // its edges take some of that
  EXPECT_LE(WidthOf(Painted().font), button.Width() - 4 * kPixel);
  EXPECT_LT(Painted().font.size, kFont.size);
  boton.Visible(true);
  button.Visible(false);
  boton.StoredProperties({{"caption", std::string("Cancelar")}, {"font", kFont}});
  boton.Width(WidthOf(kFont));
  EXPECT_LE(WidthOf(Painted().font), boton.Width() - 2 * kPixel);
  EXPECT_LT(Painted().font.size, kFont.size);
}

TEST_F(CaptionTest, ATextThatWouldBecomeTooSmallToReadKeepsItsFont) {
  label.Design("Cancelar", true, false);
  label.Width(WidthOf(kFont) / 2);
  EXPECT_EQ(Painted().font, kFont);
  label.Width(WidthOf(kFont) * 0.7);
  EXPECT_LT(Painted().font.size, kFont.size);
}

TEST_F(CaptionTest, LettersThatLeanOutOfTheirBoxCount) {
  label.Design("Cancelar", true, false);
  label.Width(WidthOf(kFont));
  fonts.right = 1;
  EXPECT_EQ(WidthOf(Painted().font), WidthOf(Sized(13.5)));
  fonts.right = 0;
  fonts.left = 1;
  EXPECT_EQ(WidthOf(Painted().font), WidthOf(Sized(13.5)));
}

TEST_F(CaptionTest, AFirstLetterThatLeansBackStandsSoThatItShows) {
  fonts.left = 1;
  label.Design("Agenda", false, false);
  EXPECT_EQ(Painted().line.left, kPixel);
  label.Alignment(HorizontalAlign::kRight);
  EXPECT_EQ(Painted().line.left, 0);
}

TEST_F(CaptionTest, ALabelThatSizesItselfHasRoomForLeaningLetters) {
  fonts.right = 2;
  fonts.left = 1;
  label.AutoSize(true);
  label.Caption("Cancelar");
  EXPECT_DOUBLE_EQ(label.Width(), WidthOf(kFont) + 3 * kPixel);
  EXPECT_EQ(Painted().font, kFont);
}

TEST_F(CaptionTest, ALineThatIsTallerThanItsBoxShowsAllOfItsLetters) {
  label.Design("Página", true, false);
  const Rect ink = host.TextInk(kFont, "Página");
  label.Height(ink.height + 2 * kPixel);
  ASSERT_LT(label.Height(), host.LineHeight(kFont));
  const TextsSeen::Text seen = Painted();
  EXPECT_EQ(seen.font, kFont);
  EXPECT_DOUBLE_EQ(seen.line.top + ink.top, kPixel);
  label.Height(ink.height + kPixel);
  EXPECT_LT(Painted().font.size, kFont.size);
}

TEST_F(CaptionTest, ALineThatHasRoomStandsWhereItsAlignmentSays) {
  label.Design("Página", true, false);
  EXPECT_EQ(Painted().line.top, 0);
  TextsSeen canvas;
  const Rect box{0, 100, 3000, 900};
  PaintCaption(canvas, host, box, "a", kFont, {}, HorizontalAlign::kLeft, VerticalAlign::kCenter);
  PaintCaption(canvas, host, box, "a", kFont, {}, HorizontalAlign::kLeft, VerticalAlign::kBottom);
  EXPECT_DOUBLE_EQ(canvas.texts[0].line.top, 100 + (900 - host.LineHeight(kFont)) / 2);
  EXPECT_DOUBLE_EQ(canvas.texts[1].line.Bottom(), 1000);
  EXPECT_EQ(canvas.texts[0].clip, box);
}

TEST_F(CaptionTest, WhatAWindowInFrontCoversOfALabelIsNoRoomForItsText) {
  Control& cover = form->Add<CommandButton>("Cover", {0, 0, 900, 900});
  form->Unload();
  form->Show();
  label.Design("Página", false, false);
  label.Font().Spec(kFont);
  cover.Move(0, 300, 4000, 900);
  const TextsSeen::Text lower_part = Painted();
  EXPECT_EQ(lower_part.clip, (Rect{0, 0, 3000, 300}));
  EXPECT_EQ(lower_part.font.size, FittingFont(host, kFont, "Página", {0, 0, 3000, 300}).size);
  EXPECT_LT(lower_part.font.size, kFont.size);
  cover.Move(WidthOf(kFont, "Página") - 1, 0, 4000, 900);
  EXPECT_LT(Painted().font.size, kFont.size);
  cover.Move(-1000, 0, 1600, 900);
  EXPECT_EQ(Painted().clip.left, 600);
  cover.Visible(false);
  EXPECT_EQ(Painted().clip, (Rect{0, 0, 3000, 600}));
  label.Left(form->Width() - 1500);
  EXPECT_EQ(Painted().clip.width, 1500);
}

TEST_F(CaptionTest, ALabelIsPaintedWholeWhenAWindowComesOverPartOfItMovesOrGoes) {
  Control& cover = form->Add<CommandButton>("Cover", {9000, 300, 900, 900});
  form->Unload();
  form->Show();
  label.Design("Página", false, false);
  const auto label_waits = [&] {
    for (const Rect& area : form->TakeDirtyRectangles()) {
      if (area.Intersection(label.Bounds()) == label.Bounds()) return true;
    }
    return false;
  };
  form->TakeDirtyRectangles();
  cover.Left(100);
  EXPECT_TRUE(label_waits());
  cover.Top(400);
  EXPECT_TRUE(label_waits());
  cover.Visible(false);
  EXPECT_TRUE(label_waits());
  cover.Visible(true);
  EXPECT_TRUE(label_waits());
  cover.Left(9000);
  EXPECT_TRUE(label_waits());
  cover.Left(9100);
  EXPECT_FALSE(label_waits());
}

TEST_F(CaptionTest, TheMarkUnderALetterIsAsWideAsTheFontThatIsWritten) {
  label.Design("&Cancelar", false, false);
  label.Width(WidthOf(kFont) - 1);
  TextsSeen canvas;
  form->Paint(canvas, {0, 0, form->Width(), form->Height()});
  ASSERT_EQ(canvas.lines.size(), 1U);
  EXPECT_DOUBLE_EQ(canvas.lines[0].width, WidthOf(Sized(13.5), "C"));
}

}  // namespace
}  // namespace orvendal::testing
