#include "adapters/com/controls_automation.h"

#include "adapters/automation/enumeration.h"
#include "adapters/com/control_automation.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr DISPID kCount = 1;
constexpr std::int32_t kNoSuchControl = 730;

/// A walk over the controls of a form.
class ControlWalk final : public Enumeration {
 public:
  ControlWalk(const std::shared_ptr<AutomationRegistry>& registry, const std::weak_ptr<Form>& form)
      : registry_(registry), form_(form) {}

 private:
  std::size_t Size() const override {
    const std::shared_ptr<Form> form = form_.lock();
    if (!form) throw RuntimeError(error_number::kObjectNotSet);
    return form->Controls().size();
  }
  ComPtr<IDispatch> At(std::size_t place) override {
    return ControlAutomation::Of(registry_, *form_.lock()->Controls()[place]);
  }
  Enumeration* Copy() const override { return new ControlWalk(registry_, form_); }

  std::shared_ptr<AutomationRegistry> registry_;
  std::weak_ptr<Form> form_;
};

}  // namespace

ComPtr<ControlsAutomation> ControlsAutomation::Of(const std::shared_ptr<AutomationRegistry>& registry,
                                                  Form& form) {
  return ComPtr<ControlsAutomation>::Adopt(new ControlsAutomation(registry, form));
}

ControlsAutomation::ControlsAutomation(const std::shared_ptr<AutomationRegistry>& registry, Form& form)
    : registry_(registry), form_(std::static_pointer_cast<Form>(form.shared_from_this())) {}

std::shared_ptr<Form> ControlsAutomation::Living() const {
  std::shared_ptr<Form> form = form_.lock();
  if (!form) throw RuntimeError(error_number::kObjectNotSet);
  return form;
}

void ControlsAutomation::GiveItem(const AutomationCall& call) {
  call.Expect(1, 1);
  const std::shared_ptr<Form> form = Living();
  Control* found = nullptr;
  if (call.IsText(0)) {
    const std::string name = call.Text(0);
    for (Control* const control : form->Controls()) {
      if (EqualsIgnoringCase(control->FullName(), name)) found = control;
    }
    if (!found) throw RuntimeError(kNoSuchControl, "Control '" + name + "' not found");
  } else {
    const LONG position = call.Long(0);
    if (position < 0 || static_cast<std::size_t>(position) >= form->Controls().size()) {
      throw RuntimeError(error_number::kSubscriptOutOfRange);
    }
    found = form->Controls()[static_cast<std::size_t>(position)];
  }
  call.Give(ControlAutomation::Of(registry_, *found));
}

DISPID ControlsAutomation::IdOf(const wchar_t* name) {
  if (SameName(name, L"Count")) return kCount;
  if (SameName(name, L"Item")) return DISPID_VALUE;
  return SameName(name, L"_NewEnum") ? DISPID_NEWENUM : DISPID_UNKNOWN;
}

bool ControlsAutomation::Get(DISPID member, const AutomationCall& call) {
  switch (member) {
    case kCount:
      call.Expect(0, 0);
      call.GiveLong(static_cast<LONG>(Living()->Controls().size()));
      return true;
    case DISPID_VALUE:
      GiveItem(call);
      return true;
    case DISPID_NEWENUM:
      call.Expect(0, 0);
      call.Give(ComPtr<IUnknown>::Adopt(new ControlWalk(registry_, Living())));
      return true;
    default:
      return false;
  }
}

bool ControlsAutomation::Put(DISPID /*member*/, const AutomationCall& /*call*/) {
  return false;
}

}  // namespace orvendal
