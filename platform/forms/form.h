#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/base/object.h"
#include "platform/forms/canvas.h"
#include "platform/forms/control.h"
#include "platform/forms/window_host.h"

namespace orvendal {

enum class ShowMode { kModeless = 0, kModal = 1 };

/// A window with controls. Always owned by a shared_ptr; dispatch of an event keeps it alive to its end.
///
/// Life: made (unloaded) -> Load or the first Show -> loaded -> Unload -> unloaded, and again from there.
/// A load that fails leaves it unloaded. At each load the design is applied anew, so that nothing of an
/// earlier life shows.
///
/// First Show: OnLoad to its end, OnResize, OnActivate, GotFocus of the first control of the tab order; all
/// before Show returns. A later Show only raises the window, and raises OnActivate if another form was active
/// before. A Show inside OnLoad does nothing: it is left to the one that loads.
///
/// Invariants: at most one control has the focus, and it can have it (visible, enabled, all containers too).
/// Controls() is in order of creation and never changes.
class Form : public Object {
 public:
  Form(WindowHost& host, std::string name);
  ~Form() override;

  const std::string& Name() const { return name_; }
  WindowHost& Host() const { return host_; }
  const std::vector<Control*>& Controls() const { return controls_; }
  /// The control of that full name ("LblNuevo(0)"); nullptr if there is none.
  Control* FindControl(std::string_view full_name) const;

  // Properties. Lengths in twips. Writing Width or Height while minimised or maximised raises error 384.
  const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);
  double Left() const { return left_; }
  double Top() const { return top_; }
  void Move(double left, double top);
  double Width() const;
  void Width(double twips);
  double Height() const;
  void Height(double twips);
  enum WindowState WindowState() const { return window_state_; }
  /// Each change raises OnResize.
  void WindowState(enum WindowState state);
  bool KeyPreview() const { return key_preview_; }
  void KeyPreview(bool preview) { key_preview_ = preview; }
  /// 0 none; 3 the system's frame around the form's size.
  int BorderStyle() const { return border_style_; }
  void BorderStyle(int style) { border_style_ = style; }
  int StartUpPosition() const { return start_up_position_; }
  void StartUpPosition(int position) { start_up_position_ = position; }
  ColorWord BackColor() const { return back_color_; }
  void BackColor(ColorWord color);
  bool Visible() const { return visible_; }
  bool IsLoaded() const { return loaded_; }
  Control* ActiveControl() const { return active_control_; }

  /// Loads the form if it is not. An error of OnLoad leaves it unloaded and comes out here.
  void Load();
  void Show(ShowMode mode = ShowMode::kModeless);
  void Hide();
  /// Raises OnUnload; unless that cancels, the window goes and the form is unloaded.
  void Unload();
  /// Paints at once what is waiting to be painted.
  void Refresh();
  /// Focus to the active control, else to the first of the tab order.
  void SetFocus();

  // Events.
  std::function<void()> OnLoad;
  std::function<void()> OnResize;
  std::function<void()> OnActivate;
  std::function<void(int& cancel)> OnUnload;
  std::function<void(int& key_code, int shift)> OnKeyDown;
  std::function<void(int& key_ascii)> OnKeyPress;
  std::function<void(int& key_code, int shift)> OnKeyUp;
  std::function<void()> OnGotFocus;
  std::function<void()> OnMouseDown;
  /// The window manager, or Alt+F4, asks to close; without a handler the form unloads.
  std::function<void()> OnCloseRequest;

  // Input, from the adapter only. Positions in twips from the form's corner. An error that no handler traps
  // ends in WindowHost::ReportError. Ignored while a modal dialog is up that is not this form.
  void MousePress(Point position, int button, int shift, bool second_of_double);
  void MouseMove(Point position, int buttons, int shift);
  void MouseRelease(Point position, int button, int shift);
  /// The wheel turns by that many lines, down if positive. Parts of a line and of a notch are kept until they
  /// are whole; a turn back, or over another control, begins anew.
  void MouseWheel(Point position, double lines, double lines_of_a_notch = 3);
  void KeyPress(int key_code, int shift);
  /// The character that the key pressed last stands for, control characters included.
  void Character(char32_t character);
  void KeyRelease(int key_code, int shift);
  void CloseRequest();
  /// The control that holds the mouse from a press to its release; nullptr for none, and for the form itself.
  Control* MouseHolder() const { return gesture_.pressed ? gesture_.target : nullptr; }
  /// A character for `target` that no key stands behind: what is chosen from a menu passes its filters too.
  void SendCharacter(Control& target, int character);
  void TimerElapsed(Timer& timer);

  /// Paints what lies in `area`, everything included.
  void Paint(Canvas& canvas, const Rect& area);
  /// What is waiting to be painted, as few rectangles; forgets it.
  std::vector<Rect> TakeDirtyRectangles();

  /// The control in front at that place that takes the mouse; nullptr for the form itself.
  Control* ControlAt(Point position) const;
  /// Where the focused control has its caret, on the form; nothing if it has none.
  std::optional<Rect> CaretRectangle() const;

 protected:
  /// Puts the form and its controls to the values of the design; called at each load, before OnLoad.
  virtual void ApplyDesign() {}

 private:
  friend class Control;
  friend class ModalScope;
  enum class Source { kGesture, kOther };
  struct Gesture {
    Control* target = nullptr;
    int button = 0;
    Point position;  // of the pointer, seen last
    bool pressed = false;
    bool swallowed = false;
    bool click_wanted = false;
  };

  /// What small turns of the wheel have not made up yet.
  struct WheelRest {
    const Control* over = nullptr;
    double lines = 0;
    double notches = 0;
  };

  void Register(Control* control) { controls_.push_back(control); }
  void Dispatch(const std::function<void()>& event, Source source = Source::kOther);
  bool StillLoaded(std::uint64_t life) const { return loaded_ && life == life_; }
  void SizeWasChanged();
  void LayOutAligned();
  void UpdateCaret();
  void TakeCharacter(char32_t character);
  void TakeCloseRequest();

  // Focus (form_focus.cpp).
  void MoveFocus(Control* target);
  void LeaveIneligible();
  Control* NextTabStop(const Control* from, bool backwards) const;
  bool MoveFocusByTab(bool backwards);

  // Input (form_input.cpp).
  void PressFirst(Control* target, Point position, int button, int shift);
  void PressSecondOfDouble(Control* target, Point position, int button, int shift);
  void Release(Control* target, Point position, int button, int shift);
  bool GestureOver(std::uint64_t life, std::uint64_t modal_serial);
  /// The press ends without a click; its handlers are told of the release that will not come.
  void EndGesture();

  // Painting (form_paint.cpp).
  /// Whether the area waits to be painted now; false where nothing of it can be.
  bool InvalidateArea(const Rect& area);
  void PaintChildren(Canvas& canvas, const Control* container, const Rect& area);
  void PaintControl(Canvas& canvas, Control& control, const Rect& area);
  void PaintAroundChild(Canvas& canvas, Control& control, const Rect& client) const;
  const Control* HidingChild(const Canvas& canvas, const Control* container, Point client) const;
  void CollectAt(const Control* container, Point position, std::vector<Control*>& hits) const;

  WindowHost& host_;
  std::string name_;
  std::vector<Control*> controls_;
  std::string caption_;
  double left_ = 0;
  double top_ = 0;
  double width_ = 0;
  double height_ = 0;
  enum WindowState window_state_ = WindowState::kNormal;
  bool key_preview_ = false;
  int border_style_ = 0;
  int start_up_position_ = 3;
  ColorWord back_color_ = system_color::kButtonFace;
  bool visible_ = false;
  bool loaded_ = false;
  bool loading_ = false;
  bool unloading_ = false;
  std::uint64_t life_ = 0;  // counts loads, so that a handler's end can tell another life
  std::unique_ptr<FormWindow> window_;
  Control* active_control_ = nullptr;
  std::uint64_t focus_serial_ = 0;  // counts moves of the focus, so that an inner one wins over the outer
  Control* key_target_ = nullptr;
  bool character_swallowed_ = false;
  Gesture gesture_;
  WheelRest wheel_rest_;
  int gesture_events_ = 0;  // events of the gesture that are under way, one inside the other
  std::vector<Rect> dirty_;
  std::uint64_t paint_round_ = 1;  // changes whenever `dirty_` is taken
};

/// The platform's global Unload.
inline void Unload(const std::shared_ptr<Form>& form) {
  if (form) form->Unload();
}

}  // namespace orvendal
