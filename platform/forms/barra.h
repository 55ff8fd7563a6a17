#pragma once

#include <functional>

#include "platform/forms/control.h"
#include "platform/forms/property_list.h"

namespace orvendal {

/// A title bar drawn by the form itself: caption, a button that minimises and one that closes. No focus.
class Barra final : public Control {
 public:
  Barra(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kBarra; }

  /// Takes "caption" from the list.
  void StoredProperties(PropertyList properties);
  const PropertyList& StoredProperties() const { return stored_; }
  const std::string& Caption() const { return caption_; }

  std::function<void()> OnMinimizar;
  std::function<void()> OnCerrar;

  /// Places of the two buttons, relative to the control.
  Rect MinimizeButton() const;
  Rect CloseButton() const;

  void RestoreDefaults() override;
  bool CanFocus() const override { return false; }
  void Paint(Canvas& canvas) override;
  void MousePressed(int button, int shift, Point local) override;
  void MouseMoved(int buttons, int shift, Point local) override;
  void MouseReleased(int button, int shift, Point local) override;
  bool RaisesClick(Point local) const override { return PartAt(local) == Part::kNone; }
  void GestureCancelled() override;

 protected:
  ControlProperties DefaultProperties() const override;

 private:
  enum class Part { kNone, kMinimize, kClose };
  Part PartAt(Point local) const;
  void PaintButton(Canvas& canvas, const Rect& place, Part part) const;

  PropertyList stored_;
  std::string caption_;
  Part pressed_ = Part::kNone;
  bool inside_ = false;
};

}  // namespace orvendal
