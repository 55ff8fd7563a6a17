#include "platform/forms/boton.h"

#include <algorithm>
#include <charconv>

#include "platform/forms/control_looks.h"

namespace orvendal {
namespace {

constexpr double kShorterSideToRadius = 5.0;

int PixelsOf(const std::string& text, int otherwise) {
  int pixels = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), pixels);
  return read.ec == std::errc() && pixels >= 0 ? pixels : otherwise;
}

}  // namespace

Boton::Boton(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties Boton::DefaultProperties() const {
  ControlProperties properties;
  properties.back_color = system_color::kButtonFace;
  properties.fore_color = system_color::kButtonText;
  return properties;
}

void Boton::RestoreDefaults() {
  Control::RestoreDefaults();
  stored_.clear();
  caption_.clear();
  border_pixels_ = 1;
  press_ = {};
}

void Boton::StoredProperties(PropertyList properties) {
  stored_ = std::move(properties);
  if (const auto* caption = FindStored<std::string>(stored_, "caption")) caption_ = *caption;
  if (const auto* font = FindStored<FontSpec>(stored_, "font")) Font().Spec(*font);
  if (const auto* border = FindStored<std::string>(stored_, "tamañoborde")) {
    border_pixels_ = PixelsOf(*border, border_pixels_);
  }
  Invalidate();
}

void Boton::MousePressed(int button, int, Point) {
  if (button == mouse_button::kLeft && press_.MouseDown()) Invalidate();
}

void Boton::MouseMoved(int, int, Point local) {
  if (press_.MouseOver(LocalBounds().Contains(local))) Invalidate();
}

void Boton::MouseReleased(int, int, Point) {
  if (press_.Release()) Invalidate();
}

void Boton::GestureCancelled() {
  if (press_.Release()) Invalidate();
}

bool Boton::KeyDownDefault(int key_code, int) {
  if (key_code == key::kSpace && press_.BlankDown()) Invalidate();
  if (key_code != key::kReturn) return false;
  if (OnClick) OnClick();
  return true;
}

void Boton::KeyUpDefault(int key_code, int) {
  if (key_code != key::kSpace) return;
  const bool clicked = press_.TakeBlank();
  if (press_.Release()) Invalidate();
  if (clicked && OnClick) OnClick();
}

void Boton::FocusChanged(bool has_focus) {
  if (!has_focus) press_.Release();
  Invalidate();
}

void Boton::Paint(Canvas& canvas) {
  const bool pushed = press_.LooksPushed();
  const double border = border_pixels_ * kTwipsPerPixel;
  const Rect edge = LocalBounds().Deflated(border / 2);
  const Rgb face = Resolve(pushed ? system_color::kButtonShadow : BackColor());
  // Without a border the outline takes the colour of the face.
  const Rgb outline = border > 0 ? Resolve(system_color::kButtonDarkShadow) : face;
  canvas.RoundedRectangle(edge, std::min(edge.width, edge.height) / kShorterSideToRadius, face, outline,
                          std::max(border, kTwipsPerPixel));
  const double shift = pushed ? kTwipsPerPixel : 0;
  const Rgb color = Resolve(IsOperable() ? ForeColor() : system_color::kGrayText);
  const Rect inside = LocalBounds().Deflated(border + kTwipsPerPixel);
  PaintCaption(canvas, Host(), inside.Moved(shift, shift), caption_, Font().Spec(), color,
               HorizontalAlign::kCenter, VerticalAlign::kCenter);
  if (HasFocus()) canvas.FocusRectangle(inside.Deflated(2 * kTwipsPerPixel));
}

}  // namespace orvendal
