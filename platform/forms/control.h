#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/forms/canvas.h"
#include "platform/forms/color.h"
#include "platform/forms/cursor_shape.h"
#include "platform/forms/font.h"
#include "platform/forms/geometry.h"
#include "platform/forms/keys.h"

namespace orvendal {

class Form;
class WindowHost;

enum class ControlKind {
  kLabel,
  kTextBox,
  kComboBox,
  kCommandButton,
  kOptionButton,
  kPictureBox,
  kShape,
  kLine,
  kTimer,
  kHScrollBar,
  kMSFlexGrid,
  kMonthView,
  kBarra,
  kBoton,
};

/// How far the wheel has turned since the last time: in lines, of which a notch of the wheel is as many as
/// the user wants, and in notches. Down is positive.
struct WheelTurn {
  int lines = 0;
  int notches = 0;
};

enum class Appearance { kFlat = 0, k3D = 1 };
enum class AlignMode { kNone = 0, kTop = 1 };

/// The properties that every kind of control has. Lengths in twips, relative to the container's inside.
struct ControlProperties {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  bool visible = true;
  bool enabled = true;
  bool tab_stop = true;
  int tab_index = -1;  // -1: not in the tab order
  ColorWord back_color = system_color::kButtonFace;
  ColorWord fore_color = system_color::kButtonText;
  Appearance appearance = Appearance::k3D;
  int border_style = 0;
  AlignMode align = AlignMode::kNone;
  std::string tag;
};

/// One control of a form: an object with its state in it and no window of its own.
///
/// A control registers itself with its form when it is made; the order of making is the order of `Controls`
/// and of painting, the first one in front. It lives as long as its form, which owns it as a member.
///
/// Setters take effect at once and ask for painting lazily. Events are plain calls made inside the operation
/// that causes them; an empty one does nothing. A disabled or hidden control raises no input event.
class Control {
 public:
  /// `container` is nullptr for a control that stands directly on the form; `index` is -1 outside control
  /// arrays.
  Control(Form& form, Control* container, std::string_view name, int index = -1);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  virtual ControlKind Kind() const = 0;
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  /// "LblNuevo(0)" for a member of a control array, else the plain name.
  std::string FullName() const;
  Form& Parent() const { return form_; }
  Control* Container() const { return container_; }

  double Left() const { return properties_.left; }
  void Left(double twips);
  double Top() const { return properties_.top; }
  void Top(double twips);
  double Width() const { return properties_.width; }
  void Width(double twips);
  double Height() const { return properties_.height; }
  void Height(double twips);
  /// An aligned control takes only the height.
  void Move(double left, double top, double width);
  void Move(double left, double top, double width, double height);

  bool Visible() const { return properties_.visible; }
  void Visible(bool visible);
  bool Enabled() const { return properties_.enabled; }
  void Enabled(bool enabled);
  int TabIndex() const { return properties_.tab_index; }
  void TabIndex(int index) { properties_.tab_index = index; }
  bool TabStop() const { return properties_.tab_stop; }
  void TabStop(bool stop) { properties_.tab_stop = stop; }
  ColorWord BackColor() const { return properties_.back_color; }
  void BackColor(ColorWord color);
  ColorWord ForeColor() const { return properties_.fore_color; }
  void ForeColor(ColorWord color);
  enum Appearance Appearance() const { return properties_.appearance; }
  void Appearance(enum Appearance appearance);
  int BorderStyle() const { return properties_.border_style; }
  void BorderStyle(int style);
  AlignMode Align() const { return properties_.align; }
  void Align(AlignMode align);
  const std::string& Tag() const { return properties_.tag; }
  void Tag(const std::string& tag) { properties_.tag = tag; }
  /// Raises error 438 for kinds that have none (shapes, lines, timers).
  ControlFont& Font();
  const ControlFont& Font() const;

  /// Takes the focus, LostFocus of the other and GotFocus of this one run inside. Raises error 5 if the
  /// control cannot have it; does nothing if it has it already.
  void SetFocus();
  bool HasFocus() const;
  /// Asks for painting of the whole control at the next turn of the event loop.
  void Refresh();

  /// Back to the values of a new control of its kind, events kept. Raises no event.
  virtual void RestoreDefaults();

  // Events. Button: 1 left, 2 right. Shift: a sum of 1 Shift, 2 Ctrl, 4 Alt. x, y: twips from the control's
  // corner.
  std::function<void()> OnClick;
  std::function<void()> OnDblClick;
  std::function<void(int button, int shift, double x, double y)> OnMouseDown;
  std::function<void(int button, int shift, double x, double y)> OnMouseUp;
  std::function<void(int button, int shift, double x, double y)> OnMouseMove;
  std::function<void(int& key_code, int shift)> OnKeyDown;
  std::function<void(int& key_ascii)> OnKeyPress;
  std::function<void(int& key_code, int shift)> OnKeyUp;
  std::function<void()> OnGotFocus;
  std::function<void()> OnLostFocus;

  // What the form asks of its controls. Not for handlers.

  /// Painted by its container's surface, behind all windowed controls, and never focused.
  virtual bool IsLightweight() const { return false; }
  virtual bool CanFocus() const { return !IsLightweight(); }
  /// Whether a press at `local` is this control's; containers and labels are so everywhere.
  virtual bool TakesMouse() const { return true; }
  bool IsShown() const;     // visible, and all containers too
  bool IsOperable() const;  // shown and enabled, and all containers too
  bool IsFocusable() const { return CanFocus() && IsOperable(); }
  /// Place on the form in twips.
  Rect Bounds() const;
  /// Corner of the inside, relative to the control's own corner: what children count from.
  virtual Point ClientOrigin() const { return {}; }

  virtual void Paint(Canvas& canvas) = 0;
  /// The part, relative to the control, of which Paint leaves nothing to be seen of what lies behind. Empty
  /// for a control that lets something through.
  virtual Rect OpaqueArea() const { return {}; }
  /// Clip of the children while painting and in hit tests, relative to the control.
  Rect LocalBounds() const { return {0, 0, Width(), Height()}; }

  // Default actions. Each runs after the handlers of its event, unless they cancelled it.

  /// Before MouseDown is raised: a grid moves its cursor here.
  virtual void MousePressing(int /*button*/, int /*shift*/, Point /*local*/) {}
  /// After MouseDown, before the focus changes.
  virtual void MousePressed(int /*button*/, int /*shift*/, Point /*local*/) {}
  virtual void MouseMoved(int /*buttons*/, int /*shift*/, Point /*local*/) {}
  /// Before MouseUp and Click are raised.
  virtual void MouseReleased(int /*button*/, int /*shift*/, Point /*local*/) {}
  /// After MouseUp and Click of a press that no dialog took.
  virtual void PressEnded(int /*button*/, Point /*local*/) {}
  /// The press that is under way ends without a release: a dialog or an error came between.
  virtual void GestureCancelled() {}
  virtual void MouseDoubleClicked(int /*button*/, int /*shift*/, Point /*local*/) {}
  /// What scrolls goes by the lines, what steps from one thing to the next by the notches, of which a small
  /// turn has none. True if the turn is this control's.
  virtual bool MouseWheel(WheelTurn /*turn*/) { return false; }
  /// A press that the control handled in parts of its own (scroll bars) raises no Click and no DblClick.
  virtual bool RaisesClick(Point /*local*/) const { return true; }
  /// A press on the scroll bars of a grid leaves the focus where it is.
  virtual bool TakesFocusOnPress(Point /*local*/) const { return true; }
  /// A button raises Click before MouseUp.
  virtual bool ClickPrecedesMouseUp() const { return false; }
  /// True if the character that belongs to the key is not to arrive.
  virtual bool KeyDownDefault(int /*key_code*/, int /*shift*/) { return false; }
  virtual void KeyUpDefault(int /*key_code*/, int /*shift*/) {}
  virtual void CharacterDefault(int /*key_ascii*/) {}
  virtual void FocusChanged(bool /*has_focus*/) {}
  virtual std::optional<Rect> CaretRectangle() const { return std::nullopt; }
  virtual CursorShape Cursor(Point local) const;

 protected:
  virtual bool HasFont() const { return true; }
  virtual ControlProperties DefaultProperties() const { return {}; }
  virtual void FontChanged() { Invalidate(); }
  virtual void SizeChanged() {}
  /// To be called by each kind's constructor.
  void InitializeDefaults();

  WindowHost& Host() const;
  void Invalidate();
  /// Only `local`, relative to the control.
  void Invalidate(const Rect& local);
  /// Whether all of the control has been asked to be painted and nothing was since then: whoever changes many
  /// parts of it need not tell of each.
  bool WaitsWhole() const;
  Rgb Resolve(ColorWord color) const;
  void PlaceAligned(double left, double top, double width);

 private:
  friend class Form;
  void SetBounds(const Rect& bounds);
  bool RequestPaint(const Rect& local);

  Form& form_;
  Control* container_;
  std::string name_;
  int index_;
  std::uint64_t round_of_whole_ = 0;  // of painting, in which all of it was asked for last
  ControlProperties properties_;
  ControlFont font_;
};

}  // namespace orvendal
