#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "tests/support/form_driver.h"

namespace orvendal::testing_support {

/// The screen as it was designed: loaded, but with none of the steps of its start done.
class DesignForm {
 public:
  DesignForm() : form_(std::make_shared<FrmOrvendalciales>(driver.state)) {
    form_->OnLoad = nullptr;
    form_->Load();
  }

  FrmOrvendalciales& form() { return *form_; }
  Control& Find(const std::string& name) {
    Control* control = form_->FindControl(name);
    if (control == nullptr) throw std::logic_error("there is no control " + name);
    return *control;
  }

  FormDriver driver;

 private:
  std::shared_ptr<FrmOrvendalciales> form_;
};

}  // namespace orvendal::testing_support
