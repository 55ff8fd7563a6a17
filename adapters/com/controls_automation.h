#pragma once

#include <memory>

#include "adapters/com/automation_object.h"
#include "platform/forms/form.h"

namespace orvendal {

/// The collection of a form's controls: Count, Item by position from 0 or by name, For Each.
class ControlsAutomation final : public AutomationObject {
 public:
  static ComPtr<ControlsAutomation> Of(const std::shared_ptr<AutomationRegistry>& registry, Form& form);

  bool IsGone() const override { return form_.expired(); }
  /// Gives the control that the one argument of `call` names.
  void GiveItem(const AutomationCall& call);

 protected:
  DISPID IdOf(const wchar_t* name) override;
  bool Get(DISPID member, const AutomationCall& call) override;
  bool Put(DISPID member, const AutomationCall& call) override;

 private:
  ControlsAutomation(const std::shared_ptr<AutomationRegistry>& registry, Form& form);
  std::shared_ptr<Form> Living() const;

  std::shared_ptr<AutomationRegistry> registry_;
  std::weak_ptr<Form> form_;
};

}  // namespace orvendal
