#include "adapters/qt/qt_form_widget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "adapters/qt/qt_canvas.h"
#include "adapters/qt/qt_keys.h"
#include "adapters/qt/qt_window_host.h"

namespace orvendal {
namespace {

constexpr double kWheelStep = 120.0;
constexpr int kMostPaintRectangles = 8;
// What shows around a form that does not fill its window: the classic desktop.
constexpr QRgb kDesktop = qRgb(58, 110, 165);

}  // namespace

QtFormWidget::QtFormWidget(QtWindowHost& host, Form& form) : host_(host), form_(&form) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_NoSystemBackground);
  setAttribute(Qt::WA_InputMethodEnabled);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::ArrowCursor);
}

void QtFormWidget::Detach() {
  form_ = nullptr;
  blink_timer_.stop();
  hide();
  if (events_under_way_ == 0) delete this;
}

bool QtFormWidget::event(QEvent* event) {
  if (event->type() == QEvent::DeferredDelete) return QWidget::event(event);  // it is gone afterwards
  ++events_under_way_;
  const bool taken = QWidget::event(event);
  // Not already in Detach: that may run in an event loop inside this event, which would delete the widget
  // while its event function is still running.
  if (--events_under_way_ == 0 && form_ == nullptr) deleteLater();
  return taken;
}

// Painting.

QRect QtFormWidget::PixelsOf(const Rect& area) const {
  const int left = static_cast<int>(std::floor((origin_.x + area.left) / kTwipsPerPixel));
  const int top = static_cast<int>(std::floor((origin_.y + area.top) / kTwipsPerPixel));
  const int right = static_cast<int>(std::ceil((origin_.x + area.Right()) / kTwipsPerPixel));
  const int bottom = static_cast<int>(std::ceil((origin_.y + area.Bottom()) / kTwipsPerPixel));
  return QRect(left, top, right - left, bottom - top);
}

void QtFormWidget::Origin(Point twips) {
  if (twips == origin_) return;
  origin_ = twips;
  update();
}

void QtFormWidget::RequestPaint(const Rect& area) {
  const QRect pixels = PixelsOf(area) & rect();
  if (pixels.isEmpty()) return;
  pending_ += pixels;
  update(pixels);
}

void QtFormWidget::PaintNow() {
  if (!pending_.isEmpty()) repaint(pending_);
}

void QtFormWidget::paintEvent(QPaintEvent* event) {
  const QRegion region = event->region();
  pending_ -= region;
  QPainter painter(this);
  if (form_ == nullptr) {
    painter.fillRect(rect(), QColor::fromRgb(kDesktop));
    return;
  }
  RequestLeftOvers(region);
  host_.GuardQuietly("Painting", [&] { PaintForm(painter, region); });
}

// What the form waits for is asked for by RequestPaint already; should a part of it lie outside this event,
// it is asked for anew, since the form has forgotten it now.
void QtFormWidget::RequestLeftOvers(const QRegion& painted) {
  for (const Rect& dirty : form_->TakeDirtyRectangles()) {
    const QRegion left_over = QRegion(PixelsOf(dirty) & rect()) - painted;
    if (left_over.isEmpty()) continue;
    pending_ += left_over;
    update(left_over);
  }
}

void QtFormWidget::PaintForm(QPainter& painter, const QRegion& region) {
  const Rect form_area{0, 0, form_->Width(), form_->Height()};
  const QRect form_pixels =
      QRect(qRound(origin_.x / kTwipsPerPixel), qRound(origin_.y / kTwipsPerPixel),
            qRound(form_area.width / kTwipsPerPixel), qRound(form_area.height / kTwipsPerPixel));
  for (const QRect& outside : region - form_pixels) painter.fillRect(outside, QColor::fromRgb(kDesktop));

  const QRegion parts = region.rectCount() > kMostPaintRectangles ? QRegion(region.boundingRect()) : region;
  QtCanvas canvas(painter, host_.Fonts(), devicePixelRatioF(), origin_);
  for (const QRect& part : parts) {
    const Rect area = Rect{part.x() * kTwipsPerPixel - origin_.x, part.y() * kTwipsPerPixel - origin_.y,
                           part.width() * kTwipsPerPixel, part.height() * kTwipsPerPixel}
                          .Intersection(form_area);
    if (!area.IsEmpty()) form_->Paint(canvas, area);
  }
  if (caret_ && caret_lit_) canvas.Invert(*caret_);
}

// The caret.

void QtFormWidget::Caret(const std::optional<Rect>& caret) {
  if (caret == caret_) return;
  UpdateCaretArea();
  caret_ = caret;
  Blink();
  updateMicroFocus();
}

void QtFormWidget::Blink() {
  const int flash_time = QApplication::cursorFlashTime();
  caret_lit_ = caret_.has_value() && isActiveWindow();
  if (caret_lit_ && flash_time > 1) {
    blink_timer_.start(flash_time / 2, this);
  } else {
    blink_timer_.stop();
  }
  UpdateCaretArea();
}

void QtFormWidget::UpdateCaretArea() {
  if (!caret_) return;
  // A caret thinner than a pixel is drawn a pixel wide.
  Rect area = *caret_;
  area.width = std::max(area.width, kTwipsPerPixel);
  RequestPaint(area);
}

void QtFormWidget::timerEvent(QTimerEvent* event) {
  if (event->timerId() != blink_timer_.timerId()) {
    QWidget::timerEvent(event);
    return;
  }
  caret_lit_ = !caret_lit_;
  UpdateCaretArea();
}

// The mouse.

Point QtFormWidget::PlaceOnForm(QPointF position) const {
  return {position.x() * kTwipsPerPixel - origin_.x, position.y() * kTwipsPerPixel - origin_.y};
}

QPoint QtFormWidget::PlaceOnScreen(Point twips) const {
  return mapToGlobal(
      QPoint(qRound((origin_.x + twips.x) / kTwipsPerPixel), qRound((origin_.y + twips.y) / kTwipsPerPixel)));
}

// A window that says to be minimised and still takes input is on a display without a window manager: the
// event is spent on bringing it back.
void QtFormWidget::Press(QMouseEvent& event, bool second_of_double) {
  const int button = ButtonOf(event.button());
  if (form_ == nullptr || button == 0 || BroughtBack()) return;
  const Point place = PlaceOnForm(event.position());
  if (!Rect{0, 0, form_->Width(), form_->Height()}.Contains(place)) return;
  host_.Guard([&] { form_->MousePress(place, button, ShiftOf(event.modifiers()), second_of_double); });
}

void QtFormWidget::mousePressEvent(QMouseEvent* event) {
  Press(*event, false);
}

// Qt sends this one in place of the second press.
void QtFormWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  Press(*event, true);
}

void QtFormWidget::mouseMoveEvent(QMouseEvent* event) {
  if (form_ == nullptr) return;
  host_.Guard([&] {
    form_->MouseMove(PlaceOnForm(event->position()), ButtonsOf(event->buttons()),
                     ShiftOf(event->modifiers()));
  });
}

void QtFormWidget::mouseReleaseEvent(QMouseEvent* event) {
  const int button = ButtonOf(event->button());
  if (form_ == nullptr || button == 0) return;
  host_.Guard(
      [&] { form_->MouseRelease(PlaceOnForm(event->position()), button, ShiftOf(event->modifiers())); });
}

void QtFormWidget::wheelEvent(QWheelEvent* event) {
  event->accept();
  const int turned = event->angleDelta().y();
  if (form_ == nullptr || turned == 0) return;
  const int lines_of_a_notch = QApplication::wheelScrollLines();
  host_.Guard([&] {
    form_->MouseWheel(PlaceOnForm(event->position()), -turned / kWheelStep * lines_of_a_notch,
                      lines_of_a_notch);
  });
}

void QtFormWidget::ShowCursor(CursorShape shape) {
  if (shape == cursor_) return;
  cursor_ = shape;
  setCursor(shape == CursorShape::kText ? Qt::IBeamCursor : Qt::ArrowCursor);
}

// The keyboard. Every call can end the form's life, which Detach tells.

void QtFormWidget::keyPressEvent(QKeyEvent* event) {
  event->accept();
  if (form_ == nullptr || BroughtBack()) return;
  host_.InputTime(InputTimeOf(*event));
  host_.Guard([&] {
    form_->KeyPress(KeyCodeOf(event->key(), event->modifiers()), ShiftOf(event->modifiers()));
    for (const char32_t character : CharactersOf(*event)) {
      if (form_ != nullptr) form_->Character(character);
    }
  });
}

void QtFormWidget::keyReleaseEvent(QKeyEvent* event) {
  event->accept();
  if (form_ == nullptr || event->isAutoRepeat()) return;
  host_.Guard(
      [&] { form_->KeyRelease(KeyCodeOf(event->key(), event->modifiers()), ShiftOf(event->modifiers())); });
}

// Dead keys and input methods keep the keys to themselves and give the characters.
void QtFormWidget::inputMethodEvent(QInputMethodEvent* event) {
  event->accept();
  for (const uint point : event->commitString().toUcs4()) {
    if (form_ == nullptr) return;
    const char32_t character = static_cast<char32_t>(point);
    host_.Guard([&] {
      form_->KeyPress(KeyCodeOfCharacter(character), 0);
      if (form_ != nullptr) form_->Character(character);
    });
  }
}

QVariant QtFormWidget::inputMethodQuery(Qt::InputMethodQuery query) const {
  switch (query) {
    case Qt::ImEnabled:
      return true;
    case Qt::ImCursorRectangle:
      return caret_ ? PixelsOf(*caret_) : QRect();
    default:
      return QWidget::inputMethodQuery(query);
  }
}

// Tab belongs to the form.
bool QtFormWidget::focusNextPrevChild(bool /*next*/) {
  return false;
}

// The window and its system.

void QtFormWidget::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_ != nullptr) host_.Guard([&] { form_->CloseRequest(); });
}

void QtFormWidget::ApplyState(WindowState state, Qt::WindowStates states) {
  if (state == WindowState::kMinimized && state_ != WindowState::kMinimized)
    state_before_minimizing_ = state_;
  state_ = state;
  setWindowState(states);
}

void QtFormWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (form_ == nullptr) return;
  if (event->type() == QEvent::ActivationChange) Blink();
  if (event->type() == QEvent::WindowStateChange) TakeStateFromSystem();
}

void QtFormWidget::TakeStateFromSystem() {
  const bool minimized = form_->WindowState() == WindowState::kMinimized;
  if (isMinimized() == minimized || !form_->Visible()) return;
  host_.Guard([&] { form_->WindowState(minimized ? state_before_minimizing_ : WindowState::kMinimized); });
}

bool QtFormWidget::BroughtBack() {
  if (form_->WindowState() != WindowState::kMinimized) return false;
  host_.Guard([&] { form_->WindowState(state_before_minimizing_); });
  return true;
}

}  // namespace orvendal
