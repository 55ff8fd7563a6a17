// What an event is to a recorded script.

#include "host/recording/recorder.h"
#include "host/script/raw_mouse.h"
#include "platform/forms/keys.h"

namespace orvendal {
namespace {

constexpr int kCapsLock = 20;
constexpr int kPause = 19;
constexpr int kPrint = 44;
constexpr int kLeftSystem = 91;
constexpr int kRightSystem = 92;
constexpr int kNumLock = 144;
constexpr int kScrollLock = 145;
constexpr int kLastFunctionKey = 135;

bool IsModifier(int code) {
  return (code >= key::kShift && code <= key::kAlt) || code == kCapsLock || code == kNumLock ||
         code == kScrollLock || code == kLeftSystem || code == kRightSystem;
}

// No character ever follows such a key.
bool TypesNothing(const NamedKey& key) {
  const bool alone = (key.shift & (shift_mask::kControl | shift_mask::kAlt)) == shift_mask::kAlt;
  const bool navigates = key.code >= key::kPageUp && key.code <= key::kDown;
  const bool functions = key.code >= key::kF1 && key.code <= kLastFunctionKey;
  return alone || navigates || functions || key.code == key::kTab || key.code == key::kInsert ||
         key.code == key::kDelete || key.code == key::kMenu || key.code == kPause || key.code == kPrint;
}

bool IsButton(const Control* control) {
  if (control == nullptr) return false;
  return control->Kind() == ControlKind::kCommandButton || control->Kind() == ControlKind::kBoton;
}

}  // namespace

Recorder::Step Recorder::StepOf(Form& form, const InputEvent& event) {
  Step step;
  step.kind = Step::Kind::kLine;
  switch (event.kind) {
    case InputEvent::Kind::kPress:
      return PressStep(form, event);
    case InputEvent::Kind::kMove:
      return MoveStep(form, event);
    case InputEvent::Kind::kRelease:
      return ReleaseStep(form, event);
    case InputEvent::Kind::kWheel:
      step.line = RawWheelLine(event, form.ControlAt(event.position));
      return step;
    case InputEvent::Kind::kKeyDown:
      return KeyStep(form, event);
    case InputEvent::Kind::kCharacter:
      step.kind = Step::Kind::kCharacter;
      step.character = event.character;
      if (!held_key_) step.milliseconds = MillisecondsSinceLastKey();
      // The blank that holds a button down comes with its key.
      if (!held_key_ && key_down_alone_ == key::kSpace && event.character == U' ') {
        step.kind = Step::Kind::kNothing;
      }
      return step;
    case InputEvent::Kind::kKeyUp:
      if (event.key_code != key_down_alone_ || key_down_alone_ == 0) return {};
      key_down_alone_ = 0;
      step.line = "sube " + NameOfKey({event.key_code, event.shift});
      return step;
    case InputEvent::Kind::kClose:
      step.line = "cerrar";
      return step;
    case InputEvent::Kind::kState:
      step.line = event.state == WindowState::kMinimized   ? "ventana minimizada"
                  : event.state == WindowState::kMaximized ? "ventana maximizada"
                                                           : "ventana normal";
      return step;
  }
  return {};
}

Recorder::Step Recorder::PressStep(Form& form, const InputEvent& event) {
  Control* const target = form.ControlAt(event.position);
  Step step;
  step.kind = Step::Kind::kPress;
  step.line = RawMouseLine(event, target);
  step.is_second = event.is_second;
  step.button = event.button;
  step.place = event.position;
  const bool is_plain = event.button == mouse_button::kLeft && event.shift == 0;
  if (target != nullptr && is_plain) step.click = ClickAt(form, *target, event.position);
  return step;
}

Recorder::Step Recorder::MoveStep(Form& form, const InputEvent& event) {
  const Control* const holder = form.MouseHolder();
  if (holder == nullptr) return {};
  if (last_.kind == Entry::Kind::kPress && last_.click &&
      IsStillClick(*last_.click, *holder, last_.place, event.position)) {
    return {};
  }
  Step step;
  step.kind = Step::Kind::kLine;
  step.line = RawMouseLine(event, holder);
  return step;
}

Recorder::Step Recorder::ReleaseStep(Form& form, const InputEvent& event) {
  const Control* const holder = form.MouseHolder();
  Step step;
  step.kind = Step::Kind::kRelease;
  step.line = RawMouseLine(event, holder);
  step.button = event.button;
  step.is_over = holder == nullptr;
  step.ends_click = holder != nullptr && last_.click && event.shift == 0 &&
                    EndsClick(*last_.click, *holder, event.position);
  return step;
}

std::optional<int> Recorder::MillisecondsSinceLastKey() {
  const std::uint64_t now = host_.InputTime();
  const std::optional<std::uint64_t> last = std::exchange(last_key_time_, now);
  if (!last || now < *last || now - *last >= KeyRun::kShortestPause) return std::nullopt;
  return static_cast<int>(now - *last);
}

Recorder::Step Recorder::KeyStep(Form& form, const InputEvent& event) {
  Step step;
  step.key = {event.key_code, event.shift};
  if (IsModifier(event.key_code)) return {};
  step.milliseconds = MillisecondsSinceLastKey();
  const std::string details = step.milliseconds ? " " + std::to_string(*step.milliseconds) : "";
  const Control* const active = form.ActiveControl();
  // A button is pressed as long as the blank is held.
  const bool holds_button = IsButton(active) && event.key_code == key::kSpace;
  const bool is_alone = active == nullptr || holds_button;
  if (holds_button) key_down_alone_ = event.key_code;
  step.line = (is_alone ? "baja " : "tecla ") + NameOfKey(step.key) + details;
  step.kind = TypesNothing(step.key) || holds_button ? Step::Kind::kLine : Step::Kind::kKey;
  return step;
}

}  // namespace orvendal
