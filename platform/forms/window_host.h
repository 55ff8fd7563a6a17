#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/clock.h"
#include "platform/base/region.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/color.h"
#include "platform/forms/cursor_shape.h"
#include "platform/forms/edit_menu.h"
#include "platform/forms/font.h"
#include "platform/forms/geometry.h"
#include "platform/forms/input_observer.h"
#include "platform/forms/key_run.h"
#include "platform/forms/text_measures.h"

namespace orvendal {

class Form;
class Timer;

enum class WindowState { kNormal = 0, kMinimized = 1, kMaximized = 2 };

/// The native window of one loaded form. Made by the host, owned by the form, gone with its destruction.
/// How to implement one: forward input to the form's input members (form.h), call Form::Paint for what has to
/// be painted, and do here what the form says. It decides nothing.
class FormWindow {
 public:
  virtual ~FormWindow() = default;
  virtual void Show() = 0;
  virtual void Hide() = 0;
  /// Brings the window to the front.
  virtual void Raise() = 0;
  /// Place and size of the window changed; see Form::Left, Top, Width, Height (twips).
  virtual void BoundsChanged() = 0;
  virtual void CaptionChanged() = 0;
  virtual void StateChanged(WindowState state) = 0;
  /// Something in `area` (twips) is to be painted at the next turn of the event loop.
  virtual void RequestPaint(const Rect& area) = 0;
  /// Paints at once what was requested.
  virtual void PaintNow() = 0;
  virtual void Cursor(CursorShape shape) = 0;
  /// Where the caret stands, in twips from the form's corner; nothing if there is none.
  virtual void Caret(const std::optional<Rect>& caret) = 0;
};

/// The system as the form engine sees it: screen, clock, fonts (TextMeasures), clipboard, native windows.
/// Outlives all forms. How to implement one: see adapters/headless for the smallest, adapters/qt for a
/// desktop.
class WindowHost : public TextMeasures {
 public:
  WindowHost() = default;
  WindowHost(const WindowHost&) = delete;
  WindowHost& operator=(const WindowHost&) = delete;
  ~WindowHost() override = default;

  virtual const Region& UserRegion() = 0;
  virtual Clock& SystemClock() = 0;
  /// Size of the display in twips.
  virtual double ScreenWidth() = 0;
  virtual double ScreenHeight() = 0;
  /// The largest form with the system's frame that lies on the display with all of its frame, beside panels
  /// and docks. Twips, its corner left out.
  virtual Rect RoomInFrame() { return {0, 0, ScreenWidth(), ScreenHeight()}; }
  /// A plain colour word for a system colour index.
  virtual ColorWord SystemColor(std::uint32_t index) { return ClassicSystemColor(index); }

  virtual std::unique_ptr<FormWindow> CreateFormWindow(Form& form) = 0;
  /// Runs until `form` is hidden or unloaded; other forms take no input meanwhile.
  virtual void RunModal(Form& form) = 0;
  /// Lets pending input and paint requests through.
  virtual void DoEvents() = 0;
  /// Enabled or Interval of a timer changed, or the timer goes away (`alive` false).
  virtual void TimerChanged(Timer& timer, bool alive) = 0;

  virtual void Beep() = 0;
  virtual std::string ClipboardText() = 0;
  virtual void ClipboardText(const std::string& text) = 0;
  /// The text that was selected last on a desktop where the middle button pastes it; others keep none.
  virtual std::string SelectedText() { return {}; }
  virtual void SelectedText(const std::string& /*text*/) {}
  /// The desktop's menu of a text box with its corner at `place` of the form, up until one is chosen or it is
  /// closed. A host without such a menu chooses nothing. The engine holds a ModalScope around it.
  virtual std::optional<EditCommand> RunEditMenu(Form& /*form*/, Point /*place*/, const EditMenu& /*menu*/) {
    return std::nullopt;
  }

  /// An error that no handler trapped during an event: the user is told its number and description.
  virtual void ReportError(const RuntimeError& error) = 0;

  // What the engine keeps for all forms of one host.

  /// The form that was shown or activated last; nullptr after it is gone.
  Form* ActiveForm() const { return active_form_; }
  /// Counts every modal dialog ever opened; a gesture that sees it change is over.
  std::uint64_t ModalSerial() const { return modal_serial_; }
  /// Whether `form` may take input: no dialog is up, or it is itself the innermost one.
  bool TakesInput(const Form& form) const;
  /// Whether `form` itself is the innermost dialog that is up.
  bool IsInnermostDialog(const Form& form) const;
  /// When the key came that is being handled, in milliseconds of the clock that the system's input has. Told
  /// by whoever forwards a key, before the form or the dialog hears of it.
  std::uint64_t InputTime() const { return input_time_; }
  void InputTime(std::uint64_t milliseconds) { input_time_ = milliseconds; }
  /// The characters that came last, whichever form or message box they went to. A form adds its own before
  /// any handler hears of them.
  KeyRun& Keys() { return keys_; }
  /// What a paste brings: the clipboard's text, or the selected one while the middle button pastes.
  std::string PastedText();
  /// Runs the menu of a text box, see RunEditMenu.
  std::optional<EditCommand> ChooseFromEditMenu(Form& form, Point place, const EditMenu& menu);

  /// Who looks on, and who stands in for the desktop; nullptr for nobody. Both outlive being named here.
  void Observe(InputObserver* observer) { observer_ = observer; }
  InputObserver* Observer() const { return observer_; }
  void Replay(InputReplay* replay) { replay_ = replay; }
  Rgb Resolve(ColorWord color) {
    return RgbOf(IsSystemColor(color) ? SystemColor(SystemColorIndex(color)) : color);
  }

 private:
  friend class Form;
  friend class ModalScope;
  friend class SelectionPaste;
  friend class ObservedInput;
  friend class UnobservedInput;
  bool IsObserved() const { return observer_ != nullptr && observed_events_ > 0 && unobserved_ == 0; }
  Form* active_form_ = nullptr;
  Form* input_form_ = nullptr;  // that a key or a press came to last
  bool pastes_selection_ = false;
  class ModalScope* innermost_ = nullptr;
  std::uint64_t modal_serial_ = 0;
  std::uint64_t input_time_ = 0;
  KeyRun keys_;
  InputObserver* observer_ = nullptr;
  InputReplay* replay_ = nullptr;
  int observed_events_ = 0;  // one inside the other
  int unobserved_ = 0;
  const class ModalScope* observed_dialog_ = nullptr;  // that the outermost event came to
};

/// A modal dialog is up from construction to destruction. It ends the gesture in hand, whoever opened it: the
/// release goes to the dialog, so that what is pressed is let go without a click. Whoever opens a dialog that
/// is no engine form (a message box, a dialog of an outside library) holds one around it; Form::Show does it
/// for its own.
class ModalScope {
 public:
  explicit ModalScope(WindowHost& host, const Form* form = nullptr);
  ~ModalScope();
  ModalScope(const ModalScope&) = delete;
  ModalScope& operator=(const ModalScope&) = delete;

 private:
  friend class WindowHost;
  WindowHost& host_;
  const Form* form_;
  ModalScope* outer_;
};

/// While it lives, a paste brings what is selected on the desktop.
class SelectionPaste {
 public:
  explicit SelectionPaste(WindowHost& host) : host_(host) { host_.pastes_selection_ = true; }
  ~SelectionPaste() { host_.pastes_selection_ = false; }
  SelectionPaste(const SelectionPaste&) = delete;
  SelectionPaste& operator=(const SelectionPaste&) = delete;

 private:
  WindowHost& host_;
};

}  // namespace orvendal
