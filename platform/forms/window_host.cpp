#include "platform/forms/window_host.h"

#include "platform/forms/form.h"

namespace orvendal {

bool WindowHost::TakesInput(const Form& form) const {
  return innermost_ == nullptr || innermost_->form_ == &form;
}

bool WindowHost::IsInnermostDialog(const Form& form) const {
  return innermost_ != nullptr && innermost_->form_ == &form;
}

std::string WindowHost::PastedText() {
  std::optional<std::string> replayed;
  if (replay_ != nullptr) replayed = replay_->TextToPaste();
  std::string text = replayed ? *replayed : pastes_selection_ ? SelectedText() : ClipboardText();
  if (IsObserved() && innermost_ == observed_dialog_) observer_->Pasted(text);
  return text;
}

std::optional<EditCommand> WindowHost::ChooseFromEditMenu(Form& form, Point place, const EditMenu& menu) {
  const bool is_of_dialog = innermost_ != nullptr && innermost_->outer_ != observed_dialog_;
  std::optional<EditCommand> chosen =
      replay_ != nullptr ? replay_->ChoiceFromMenu() : RunEditMenu(form, place, menu);
  if (IsObserved() && !is_of_dialog) observer_->ChosenFromMenu(chosen);
  return chosen;
}

ObservedInput::ObservedInput(Form& form, const InputEvent& event)
    : host_(form.Host()), form_(form), event_(event) {
  if (host_.observer_ == nullptr || host_.unobserved_ > 0) return;
  // Inside another event it is a handler that changes the window, not the desktop.
  if (event.kind == InputEvent::Kind::kState && host_.observed_events_ > 0) return;
  if (host_.observed_events_ == 0) {
    host_.observed_dialog_ = host_.innermost_;
  } else if (host_.innermost_ != host_.observed_dialog_) {
    return;
  }
  alive_ = form.shared_from_this();
  ++host_.observed_events_;
  host_.observer_->Before(form, event);
}

ObservedInput::~ObservedInput() {
  if (!alive_) return;
  --host_.observed_events_;
  if (host_.observer_ != nullptr) host_.observer_->After(form_, event_);
}

UnobservedInput::UnobservedInput(WindowHost& host) : host_(host) {
  ++host_.unobserved_;
}

UnobservedInput::~UnobservedInput() {
  --host_.unobserved_;
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
