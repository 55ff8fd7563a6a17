#include "adapters/qt/qt_form_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "adapters/qt/qt_form_widget.h"
#include "adapters/qt/qt_window_host.h"

namespace orvendal {
namespace {

int PixelsOf(double twips) {
  return qRound(twips / kTwipsPerPixel);
}

}  // namespace

QtFormWindow::QtFormWindow(QtWindowHost& host, Form& form)
    : CommonWindow(host, form), host_(host), form_(form), widget_(new QtFormWidget(host, form)) {
  CaptionChanged();
}

QtFormWindow::~QtFormWindow() {
  widget_->Detach();
}

QWidget& QtFormWindow::Widget() const {
  return *widget_;
}

void QtFormWindow::BringBack() {
  widget_->BroughtBack();
}

QPoint QtFormWindow::PlaceOnScreen(Point twips) const {
  return widget_->PlaceOnScreen(twips);
}

bool QtFormWindow::SimulatesDisplay() const {
  return host_.display_.has_value() && !IsFramed() && !modal_;
}

QRect QtFormWindow::FormPixels() const {
  const QSize size(PixelsOf(form_.Width()), PixelsOf(form_.Height()));
  if (form_.WindowState() == WindowState::kMaximized) return {QPoint(0, 0), size};
  return {QPoint(PixelsOf(form_.Left()), PixelsOf(form_.Top())), size};
}

void QtFormWindow::PrepareFlags() {
  modal_ = host_.ShowsModal(form_);
  Qt::WindowFlags flags = modal_ ? Qt::Dialog : Qt::Window;
  flags |= Qt::CustomizeWindowHint;
  if (!IsFramed() && !SimulatesDisplay()) {
    flags |= Qt::FramelessWindowHint;
  } else {
    flags |= Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (!modal_) flags |= Qt::WindowMinimizeButtonHint;
  }
  if (widget_->windowFlags() != flags) widget_->setWindowFlags(flags);
  widget_->setWindowModality(modal_ ? Qt::ApplicationModal : Qt::NonModal);
}

QPoint QtFormWindow::PlaceAtFirst(const QSize& size) const {
  const auto rect_of = [](const QRect& rect) {
    return Rect{static_cast<double>(rect.left()), static_cast<double>(rect.top()),
                static_cast<double>(rect.width()), static_cast<double>(rect.height())};
  };
  const auto size_of = [](const QSize& pixels) {
    return Size{static_cast<double>(pixels.width()), static_cast<double>(pixels.height())};
  };
  // The place is that of the frame's corner, and the whole frame has to be seen.
  const QSize whole = size.grownBy(IsFramed() ? host_.FrameMargins() : QMargins());
  const Point place = FirstPlace(size_of(size), size_of(whole),
                                 rect_of(QGuiApplication::primaryScreen()->availableGeometry()),
                                 owner_ != nullptr ? rect_of(owner_->geometry()) : Rect{});
  return {static_cast<int>(place.x), static_cast<int>(place.y)};
}

void QtFormWindow::ApplyBounds() {
  const QRect pixels = FormPixels();
  if (SimulatesDisplay()) {
    widget_->setFixedSize(*host_.display_);
    widget_->Origin({pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel});
    return;
  }
  widget_->setFixedSize(pixels.size());
  if (!IsPlacedOnce()) {
    widget_->move(QGuiApplication::primaryScreen()->geometry().topLeft() + pixels.topLeft());
    return;
  }
  if (!placed_) widget_->move(PlaceAtFirst(pixels.size()));
  placed_ = placed_ || widget_->isVisible();
}

// A bare window that covers the display has to say so, or docks and panels stay in front of it.
bool QtFormWindow::CoversScreen() const {
  return !IsFramed() && !SimulatesDisplay() &&
         FormPixels().size() == QGuiApplication::primaryScreen()->geometry().size();
}

void QtFormWindow::ApplyState() {
  const WindowState state = form_.WindowState();
  const bool minimized = state == WindowState::kMinimized;
  // A window that the window manager took out of full screen would be shown again by being put back there, so
  // it is minimised as it stands.
  Qt::WindowStates states = minimized ? widget_->windowState() & Qt::WindowFullScreen
                                      : (CoversScreen() ? Qt::WindowFullScreen : Qt::WindowNoState);
  if (minimized) states |= Qt::WindowMinimized;
  widget_->ApplyState(state, states);
}

void QtFormWindow::Apply() {
  // A window that is to cover the screen must be allowed its size first; one that does, keeps it until told.
  if (widget_->isFullScreen() && !CoversScreen()) ApplyState();
  ApplyBounds();
  ApplyState();
}

void QtFormWindow::Show() {
  owner_ = host_.FrontWindow();
  PrepareFlags();
  Apply();
  if (modal_ && owner_ != nullptr) {
    widget_->winId();  // makes the window that the owner is told to
    widget_->windowHandle()->setTransientParent(owner_->windowHandle());
  }
  widget_->show();
  Raise();
}

void QtFormWindow::Hide() {
  host_.EndModal(*this);
  widget_->hide();
  placed_ = false;
}

void QtFormWindow::Raise() {
  if (form_.WindowState() == WindowState::kMinimized) return;
  widget_->raise();
  widget_->activateWindow();
  widget_->setFocus(Qt::ActiveWindowFocusReason);
}

void QtFormWindow::BoundsChanged() {
  if (widget_->isVisible()) Apply();
}

void QtFormWindow::CaptionChanged() {
  widget_->setWindowTitle(QString::fromStdString(Title()));
}

void QtFormWindow::StateChanged(WindowState /*state*/) {
  if (!widget_->isVisible()) return;
  if (form_.WindowState() == WindowState::kMinimized) {
    ApplyState();
  } else {
    Apply();
    Raise();
  }
}

void QtFormWindow::RequestPaint(const Rect& area) {
  widget_->RequestPaint(area);
}

void QtFormWindow::PaintNow() {
  widget_->PaintNow();
}

void QtFormWindow::Cursor(CursorShape shape) {
  widget_->ShowCursor(shape);
}

void QtFormWindow::Caret(const std::optional<Rect>& caret) {
  widget_->Caret(caret);
}

}  // namespace orvendal
