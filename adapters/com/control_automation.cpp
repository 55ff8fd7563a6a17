#include "adapters/com/control_automation.h"

#include <iterator>

#include "adapters/automation/bstr.h"
#include "adapters/com/form_automation.h"
#include "platform/base/text.h"
#include "platform/forms/form.h"
#include "platform/forms/named_property.h"

namespace orvendal {
namespace {

using Self = ControlAutomation;
using Call = AutomationCall;

constexpr std::int32_t kNotAnArray = 343;

Control& Of(Self& self) {
  return self.Living();
}

/// A property that the library may read, and write unless `is_fixed`; `is_of_boxes`: of text boxes alone.
struct FaceProperty {
  std::string_view name;
  bool is_fixed = false;
  bool is_of_boxes = false;
};

constexpr FaceProperty kProperties[] = {
    {"Name", true},
    {"Left"},
    {"Top"},
    {"Width"},
    {"Height"},
    {"Visible"},
    {"Enabled"},
    {"TabIndex"},
    {"TabStop"},
    {"BackColor"},
    {"ForeColor"},
    {"Tag"},
    {"Caption"},
    {"Text", false, true},
    {"SelStart", false, true},
    {"SelLength", false, true},
    {"SelText", false, true},
    {"Locked", false, true},
    {"MaxLength", false, true},
    {"Alignment", true, true},
};
constexpr DISPID kPropertyCount = static_cast<DISPID>(std::size(kProperties));

bool IsBox(const Control& control) {
  return control.Kind() == ControlKind::kTextBox || control.Kind() == ControlKind::kComboBox;
}

/// Of the control's kind; error 438 if that has none of the name.
const NamedProperty& PropertyOf(const Control& control, const FaceProperty& face) {
  const bool is_seen = !face.is_of_boxes || IsBox(control);
  const NamedProperty* const found = is_seen ? FindProperty(control.Kind(), face.name) : nullptr;
  if (!found) throw RuntimeError(error_number::kNoSuchMember);
  return *found;
}

/// The member of that DISPID, if it is one of the properties; they come before the other members.
const FaceProperty* FacePropertyOf(DISPID member) {
  return member >= 1 && member <= kPropertyCount ? &kProperties[member - 1] : nullptr;
}

void GetIndex(Self& self, const Call& call) {
  const Control& control = Of(self);
  if (control.Index() < 0) throw RuntimeError(kNotAnArray, "Object not an array");
  call.GiveLong(control.Index());
}

void GetContainer(Self& self, const Call& call) {
  Control& control = Of(self);
  call.Give(control.Container() ? Self::Of(self.SharedRegistry(), *control.Container())
                                : FormAutomation::Of(self.SharedRegistry(), control.Parent()));
}

void Move(Self& self, const Call& call) {
  Control& control = Of(self);
  const double left = call.Number(0);
  const double top = call.Has(1) ? call.Number(1) : control.Top();
  const double width = call.Has(2) ? call.Number(2) : control.Width();
  if (call.Has(3)) {
    control.Move(left, top, width, call.Number(3));
  } else {
    control.Move(left, top, width);
  }
}

const AutomationMember<Self> kMembers[] = {
    {L"Index", GetIndex, nullptr},
    {L"Parent",
     [](Self& self, const Call& call) {
       call.Give(FormAutomation::Of(self.SharedRegistry(), Of(self).Parent()));
     },
     nullptr},
    {L"Container", GetContainer, nullptr},
    {L"SetFocus", [](Self& self, const Call&) { Of(self).SetFocus(); }, nullptr},
    {L"Refresh", [](Self& self, const Call&) { Of(self).Refresh(); }, nullptr},
    {L"Move", Move, nullptr, 1, 4},
};

/// What the control is without a member's name: the text of a box, the caption of the rest.
const wchar_t* DefaultMember(const Control& control) {
  return IsBox(control) ? L"Text" : L"Caption";
}

}  // namespace

ComPtr<IDispatch> ControlAutomation::Of(const std::shared_ptr<AutomationRegistry>& registry,
                                        Control& control) {
  if (AutomationObject* const known = registry->Find(&control)) return ComPtr<IDispatch>(known);
  return ComPtr<IDispatch>::Adopt(new ControlAutomation(registry, control));
}

ControlAutomation::ControlAutomation(const std::shared_ptr<AutomationRegistry>& registry, Control& control)
    : registry_(registry),
      form_(std::static_pointer_cast<Form>(control.Parent().shared_from_this())),
      control_(&control) {
  registry_->Enter(control_, this);
}

ControlAutomation::~ControlAutomation() {
  registry_->Leave(control_, this);
}

Control& ControlAutomation::Living() const {
  if (form_.expired()) throw RuntimeError(error_number::kObjectNotSet);
  return *control_;
}

DISPID ControlAutomation::IdOf(const wchar_t* name) {
  const std::string wanted = Utf8Text(name);
  for (DISPID id = 1; id <= kPropertyCount; ++id) {
    if (EqualsIgnoringCase(FacePropertyOf(id)->name, wanted)) return id;
  }
  const DISPID other = IdIn(kMembers, name);
  return other == DISPID_UNKNOWN ? other : other + kPropertyCount;
}

bool ControlAutomation::Get(DISPID member, const AutomationCall& call) {
  const std::shared_ptr<Form> alive = form_.lock();
  if (member == DISPID_VALUE) member = IdOf(DefaultMember(Living()));
  const FaceProperty* const property = FacePropertyOf(member);
  if (!property) return GetIn(kMembers, member - kPropertyCount, *this, call);
  call.Expect(0, 0);
  const NamedProperty& of_kind = PropertyOf(Living(), *property);
  call.Give(of_kind.get(Living(), {}), of_kind.type);
  return true;
}

bool ControlAutomation::Put(DISPID member, const AutomationCall& call) {
  const std::shared_ptr<Form> alive = form_.lock();
  if (member == DISPID_VALUE) member = IdOf(DefaultMember(Living()));
  const FaceProperty* const property = FacePropertyOf(member);
  if (!property || property->is_fixed) return false;
  call.Expect(1, 1);
  const NamedProperty& of_kind = PropertyOf(Living(), *property);
  if (!of_kind.put) throw RuntimeError(error_number::kNoSuchMember);
  of_kind.put(Living(), {}, call.As(of_kind.type));
  return true;
}

}  // namespace orvendal
