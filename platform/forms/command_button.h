#pragma once

#include <string>

#include "platform/forms/push_button.h"

namespace orvendal {

/// The platform's push button.
class CommandButton final : public PushButton {
 public:
  CommandButton(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kCommandButton; }

  using PushButton::Caption;
  /// 1 (graphical) shows BackColor.
  int Style() const { return style_; }
  void Style(int style);

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;

 private:
  int style_ = 0;
};

}  // namespace orvendal
