#include "platform/forms/picture_box.h"

#include "platform/forms/control_looks.h"

namespace orvendal {

PictureBox::PictureBox(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties PictureBox::DefaultProperties() const {
  ControlProperties properties;
  properties.border_style = 1;
  return properties;
}

void PictureBox::RestoreDefaults() {
  Control::RestoreDefaults();
  picture_.reset();
}

void PictureBox::Picture(std::shared_ptr<const Bitmap> picture) {
  if (picture == picture_) return;
  picture_ = std::move(picture);
  Invalidate();
}

Point PictureBox::ClientOrigin() const {
  const double inset = BorderInset(BorderStyle(), Appearance());
  return {inset, inset};
}

void PictureBox::Paint(Canvas& canvas) {
  const Rect bounds = LocalBounds();
  const Point inside = ClientOrigin();
  // Under the picture the colour is not seen; a pixel more of it leaves no gap at any scale.
  Rect covered;
  if (picture_) {
    const Rect place{inside.x, inside.y, picture_->width * kTwipsPerPixel, picture_->height * kTwipsPerPixel};
    covered = place.Intersection(bounds.Deflated(inside.x)).Deflated(kTwipsPerPixel);
  }
  for (const Rect& part : bounds.Around(covered)) {
    if (!part.IsEmpty()) canvas.FillRectangle(part, Resolve(BackColor()));
  }
  if (picture_) canvas.DrawBitmap(inside, *picture_, bounds.Deflated(inside.x));
  PaintBorder(canvas, Host(), bounds, BorderStyle(), Appearance());
}

}  // namespace orvendal
