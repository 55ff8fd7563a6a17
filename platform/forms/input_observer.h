#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/base/object.h"
#include "platform/forms/edit_menu.h"
#include "platform/forms/geometry.h"

namespace orvendal {

class Form;
class WindowHost;
class ModalScope;
enum class WindowState;

/// What came to a form from outside, as the member of Form that took it was called.
struct InputEvent {
  enum class Kind { kPress, kMove, kRelease, kWheel, kKeyDown, kCharacter, kKeyUp, kClose, kState };
  Kind kind = Kind::kPress;
  Point position;          // of the mouse
  int button = 0;          // of a press and a release; the buttons of a move
  int shift = 0;           // of the mouse and of keys
  bool is_second = false;  // of a double click
  double lines = 0;        // of the wheel
  double lines_of_a_notch = 0;
  int key_code = 0;
  char32_t character = 0;
  WindowState state = {};
};

/// Looks on while a form is used. It hears of everything that a form takes from outside, and not of what the
/// form's own handlers do, nor of what goes to a dialog that one of them has opened. A movement of the mouse
/// is told only while a button is held.
///
/// What it is told must not fail: an exception ends the program.
class InputObserver {
 public:
  virtual ~InputObserver() = default;
  /// Before any handler hears of the event, and after all of them have. Where a handler lets further events
  /// in (WindowHost::DoEvents), these are told between the two. After is told of a form that is unloaded,
  /// too.
  virtual void Before(Form& form, const InputEvent& event) = 0;
  virtual void After(Form& form, const InputEvent& event) = 0;
  /// A paste brought this text. Told between Before and After.
  virtual void Pasted(const std::string& text) = 0;
  /// The menu of a text box was up; nothing for one that was closed. Told between Before and After.
  virtual void ChosenFromMenu(std::optional<EditCommand> chosen) = 0;
};

/// What takes the place of the desktop while input is replayed.
class InputReplay {
 public:
  virtual ~InputReplay() = default;
  /// What a paste brings; nothing leaves it to the desktop.
  virtual std::optional<std::string> TextToPaste() = 0;
  /// What is chosen from the menu of a text box that comes up now.
  virtual std::optional<EditCommand> ChoiceFromMenu() = 0;
};

/// An event that a form takes, from construction to destruction.
class ObservedInput {
 public:
  ObservedInput(Form& form, const InputEvent& event);
  ~ObservedInput();
  ObservedInput(const ObservedInput&) = delete;
  ObservedInput& operator=(const ObservedInput&) = delete;

 private:
  WindowHost& host_;
  Form& form_;
  const InputEvent event_;
  ObjectRef alive_;  // only while somebody looks on
};

/// While it lives, what forms take belongs to something else that the observer knows of, such as a call of
/// the host, and is not told.
class UnobservedInput {
 public:
  explicit UnobservedInput(WindowHost& host);
  ~UnobservedInput();
  UnobservedInput(const UnobservedInput&) = delete;
  UnobservedInput& operator=(const UnobservedInput&) = delete;

 private:
  WindowHost& host_;
};

}  // namespace orvendal
