#include "platform/forms/window_host.h"

namespace orvendal {

bool WindowHost::TakesInput(const Form& form) const {
  return innermost_ == nullptr || innermost_->form_ == &form;
}

bool WindowHost::IsInnermostDialog(const Form& form) const {
  return innermost_ != nullptr && innermost_->form_ == &form;
}

ModalScope::ModalScope(WindowHost& host, const Form* form)
    : host_(host), form_(form), outer_(host.innermost_) {
  host_.innermost_ = this;
  ++host_.modal_serial_;
}

ModalScope::~ModalScope() {
  host_.innermost_ = outer_;
}

}  // namespace orvendal
