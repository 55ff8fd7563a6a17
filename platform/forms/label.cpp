#include "platform/forms/label.h"

#include "platform/forms/control_looks.h"

namespace orvendal {

Label::Label(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties Label::DefaultProperties() const {
  ControlProperties properties;
  properties.back_color = system_color::kButtonFace;
  properties.fore_color = system_color::kButtonText;
  return properties;
}

void Label::RestoreDefaults() {
  Control::RestoreDefaults();
  caption_.clear();
  auto_size_ = false;
  opaque_ = true;
  alignment_ = HorizontalAlign::kLeft;
}

void Label::Caption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  if (auto_size_) Fit();
  Invalidate();
}

void Label::AutoSize(bool auto_size) {
  if (auto_size == auto_size_) return;
  auto_size_ = auto_size;
  if (auto_size_) Fit();
}

void Label::Opaque(bool opaque) {
  if (opaque == opaque_) return;
  opaque_ = opaque;
  Invalidate();
}

void Label::Alignment(HorizontalAlign alignment) {
  if (alignment == alignment_) return;
  alignment_ = alignment;
  Invalidate();
}

void Label::Design(const std::string& caption, bool auto_size, bool opaque) {
  caption_ = caption;
  auto_size_ = auto_size;
  opaque_ = opaque;
  Invalidate();
}

void Label::FontChanged() {
  if (auto_size_) Fit();
  Invalidate();
}

void Label::Fit() {
  const double borders = BorderStyle() == 0 ? 0 : 2 * kTwipsPerPixel;
  const FontSpec& font = Font().Spec();
  Move(Left(), Top(), Host().TextWidth(font, ReadCaption(caption_).text) + borders,
       Host().LineHeight(font) + borders);
}

// A design was measured with the fonts of its own desktop, and its sizes stay. Where this desktop's letters
// are a little wider, an AutoSize label is written a little smaller rather than cut.
FontSpec Label::FittingFont(double width) const {
  constexpr double kMostShrinking = 0.85;
  FontSpec font = Font().Spec();
  if (!auto_size_) return font;
  const double needed = Host().TextWidth(font, ReadCaption(caption_).text);
  if (needed > width && needed * kMostShrinking <= width) font.size *= width / needed;
  return font;
}

void Label::Paint(Canvas& canvas) {
  Rect inside = LocalBounds();
  if (opaque_) canvas.FillRectangle(inside, Resolve(BackColor()));
  if (BorderStyle() != 0) {
    const bool flat = Appearance() == Appearance::kFlat;
    canvas.FrameRectangle(inside, Resolve(flat ? system_color::kWindowFrame : system_color::kButtonShadow),
                          kTwipsPerPixel);
    inside = inside.Deflated(kTwipsPerPixel);
  }
  const Rgb color = Resolve(IsOperable() ? ForeColor() : system_color::kGrayText);
  const FontSpec font = FittingFont(inside.width);
  const bool is_tall = Host().LineHeight(font) > inside.height;
  PaintCaption(canvas, Host(), inside, caption_, font, color, alignment_,
               is_tall ? VerticalAlign::kCenter : VerticalAlign::kTop);
}

}  // namespace orvendal
