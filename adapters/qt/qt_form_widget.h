#pragma once

#include <QBasicTimer>
#include <QRegion>
#include <QWidget>
#include <optional>

#include "platform/forms/cursor_shape.h"
#include "platform/forms/form.h"
#include "platform/forms/geometry.h"

namespace orvendal {

class QtWindowHost;

/// The widget of one form's window: turns what Qt says into the form's input members, and paints the form
/// where it has to be painted.
///
/// It may outlive its form, since a handler can unload the form in the middle of an event of this widget:
/// after Detach it calls the form no more.
///
/// Invariants: lengths and places are twips of the form, 15 to a logical pixel; `pending_` holds what was
/// requested and is not painted yet.
class QtFormWidget final : public QWidget {
 public:
  QtFormWidget(QtWindowHost& host, Form& form);

  /// The form's window goes. Deletes the widget at once, or as soon as the events are over that it is in.
  void Detach();

  /// Where the form's corner stands on the widget.
  void Origin(Point twips);
  void RequestPaint(const Rect& area);
  void PaintNow();
  void Caret(const std::optional<Rect>& caret);
  void ShowCursor(CursorShape shape);
  /// Tells the window system the state that the form has taken already.
  void ApplyState(WindowState state, Qt::WindowStates states);

  /// A window that says to be minimised comes back as it was; true if it was so.
  bool BroughtBack();
  QPoint PlaceOnScreen(Point twips) const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  bool focusNextPrevChild(bool next) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  Point PlaceOnForm(QPointF position) const;
  /// Logical pixels that hold all of `area`.
  QRect PixelsOf(const Rect& area) const;
  void PaintForm(QPainter& painter, const QRegion& region);
  void RequestLeftOvers(const QRegion& painted);
  void Press(QMouseEvent& event, bool second_of_double);
  void TakeStateFromSystem();
  void Blink();
  void UpdateCaretArea();

  QtWindowHost& host_;
  Form* form_;  // nullptr after Detach
  int events_under_way_ = 0;
  Point origin_;
  QRegion pending_;
  std::optional<Rect> caret_;
  bool caret_lit_ = false;
  QBasicTimer blink_timer_;
  CursorShape cursor_ = CursorShape::kArrow;
  WindowState state_ = WindowState::kNormal;  // what the window system was told last
  WindowState state_before_minimizing_ = WindowState::kNormal;
};

}  // namespace orvendal
