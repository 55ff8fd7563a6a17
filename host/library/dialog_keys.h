#pragma once

#include <functional>
#include <string>

#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"

namespace orvendal {

/// The keys of a dialog before its controls have them, so that what a bar-code reader types answers nothing:
/// its Enter presses no button, and a blank presses one only when no other key has come close behind it.
///
/// Takes the form's key events; the form has to have KeyPreview.
class DialogKeys {
 public:
  explicit DialogKeys(Form& form);

  /// A reader typed that text and its Enter. Without a handler the dialog beeps, and the box that it was
  /// typed into shows what it showed before.
  std::function<void(const std::string& text)> OnScan;
  /// What is left over; as the form's own.
  std::function<void(int& key_code, int shift)> OnKeyDown;
  std::function<void(int& key_ascii)> OnKeyPress;

 private:
  bool IsOfReader() const;
  void KeyDown(int& key_code, int shift);
  void KeyPress(int& key_ascii);
  void RememberBox();
  void TakeScan();
  void PressHeldButton();

  Form& form_;
  Timer TmrBoton;
  CommandButton* held_ = nullptr;  // the blank went down on it; the next key tells whether a reader sent it
  TextBox* typed_into_ = nullptr;  // where the run began
  std::string text_before_;        // what that box showed
};

}  // namespace orvendal
