#include <cmath>

#include "platform/forms/form.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

Point LocalTo(const Control& control, Point position) {
  const Rect bounds = control.Bounds();
  return {position.x - bounds.left, position.y - bounds.top};
}

// Takes the whole part out of a sum. Fifths and thirds add up to a little less than one.
int TakeWhole(double& rest) {
  constexpr double kSlack = 1e-6;
  const int whole = static_cast<int>(rest + std::copysign(kSlack, rest));
  rest -= whole;
  return whole;
}

}  // namespace

void Form::Dispatch(const std::function<void()>& event, Source source) {
  if (!loaded_) return;
  const ObjectRef self = shared_from_this();
  const std::uint64_t life = life_;
  const int outer_gesture_events = gesture_events_;
  if (source == Source::kGesture) ++gesture_events_;
  try {
    event();
    gesture_events_ = outer_gesture_events;
  } catch (const RuntimeError& error) {
    if (source == Source::kGesture) {
      gesture_.pressed = false;
      gesture_.swallowed = true;
      if (gesture_.target != nullptr) gesture_.target->GestureCancelled();
    }
    gesture_events_ = outer_gesture_events;
    const ModalScope report(host_);
    host_.ReportError(error);
  } catch (...) {
    gesture_events_ = outer_gesture_events;
    throw;
  }
  if (StillLoaded(life)) UpdateCaret();
}

bool Form::GestureOver(std::uint64_t life, std::uint64_t modal_serial) {
  if (!StillLoaded(life)) return true;
  if (host_.ModalSerial() == modal_serial) return false;
  gesture_.pressed = false;
  gesture_.swallowed = true;
  if (gesture_.target != nullptr) gesture_.target->GestureCancelled();
  return true;
}

void Form::EndGesture() {
  if (gesture_events_ > 0) return;  // an event of the gesture is running and ends it when it returns
  if (active_control_ != nullptr) active_control_->GestureCancelled();
  if (!gesture_.pressed) return;
  gesture_.pressed = false;
  gesture_.swallowed = true;
  Control* target = gesture_.target;
  target->GestureCancelled();
  if (!target->OnMouseUp || !target->IsOperable()) return;
  const Point local = LocalTo(*target, gesture_.position);
  Dispatch([&] { target->OnMouseUp(gesture_.button, 0, local.x, local.y); });
}

void Form::MousePress(Point position, int button, int shift, bool second_of_double) {
  if (!host_.TakesInput(*this)) return;
  const ObservedInput observed(*this, {.kind = InputEvent::Kind::kPress,
                                       .position = position,
                                       .button = button,
                                       .shift = shift,
                                       .is_second = second_of_double});
  host_.input_form_ = this;
  // The button that counts as held goes down: its release went elsewhere.
  if (gesture_.pressed && button == gesture_.button) EndGesture();
  const auto press = [&] {
    if (second_of_double && gesture_.swallowed) return;
    if (gesture_.pressed) return;  // another button while one is held
    Control* target = ControlAt(position);
    const bool is_double = second_of_double && target != nullptr && target == gesture_.target &&
                           button == gesture_.button && !target->ClickPrecedesMouseUp() &&
                           target->RaisesClick(LocalTo(*target, position));
    if (is_double) {
      PressSecondOfDouble(target, position, button, shift);
    } else {
      PressFirst(target, position, button, shift);
    }
  };
  Dispatch(press, Source::kGesture);
}

void Form::PressFirst(Control* target, Point position, int button, int shift) {
  gesture_ = {};
  gesture_.target = target;
  gesture_.button = button;
  gesture_.position = position;
  if (target == nullptr) {
    if (OnMouseDown) OnMouseDown();
    return;
  }
  const std::uint64_t life = life_;
  const std::uint64_t serial = host_.ModalSerial();
  const Point local = LocalTo(*target, position);
  gesture_.pressed = true;
  gesture_.click_wanted = button == mouse_button::kLeft && target->RaisesClick(local);

  target->MousePressing(button, shift, local);
  if (GestureOver(life, serial)) return;
  if (target->OnMouseDown && target->IsOperable()) target->OnMouseDown(button, shift, local.x, local.y);
  if (GestureOver(life, serial)) return;
  if (target->IsOperable()) target->MousePressed(button, shift, local);
  if (GestureOver(life, serial)) return;
  if (target->IsFocusable() && target->TakesFocusOnPress(local)) MoveFocus(target);
  GestureOver(life, serial);
}

void Form::PressSecondOfDouble(Control* target, Point position, int button, int shift) {
  const std::uint64_t life = life_;
  const std::uint64_t serial = host_.ModalSerial();
  gesture_.pressed = true;
  gesture_.click_wanted = false;
  if (button == mouse_button::kLeft && target->OnDblClick) target->OnDblClick();
  if (GestureOver(life, serial)) return;
  if (target->IsOperable()) target->MouseDoubleClicked(button, shift, LocalTo(*target, position));
  GestureOver(life, serial);
}

void Form::MouseMove(Point position, int buttons, int shift) {
  if (!host_.TakesInput(*this)) return;
  // Without a button held the pointer only takes its shape; nobody looks on at that.
  std::optional<ObservedInput> observed;
  if (gesture_.pressed && host_.Observer() != nullptr) {
    observed.emplace(
        *this,
        InputEvent{.kind = InputEvent::Kind::kMove, .position = position, .button = buttons, .shift = shift});
  }
  Dispatch([&] {
    Control* target = gesture_.pressed ? gesture_.target : ControlAt(position);
    if (window_) {
      window_->Cursor(target != nullptr ? target->Cursor(LocalTo(*target, position)) : CursorShape::kArrow);
    }
    gesture_.position = position;
    if (target == nullptr || !target->IsOperable()) return;
    const std::uint64_t life = life_;
    const Point local = LocalTo(*target, position);
    if (target->OnMouseMove) target->OnMouseMove(buttons, shift, local.x, local.y);
    if (StillLoaded(life) && gesture_.pressed) target->MouseMoved(buttons, shift, local);
  });
}

void Form::MouseRelease(Point position, int button, int shift) {
  if (!host_.TakesInput(*this)) return;
  const ObservedInput observed(
      *this, {.kind = InputEvent::Kind::kRelease, .position = position, .button = button, .shift = shift});
  const auto release = [&] {
    if (!gesture_.pressed || button != gesture_.button) return;
    gesture_.pressed = false;
    if (gesture_.target != nullptr) Release(gesture_.target, position, button, shift);
  };
  Dispatch(release, Source::kGesture);
}

void Form::Release(Control* target, Point position, int button, int shift) {
  const std::uint64_t life = life_;
  const std::uint64_t serial = host_.ModalSerial();
  const bool click = gesture_.click_wanted && target->Bounds().Contains(position);
  const bool click_first = target->ClickPrecedesMouseUp();
  const auto raise_click = [&] {
    if (click && target->OnClick && target->IsOperable()) target->OnClick();
  };
  target->MouseReleased(button, shift, LocalTo(*target, position));
  if (GestureOver(life, serial)) return;
  if (click_first) raise_click();
  if (GestureOver(life, serial)) return;
  const Point local = LocalTo(*target, position);
  if (target->OnMouseUp && target->IsOperable()) target->OnMouseUp(button, shift, local.x, local.y);
  if (GestureOver(life, serial)) return;
  if (!click_first) raise_click();
  if (GestureOver(life, serial)) return;
  if (target->IsOperable()) target->PressEnded(button, LocalTo(*target, position));
  GestureOver(life, serial);
}

void Form::MouseWheel(Point position, double lines, double lines_of_a_notch) {
  if (!host_.TakesInput(*this) || lines_of_a_notch <= 0) return;
  const ObservedInput observed(*this, {.kind = InputEvent::Kind::kWheel,
                                       .position = position,
                                       .lines = lines,
                                       .lines_of_a_notch = lines_of_a_notch});
  Dispatch([&] {
    std::vector<Control*> hits;
    CollectAt(nullptr, position, hits);
    const Control* over = hits.empty() ? nullptr : hits.front();
    const bool turns_back = std::signbit(lines) != std::signbit(wheel_rest_.notches);
    if (turns_back || over != wheel_rest_.over) wheel_rest_ = {over};
    wheel_rest_.lines += lines;
    wheel_rest_.notches += lines / lines_of_a_notch;
    const WheelTurn turn{TakeWhole(wheel_rest_.lines), TakeWhole(wheel_rest_.notches)};
    if (turn.lines == 0) return;
    for (Control* control : hits) {
      if (control->IsOperable() && control->MouseWheel(turn)) return;
    }
  });
}

void Form::KeyPress(int key_code, int shift) {
  if (!host_.TakesInput(*this)) return;
  const ObservedInput observed(
      *this, {.kind = InputEvent::Kind::kKeyDown, .position = {}, .shift = shift, .key_code = key_code});
  host_.input_form_ = this;
  if (key_code == key::kF4 && (shift & shift_mask::kAlt) != 0) {
    character_swallowed_ = true;
    TakeCloseRequest();
    return;
  }
  const ObjectRef self = shared_from_this();  // a handler may let the form go, and more follows
  Dispatch([&] {
    character_swallowed_ = false;
    key_target_ = active_control_;
    const bool plain = (shift & (shift_mask::kControl | shift_mask::kAlt)) == 0;
    if (key_code == key::kTab && plain && MoveFocusByTab((shift & shift_mask::kShift) != 0)) {
      character_swallowed_ = true;
      return;
    }
    const std::uint64_t life = life_;
    Control* target = key_target_;
    int code = key_code;
    if ((key_preview_ || target == nullptr) && OnKeyDown) OnKeyDown(code, shift);
    if (!StillLoaded(life) || code == 0 || target == nullptr) return;
    if (target->OnKeyDown && target->IsOperable()) target->OnKeyDown(code, shift);
    if (!StillLoaded(life) || code == 0 || !target->IsOperable()) return;
    if (target->KeyDownDefault(code, shift)) character_swallowed_ = true;
  });
  // The clipboard's older keys mean the same as the letters, and pass the same filters.
  if (key_code == key::kInsert && shift == shift_mask::kShift) TakeCharacter(character::kPaste);
  if (key_code == key::kInsert && shift == shift_mask::kControl) TakeCharacter(character::kCopy);
  if (key_code == key::kDelete && shift == shift_mask::kShift) TakeCharacter(character::kCut);
}

void Form::Character(char32_t character) {
  if (!host_.TakesInput(*this)) return;
  const ObservedInput observed(
      *this, {.kind = InputEvent::Kind::kCharacter, .position = {}, .character = character});
  TakeCharacter(character);
}

void Form::TakeCharacter(char32_t character) {
  if (!host_.TakesInput(*this)) return;
  host_.Keys().Add(character, host_.InputTime());
  Dispatch([&] {
    if (character_swallowed_) return;
    const std::uint64_t life = life_;
    Control* target = key_target_ != nullptr ? key_target_ : active_control_;
    int ascii = static_cast<int>(character);
    if ((key_preview_ || target == nullptr) && OnKeyPress) OnKeyPress(ascii);
    if (!StillLoaded(life) || ascii == 0 || target == nullptr || !target->IsOperable()) return;
    if (target->OnKeyPress) target->OnKeyPress(ascii);
    // A handler that hid its control without taking the character lets it in all the same.
    if (StillLoaded(life) && ascii != 0) target->CharacterDefault(ascii);
  });
}

void Form::SendCharacter(Control& target, int character) {
  key_target_ = &target;
  character_swallowed_ = false;
  TakeCharacter(static_cast<char32_t>(character));
  key_target_ = nullptr;
}

void Form::KeyRelease(int key_code, int shift) {
  if (!host_.TakesInput(*this)) return;
  const ObservedInput observed(
      *this, {.kind = InputEvent::Kind::kKeyUp, .position = {}, .shift = shift, .key_code = key_code});
  Dispatch([&] {
    const std::uint64_t life = life_;
    Control* target = active_control_;
    int code = key_code;
    key_target_ = nullptr;
    if ((key_preview_ || target == nullptr) && OnKeyUp) OnKeyUp(code, shift);
    if (!StillLoaded(life) || target == nullptr || !target->IsOperable()) return;
    if (target->OnKeyUp) target->OnKeyUp(code, shift);
    if (StillLoaded(life) && target->IsOperable()) target->KeyUpDefault(key_code, shift);
  });
}

void Form::CloseRequest() {
  if (!host_.TakesInput(*this)) return;
  const ObservedInput observed(*this, {.kind = InputEvent::Kind::kClose, .position = {}});
  TakeCloseRequest();
}

void Form::TakeCloseRequest() {
  Dispatch([&] {
    if (OnCloseRequest) {
      OnCloseRequest();
    } else {
      Unload();
    }
  });
}

void Form::TimerElapsed(Timer& timer) {
  Dispatch([&] {
    if (timer.Enabled() && timer.OnTimer) timer.OnTimer();
  });
}

}  // namespace orvendal
