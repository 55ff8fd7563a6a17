#include "adapters/com/form_automation.h"

#include "adapters/automation/bstr.h"
#include "adapters/com/control_automation.h"
#include "adapters/com/controls_automation.h"
#include "adapters/com/identity.h"
#include "platform/base/text.h"
#include "platform/forms/named_property.h"

namespace orvendal {
namespace {

using Self = FormAutomation;
using Call = AutomationCall;

/// The properties of forms that the library may read, and write unless the form's own table has them read
/// only.
constexpr std::string_view kProperties[] = {"Name",      "Caption",     "Left",      "Top",
                                            "Width",     "Height",      "Visible",   "WindowState",
                                            "BackColor", "BorderStyle", "KeyPreview"};
constexpr DISPID kPropertyCount = static_cast<DISPID>(std::size(kProperties));

/// The property of that DISPID, if it is one; they come before the other members.
const FormProperty* PropertyOf(DISPID member) {
  return member >= 1 && member <= kPropertyCount ? FindFormProperty(kProperties[member - 1]) : nullptr;
}

/// Controls by name have their position in Controls above this.
constexpr DISPID kFirstControl = 0x10000;
constexpr std::int32_t kNoSuchElement = 340;

Form& Of(Self& self) {
  return self.Living();
}

void Show(Self& self, const Call& call) {
  const LONG mode = call.Has(0) ? call.Long(0) : 0;
  if (mode != 0 && mode != 1) throw RuntimeError(error_number::kInvalidProcedureCall);
  Of(self).Show(mode == 1 ? ShowMode::kModal : ShowMode::kModeless);
}

void Move(Self& self, const Call& call) {
  Form& form = Of(self);
  form.Move(call.Number(0), call.Has(1) ? call.Number(1) : form.Top());
  if (call.Has(2)) form.Width(call.Number(2));
  if (call.Has(3)) form.Height(call.Number(3));
}

HWND WindowOf(Self& self) {
  const auto window = reinterpret_cast<HWND>(self.SharedRegistry()->WindowOf(Of(self)));
  return IsWindow(window) ? window : nullptr;
}

/// A library that opens a window of its own switches this one off meanwhile.
void GetEnabled(Self& self, const Call& call) {
  const HWND window = WindowOf(self);
  call.GiveFlag(!window || IsWindowEnabled(window));
}

void PutEnabled(Self& self, const Call& call) {
  const bool enabled = call.Flag(0);
  if (const HWND window = WindowOf(self)) EnableWindow(window, enabled ? TRUE : FALSE);
}

void GetActiveControl(Self& self, const Call& call) {
  Control* const control = Of(self).ActiveControl();
  call.Give(control ? ControlAutomation::Of(self.SharedRegistry(), *control) : ComPtr<IDispatch>());
}

void GetControls(Self& self, const Call& call) {
  ComPtr<ControlsAutomation> controls = ControlsAutomation::Of(self.SharedRegistry(), Of(self));
  if (call.Count() == 0) {
    call.Give(ComPtr<IDispatch>(controls.Get()));
  } else {
    controls->GiveItem(call);
  }
}

const AutomationMember<Self> kMembers[] = {
    {L"Enabled", GetEnabled, PutEnabled},
    {L"hWnd",
     [](Self& self, const Call& call) {
       // Handles of windows fit into 32 bits on 64-bit systems too.
       call.GiveLong(static_cast<LONG>(self.SharedRegistry()->WindowOf(Of(self))));
     },
     nullptr},
    {L"ActiveControl", GetActiveControl, nullptr},
    {L"Controls", GetControls, nullptr, 0, 1},
    {L"Show", Show, nullptr, 0, 2},
    {L"Hide", [](Self& self, const Call&) { Of(self).Hide(); }, nullptr},
    {L"SetFocus", [](Self& self, const Call&) { Of(self).SetFocus(); }, nullptr},
    {L"Refresh", [](Self& self, const Call&) { Of(self).Refresh(); }, nullptr},
    {L"Move", Move, nullptr, 1, 4},
};

}  // namespace

ComPtr<IDispatch> FormAutomation::Of(const std::shared_ptr<AutomationRegistry>& registry, Form& form) {
  if (AutomationObject* const known = registry->Find(&form)) return ComPtr<IDispatch>(known);
  return ComPtr<IDispatch>::Adopt(new FormAutomation(registry, form));
}

FormAutomation::FormAutomation(const std::shared_ptr<AutomationRegistry>& registry, Form& form)
    : registry_(registry), form_(std::static_pointer_cast<Form>(form.shared_from_this())), key_(&form) {
  registry_->Enter(key_, this);
}

FormAutomation::~FormAutomation() {
  registry_->Leave(key_, this);
}

Form& FormAutomation::Living() const {
  const std::shared_ptr<Form> form = form_.lock();
  if (!form) throw RuntimeError(error_number::kObjectNotSet);
  return *form;  // Get and Put keep it for the call
}

bool FormAutomation::AnswersTo(REFIID iid) const noexcept {
  return iid == identity::kFormInterface;
}

DISPID FormAutomation::IdOf(const wchar_t* name) {
  const std::string wanted = Utf8Text(name);
  for (DISPID id = 1; id <= kPropertyCount; ++id) {
    if (EqualsIgnoringCase(kProperties[id - 1], wanted)) return id;
  }
  const DISPID other = IdIn(kMembers, name);
  if (other != DISPID_UNKNOWN) return other + kPropertyCount;
  const std::shared_ptr<Form> form = form_.lock();
  if (!form) return DISPID_UNKNOWN;
  const std::vector<Control*>& controls = form->Controls();
  for (std::size_t position = 0; position < controls.size(); ++position) {
    if (SameName(WideText(controls[position]->Name()).c_str(), name)) {
      return kFirstControl + static_cast<DISPID>(position);
    }
  }
  return DISPID_UNKNOWN;
}

void FormAutomation::GiveControl(std::size_t position, const AutomationCall& call) {
  Form& form = Living();
  if (position >= form.Controls().size()) throw RuntimeError(error_number::kNoSuchMember);
  Control* control = form.Controls()[position];
  call.Expect(control->Index() < 0 ? 0 : 1, control->Index() < 0 ? 0 : 1);
  if (control->Index() >= 0) {
    control = form.FindControl(control->Name() + "(" + std::to_string(call.Long(0)) + ")");
    if (!control) throw RuntimeError(kNoSuchElement, "Control array element doesn't exist");
  }
  call.Give(ControlAutomation::Of(registry_, *control));
}

bool FormAutomation::Get(DISPID member, const AutomationCall& call) {
  const std::shared_ptr<Form> alive = form_.lock();
  if (member >= kFirstControl) {
    GiveControl(static_cast<std::size_t>(member - kFirstControl), call);
    return true;
  }
  if (member == DISPID_VALUE) member = IdOf(L"Controls");
  const FormProperty* const property = PropertyOf(member);
  if (!property) return GetIn(kMembers, member - kPropertyCount, *this, call);
  call.Expect(0, 0);
  call.Give(property->get(Living()), property->type);
  return true;
}

bool FormAutomation::Put(DISPID member, const AutomationCall& call) {
  const std::shared_ptr<Form> alive = form_.lock();
  const FormProperty* const property = PropertyOf(member);
  if (!property) return PutIn(kMembers, member - kPropertyCount, *this, call);
  if (!property->put) return false;
  call.Expect(1, 1);
  property->put(Living(), call.As(property->type));
  return true;
}

}  // namespace orvendal
