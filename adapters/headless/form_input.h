#pragma once

#include "platform/forms/form.h"

namespace orvendal {

/// How synthetic input reaches a form. Positions are twips from the form's corner, button and shift those of
/// Form::MousePress.
class FormInput {
 public:
  virtual ~FormInput() = default;
  virtual void MousePress(Form& form, Point position, int button, int shift, bool is_double) = 0;
  virtual void MouseRelease(Form& form, Point position, int button, int shift) = 0;
  /// A key goes down and comes up. `character` is what it types, 0 if nothing.
  virtual void Key(Form& form, int key_code, int shift, char32_t character) = 0;
};

/// Straight to the form's own input, as its window would hand it on.
FormInput& DirectInput();

}  // namespace orvendal
