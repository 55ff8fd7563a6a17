#include "adapters/com/control_automation.h"

#include "adapters/com/form_automation.h"
#include "platform/forms/barra.h"
#include "platform/forms/boton.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"

namespace orvendal {
namespace {

using Self = ControlAutomation;
using Call = AutomationCall;

constexpr std::int32_t kNotAnArray = 343;

Control& Of(Self& self) {
  return self.Living();
}

/// The control as one of its kind; error 438 for another kind.
template <typename Kind>
Kind& As(Self& self) {
  auto* const control = dynamic_cast<Kind*>(&self.Living());
  if (!control) throw RuntimeError(error_number::kNoSuchMember);
  return *control;
}

template <typename Kind>
bool GiveCaption(Control& control, const Call& call) {
  const auto* const captioned = dynamic_cast<const Kind*>(&control);
  if (captioned) call.Give(captioned->Caption());
  return captioned != nullptr;
}

template <typename Kind>
bool TakeCaption(Control& control, const Call& call) {
  auto* const captioned = dynamic_cast<Kind*>(&control);
  if (captioned) captioned->Caption(call.Text(0));
  return captioned != nullptr;
}

void GetCaption(Self& self, const Call& call) {
  Control& control = Of(self);
  if (!GiveCaption<Label>(control, call) && !GiveCaption<CommandButton>(control, call) &&
      !GiveCaption<OptionButton>(control, call) && !GiveCaption<Boton>(control, call) &&
      !GiveCaption<Barra>(control, call)) {
    throw RuntimeError(error_number::kNoSuchMember);
  }
}

void PutCaption(Self& self, const Call& call) {
  Control& control = Of(self);
  if (!TakeCaption<Label>(control, call) && !TakeCaption<CommandButton>(control, call) &&
      !TakeCaption<OptionButton>(control, call)) {
    throw RuntimeError(error_number::kNoSuchMember);
  }
}

void GetText(Self& self, const Call& call) {
  Control& control = Of(self);
  if (const auto* const combo = dynamic_cast<const ComboBox*>(&control)) {
    call.Give(combo->Text());
  } else {
    call.Give(As<TextBox>(self).Text());
  }
}

void PutText(Self& self, const Call& call) {
  Control& control = Of(self);
  if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
    combo->Text(call.Text(0));
  } else {
    As<TextBox>(self).Text(call.Text(0));
  }
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
    {L"Name", [](Self& self, const Call& call) { call.Give(Of(self).Name()); }, nullptr},
    {L"Index", GetIndex, nullptr},
    {L"Left", [](Self& self, const Call& call) { call.Give(Of(self).Left()); },
     [](Self& self, const Call& call) { Of(self).Left(call.Number(0)); }},
    {L"Top", [](Self& self, const Call& call) { call.Give(Of(self).Top()); },
     [](Self& self, const Call& call) { Of(self).Top(call.Number(0)); }},
    {L"Width", [](Self& self, const Call& call) { call.Give(Of(self).Width()); },
     [](Self& self, const Call& call) { Of(self).Width(call.Number(0)); }},
    {L"Height", [](Self& self, const Call& call) { call.Give(Of(self).Height()); },
     [](Self& self, const Call& call) { Of(self).Height(call.Number(0)); }},
    {L"Visible", [](Self& self, const Call& call) { call.GiveFlag(Of(self).Visible()); },
     [](Self& self, const Call& call) { Of(self).Visible(call.Flag(0)); }},
    {L"Enabled", [](Self& self, const Call& call) { call.GiveFlag(Of(self).Enabled()); },
     [](Self& self, const Call& call) { Of(self).Enabled(call.Flag(0)); }},
    {L"TabIndex", [](Self& self, const Call& call) { call.GiveLong(Of(self).TabIndex()); },
     [](Self& self, const Call& call) { Of(self).TabIndex(call.Long(0)); }},
    {L"TabStop", [](Self& self, const Call& call) { call.GiveFlag(Of(self).TabStop()); },
     [](Self& self, const Call& call) { Of(self).TabStop(call.Flag(0)); }},
    {L"BackColor",
     [](Self& self, const Call& call) { call.GiveLong(static_cast<LONG>(Of(self).BackColor())); },
     [](Self& self, const Call& call) { Of(self).BackColor(static_cast<ColorWord>(call.Long(0))); }},
    {L"ForeColor",
     [](Self& self, const Call& call) { call.GiveLong(static_cast<LONG>(Of(self).ForeColor())); },
     [](Self& self, const Call& call) { Of(self).ForeColor(static_cast<ColorWord>(call.Long(0))); }},
    {L"Tag", [](Self& self, const Call& call) { call.Give(Of(self).Tag()); },
     [](Self& self, const Call& call) { Of(self).Tag(call.Text(0)); }},
    {L"Caption", GetCaption, PutCaption},
    {L"Text", GetText, PutText},
    {L"SelStart", [](Self& self, const Call& call) { call.GiveLong(As<TextBox>(self).SelStart()); },
     [](Self& self, const Call& call) { As<TextBox>(self).SelStart(call.Long(0)); }},
    {L"SelLength", [](Self& self, const Call& call) { call.GiveLong(As<TextBox>(self).SelLength()); },
     [](Self& self, const Call& call) { As<TextBox>(self).SelLength(call.Long(0)); }},
    {L"SelText", [](Self& self, const Call& call) { call.Give(As<TextBox>(self).SelText()); },
     [](Self& self, const Call& call) { As<TextBox>(self).SelText(call.Text(0)); }},
    {L"Locked", [](Self& self, const Call& call) { call.GiveFlag(As<TextBox>(self).Locked()); },
     [](Self& self, const Call& call) { As<TextBox>(self).Locked(call.Flag(0)); }},
    {L"MaxLength", [](Self& self, const Call& call) { call.GiveLong(As<TextBox>(self).MaxLength()); },
     [](Self& self, const Call& call) { As<TextBox>(self).MaxLength(call.Long(0)); }},
    {L"Alignment",
     [](Self& self, const Call& call) { call.GiveLong(static_cast<LONG>(As<TextBox>(self).Alignment())); },
     nullptr},
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

constexpr DISPID kValue = DISPID_VALUE;

/// What the control is without a member's name: the text of a box, the caption of the rest.
DISPID DefaultMember(const Control& control, DISPID text, DISPID caption) {
  const ControlKind kind = control.Kind();
  return kind == ControlKind::kTextBox || kind == ControlKind::kComboBox ? text : caption;
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
  return IdIn(kMembers, name);
}

bool ControlAutomation::Get(DISPID member, const AutomationCall& call) {
  const std::shared_ptr<Form> alive = form_.lock();
  if (member == kValue) member = DefaultMember(Living(), IdOf(L"Text"), IdOf(L"Caption"));
  return GetIn(kMembers, member, *this, call);
}

bool ControlAutomation::Put(DISPID member, const AutomationCall& call) {
  const std::shared_ptr<Form> alive = form_.lock();
  if (member == kValue) member = DefaultMember(Living(), IdOf(L"Text"), IdOf(L"Caption"));
  return PutIn(kMembers, member, *this, call);
}

}  // namespace orvendal
