#pragma once

#include <memory>

#include "adapters/com/automation_object.h"
#include "platform/forms/control.h"

namespace orvendal {

/// A control as the library sees it: what all kinds have, and for text boxes their text and selection.
class ControlAutomation final : public AutomationObject {
 public:
  static ComPtr<IDispatch> Of(const std::shared_ptr<AutomationRegistry>& registry, Control& control);

  bool IsGone() const override { return form_.expired(); }
  /// Raises error 91 if the form is gone.
  Control& Living() const;
  const std::shared_ptr<AutomationRegistry>& SharedRegistry() const { return registry_; }

 protected:
  DISPID IdOf(const wchar_t* name) override;
  bool Get(DISPID member, const AutomationCall& call) override;
  bool Put(DISPID member, const AutomationCall& call) override;

 private:
  ControlAutomation(const std::shared_ptr<AutomationRegistry>& registry, Control& control);
  ~ControlAutomation() override;

  std::shared_ptr<AutomationRegistry> registry_;
  std::weak_ptr<Form> form_;
  Control* control_;
};

}  // namespace orvendal
