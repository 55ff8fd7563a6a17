#include "platform/forms/boton.h"

#include <algorithm>
#include <charconv>

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
    : PushButton(form, container, name, index) {
  InitializeDefaults();
}

void Boton::RestoreDefaults() {
  PushButton::RestoreDefaults();
  stored_.clear();
  border_pixels_ = 1;
}

void Boton::StoredProperties(PropertyList properties) {
  stored_ = std::move(properties);
  if (const auto* caption = FindStored<std::string>(stored_, "caption")) Caption(*caption);
  if (const auto* font = FindStored<FontSpec>(stored_, "font")) Font().Spec(*font);
  if (const auto* border = FindStored<std::string>(stored_, "tamañoborde")) {
    border_pixels_ = PixelsOf(*border, border_pixels_);
  }
  Invalidate();
}

void Boton::Paint(Canvas& canvas) {
  const double border = border_pixels_ * kTwipsPerPixel;
  const Rect edge = LocalBounds().Deflated(border / 2);
  const Rgb face = Resolve(LooksPushed() ? system_color::kButtonShadow : BackColor());
  // Without a border the outline takes the colour of the face.
  const Rgb outline = border > 0 ? Resolve(system_color::kButtonDarkShadow) : face;
  canvas.RoundedRectangle(edge, std::min(edge.width, edge.height) / kShorterSideToRadius, face, outline,
                          std::max(border, kTwipsPerPixel));
  PaintContents(canvas, LocalBounds().Deflated(border + kTwipsPerPixel), 2 * kTwipsPerPixel);
}

}  // namespace orvendal
