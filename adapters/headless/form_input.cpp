#include "adapters/headless/form_input.h"

namespace orvendal {
namespace {

class Direct final : public FormInput {
 public:
  void MousePress(Form& form, Point position, int button, int shift, bool is_double) override {
    form.MousePress(position, button, shift, is_double);
  }
  void MouseRelease(Form& form, Point position, int button, int shift) override {
    form.MouseRelease(position, button, shift);
  }
  void Key(Form& form, int key_code, int shift, char32_t character) override {
    form.KeyPress(key_code, shift);
    if (character != 0) form.Character(character);
    form.KeyRelease(key_code, shift);
  }
};

}  // namespace

FormInput& DirectInput() {
  static Direct input;
  return input;
}

}  // namespace orvendal
