#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>

#include "platform/forms/common_window.h"
#include "platform/forms/form.h"

namespace orvendal {

class QtFormWidget;
class QtWindowHost;

/// The window of one form.
///
/// A form without border is a bare window of the form's size; one that is as large as the display goes over
/// panels and docks too. With a simulated display the form that is not modal stands in a plain framed window
/// as large as that display, at its place on it. A form with a border has the system's frame around its size.
/// Nobody but the form changes the size.
class QtFormWindow final : public CommonWindow {
 public:
  QtFormWindow(QtWindowHost& host, Form& form);
  ~QtFormWindow() override;

  QWidget& Widget() const;
  /// The window in front of which a modal one was shown.
  QWidget* Owner() const { return owner_; }

  /// The window out of its minimised state, as it was before; does nothing to one that is not.
  void BringBack();
  QPoint PlaceOnScreen(Point twips) const;

  void Show() override;
  void Hide() override;
  void Raise() override;
  void BoundsChanged() override;
  void CaptionChanged() override;
  void StateChanged(WindowState state) override;
  void RequestPaint(const Rect& area) override;
  void PaintNow() override;
  void Cursor(CursorShape shape) override;
  void Caret(const std::optional<Rect>& caret) override;

 private:
  bool SimulatesDisplay() const;
  /// The form's place on the display, in logical pixels.
  QRect FormPixels() const;
  bool CoversScreen() const;
  void PrepareFlags();
  /// Tells the window system place, size and state.
  void Apply();
  void ApplyBounds();
  void ApplyState();
  QPoint PlaceAtFirst(const QSize& size) const;

  QtWindowHost& host_;
  Form& form_;
  QtFormWidget* widget_;  // deletes itself after Detach
  QPointer<QWidget> owner_;
  bool modal_ = false;
  bool placed_ = false;  // a framed window is placed once, then it is the user's
};

}  // namespace orvendal
