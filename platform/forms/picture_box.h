#pragma once

#include <memory>

#include "platform/forms/control.h"

namespace orvendal {

/// A surface that bears other controls and a picture at its own size in the upper left corner.
class PictureBox final : public Control {
 public:
  PictureBox(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kPictureBox; }

  const std::shared_ptr<const Bitmap>& Picture() const { return picture_; }
  void Picture(std::shared_ptr<const Bitmap> picture);

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  Rect OpaqueArea() const override { return LocalBounds(); }
  /// Inside the border of one pixel (flat) or two.
  Point ClientOrigin() const override;

 protected:
  ControlProperties DefaultProperties() const override;

 private:
  std::shared_ptr<const Bitmap> picture_;
};

}  // namespace orvendal
