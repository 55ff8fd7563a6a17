#include "adapters/qt/qt_form_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "adapters/qt/qt_form_widget.h"
#include "adapters/qt/qt_window_host.h"

namespace orvendal {
namespace {

constexpr int kCenterOnOwner = 1;
constexpr int kCenterOnScreen = 2;

int PixelsOf(double twips) {
  return qRound(twips / kTwipsPerPixel);
}

}  // namespace

QtFormWindow::QtFormWindow(QtWindowHost& host, Form& form)
    : host_(host), form_(form), widget_(new QtFormWidget(host, form)) {
  host_.windows_.push_back(this);
  CaptionChanged();
}

QtFormWindow::~QtFormWindow() {
  widget_->Detach();
  host_.WindowGone(*this);
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
  return host_.options_.display.has_value() && !IsFramed() && !modal_;
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

QPoint QtFormWindow::FirstPlace(const QSize& size) const {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  QRect around = screen;
  if (form_.StartUpPosition() == kCenterOnOwner && owner_ != nullptr) around = owner_->geometry();
  QPoint place = around.center() - QPoint(size.width() / 2, size.height() / 2);
  // The place is that of the frame's corner, and the whole frame has to be seen.
  const QMargins frame = IsFramed() ? host_.FrameMargins() : QMargins();
  const QSize whole = size.grownBy(frame);
  place.setX(qBound(screen.left(), place.x(), std::max(screen.left(), screen.right() + 1 - whole.width())));
  place.setY(qBound(screen.top(), place.y(), std::max(screen.top(), screen.bottom() + 1 - whole.height())));
  return place;
}

void QtFormWindow::ApplyBounds() {
  const QRect pixels = FormPixels();
  if (SimulatesDisplay()) {
    widget_->setFixedSize(*host_.options_.display);
    widget_->Origin({pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel});
    return;
  }
  widget_->setFixedSize(pixels.size());
  if (!IsFramed()) {
    const bool centered =
        form_.StartUpPosition() == kCenterOnOwner || form_.StartUpPosition() == kCenterOnScreen;
    if (!centered || form_.WindowState() == WindowState::kMaximized) {
      widget_->move(QGuiApplication::primaryScreen()->geometry().topLeft() + pixels.topLeft());
      return;
    }
  }
  if (!placed_) widget_->move(FirstPlace(pixels.size()));
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
  widget_->hide();
  placed_ = false;
  host_.WindowHidden(*this);
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
  const QString caption = QString::fromStdString(form_.Caption());
  widget_->setWindowTitle(caption.isEmpty() ? host_.options_.application_title : caption);
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
