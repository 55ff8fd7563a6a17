#pragma once

#include <string>

#include "platform/forms/control.h"

namespace orvendal {

/// One choice of a group: choosing it takes the mark from the others of its container. The arrow keys take
/// focus and mark to the neighbour in the tab order, round and round.
class OptionButton final : public Control {
 public:
  OptionButton(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kOptionButton; }

  const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);
  bool Value() const { return value_; }
  /// True raises OnClick if it was not the choice yet.
  void Value(bool value);

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  void MouseReleased(int button, int shift, Point local) override;
  bool KeyDownDefault(int key_code, int shift) override;
  void FocusChanged(bool has_focus) override;

 private:
  void Mark();
  OptionButton* Neighbour(bool backwards) const;

  std::string caption_;
  bool value_ = false;
};

}  // namespace orvendal
