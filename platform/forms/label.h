#pragma once

#include <string>

#include "platform/forms/control.h"

namespace orvendal {

/// A text, painted by the surface of its container. Never takes the focus; while disabled the mouse does not
/// see it.
///
/// With AutoSize a change of caption or font fits width and height to the caption, one line, Left and Top
/// kept. A size written by code, or by the design, stays until then.
class Label final : public Control {
 public:
  Label(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kLabel; }

  const std::string& Caption() const { return caption_; }
  /// "&" underlines the next letter, "&&" prints one.
  void Caption(const std::string& caption);
  bool AutoSize() const { return auto_size_; }
  /// Switching it on fits the label.
  void AutoSize(bool auto_size);
  bool Opaque() const { return opaque_; }
  void Opaque(bool opaque);
  HorizontalAlign Alignment() const { return alignment_; }
  void Alignment(HorizontalAlign alignment);
  /// The values of a design as they stand: no fitting.
  void Design(const std::string& caption, bool auto_size, bool opaque);

  void RestoreDefaults() override;
  bool IsLightweight() const override { return true; }
  void Paint(Canvas& canvas) override;

 protected:
  void FontChanged() override;

 private:
  void Fit();
  Rect ShownPart() const;

  std::string caption_;
  bool auto_size_ = false;
  bool opaque_ = true;
  HorizontalAlign alignment_ = HorizontalAlign::kLeft;
};

}  // namespace orvendal
