#include "host/library/dialog_keys.h"

#include "platform/base/text.h"
#include "platform/forms/keys.h"

namespace orvendal {

DialogKeys::DialogKeys(Form& form) : form_(form), TmrBoton(form, nullptr, "TmrBoton") {
  form_.OnKeyDown = [this](int& key_code, int shift) { KeyDown(key_code, shift); };
  form_.OnKeyPress = [this](int& key_ascii) { KeyPress(key_ascii); };
  TmrBoton.OnTimer = [this] { PressHeldButton(); };
}

bool DialogKeys::IsOfReader() const {
  WindowHost& host = form_.Host();
  return host.Keys().IsReaderAt(host.InputTime());
}

void DialogKeys::KeyDown(int& key_code, int shift) {
  held_ = nullptr;
  TmrBoton.Enabled(false);
  Control* focused = form_.ActiveControl();
  const bool on_button = focused != nullptr && focused->Kind() == ControlKind::kCommandButton;
  const bool plain = (shift & (shift_mask::kControl | shift_mask::kAlt)) == 0;
  if (key_code == key::kReturn && IsOfReader()) {
    key_code = 0;  // its character says what it is
    return;
  }
  if (key_code == key::kSpace && on_button && plain) {
    key_code = 0;
    if (form_.Host().Keys().GoesOn(form_.Host().InputTime())) return;
    held_ = static_cast<CommandButton*>(focused);
    TmrBoton.Interval(static_cast<int>(KeyRun::kShortestPause));
    TmrBoton.Enabled(true);
    return;
  }
  if (OnKeyDown) OnKeyDown(key_code, shift);
}

void DialogKeys::KeyPress(int& key_ascii) {
  RememberBox();
  if (key_ascii == character::kEnter && IsOfReader()) {
    key_ascii = 0;
    TakeScan();
    return;
  }
  if (OnKeyPress) OnKeyPress(key_ascii);
}

void DialogKeys::RememberBox() {
  if (form_.Host().Keys().Length() != 1) return;
  Control* focused = form_.ActiveControl();
  const bool is_box = focused != nullptr && focused->Kind() == ControlKind::kTextBox;
  typed_into_ = is_box ? static_cast<TextBox*>(focused) : nullptr;
  if (is_box) text_before_ = typed_into_->Text();
}

void DialogKeys::TakeScan() {
  if (OnScan) {
    OnScan(form_.Host().Keys().Text());
    return;
  }
  if (typed_into_ != nullptr && typed_into_->Text() != text_before_) {
    typed_into_->Text(text_before_);
    typed_into_->SelLength(static_cast<int>(Len(text_before_)));
  }
  form_.Host().Beep();
}

void DialogKeys::PressHeldButton() {
  TmrBoton.Enabled(false);
  CommandButton* button = held_;
  held_ = nullptr;
  if (button != nullptr && button->HasFocus() && button->IsOperable() && button->OnClick) button->OnClick();
}

}  // namespace orvendal
