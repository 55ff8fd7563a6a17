#pragma once

#include <memory>

#include "adapters/com/automation_object.h"
#include "platform/forms/form.h"

namespace orvendal {

/// A form as the library sees it: the properties and methods of a window, its controls by name and as a
/// collection.
class FormAutomation final : public AutomationObject {
 public:
  static ComPtr<IDispatch> Of(const std::shared_ptr<AutomationRegistry>& registry, Form& form);

  bool IsGone() const override { return form_.expired(); }
  ObjectRef Target() override { return form_.lock(); }
  /// Raises error 91 if the form is gone.
  Form& Living() const;
  const std::shared_ptr<AutomationRegistry>& SharedRegistry() const { return registry_; }

 protected:
  DISPID IdOf(const wchar_t* name) override;
  bool Get(DISPID member, const AutomationCall& call) override;
  bool Put(DISPID member, const AutomationCall& call) override;
  bool AnswersTo(REFIID iid) const noexcept override;
  bool ComesBackAsItself() const override { return true; }

 private:
  FormAutomation(const std::shared_ptr<AutomationRegistry>& registry, Form& form);
  ~FormAutomation() override;
  void GiveControl(std::size_t position, const AutomationCall& call);

  std::shared_ptr<AutomationRegistry> registry_;
  std::weak_ptr<Form> form_;
  const void* key_;
};

}  // namespace orvendal
