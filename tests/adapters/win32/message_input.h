#pragma once

#include "adapters/headless/form_input.h"
#include "adapters/win32/win32_window_host.h"

namespace orvendal {

/// Hands that reach a form by messages to its window. Each message, and what it leaves to be done, is over
/// before the next. Keys come at the time that the host has.
class MessageInput final : public FormInput {
 public:
  /// `host` outlives the object.
  explicit MessageInput(Win32WindowHost& host) : host_(host) {}

  void MousePress(Form& form, Point position, int button, int shift, bool is_double) override;
  void MouseRelease(Form& form, Point position, int button, int shift) override;
  void Key(Form& form, int key_code, int shift, char32_t character) override;

 private:
  void Mouse(const Form& form, UINT message, WPARAM buttons, Point position, int shift);

  Win32WindowHost& host_;
};

}  // namespace orvendal
