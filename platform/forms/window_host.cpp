#include "platform/forms/window_host.h"

#include "platform/forms/form.h"

namespace orvendal {

bool WindowHost::TakesInput(const Form& form) const {
  return innermost_ == nullptr || innermost_->form_ == &form;
}

bool WindowHost::IsInnermostDialog(const Form& form) const {
  return innermost_ != nullptr && innermost_->form_ == &form;
}

ModalScope::ModalScope(WindowHost& host, const Form* form)
    : host_(host), form_(form), outer_(host.innermost_) {
  if (host_.input_form_ != nullptr) host_.input_form_->EndGesture();
  host_.innermost_ = this;
  ++host_.modal_serial_;
}

ModalScope::~ModalScope() {
  host_.innermost_ = outer_;
}

}  // namespace orvendal
