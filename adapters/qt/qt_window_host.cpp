#include "adapters/qt/qt_window_host.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QScreen>
#include <QTimerEvent>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <exception>
#include <utility>

#include "adapters/qt/qt_form_window.h"
#include "adapters/qt/qt_icon.h"
#include "platform/forms/form.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

QString FromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// On a display without a window manager the keyboard belongs to nobody after a dialog.
void GiveKeyboardTo(QWidget* window) {
  if (window == nullptr || !window->isVisible() || window->isMinimized()) return;
  window->activateWindow();
}

}  // namespace

QtWindowHost::QtWindowHost(const Region& region, Clock& clock, QtHostOptions options)
    : region_(region), clock_(clock), options_(std::move(options)), measures_(fonts_), timers_(*this) {
  if (QApplication::windowIcon().isNull()) QApplication::setWindowIcon(ProgramIcon());
}

QtWindowHost::~QtWindowHost() = default;

// Screen and fonts.

QSize QtWindowHost::DisplaySize() const {
  return options_.display ? *options_.display : QGuiApplication::primaryScreen()->geometry().size();
}

double QtWindowHost::ScreenWidth() {
  return DisplaySize().width() * kTwipsPerPixel;
}

double QtWindowHost::ScreenHeight() {
  return DisplaySize().height() * kTwipsPerPixel;
}

QMargins QtWindowHost::FrameMargins() const {
  constexpr QMargins kUsual(8, 40, 8, 8);
  for (const QtFormWindow* window : windows_) {
    const QWindow* handle = window->Widget().windowHandle();
    if (handle != nullptr && window->Widget().isVisible() && !handle->frameMargins().isNull()) {
      return handle->frameMargins();
    }
  }
  return kUsual;
}

Rect QtWindowHost::RoomInFrame() {
  const QSize room =
      QGuiApplication::primaryScreen()->availableGeometry().marginsRemoved(FrameMargins()).size();
  return {0, 0, room.width() * kTwipsPerPixel, room.height() * kTwipsPerPixel};
}

// Windows.

std::unique_ptr<FormWindow> QtWindowHost::CreateFormWindow(Form& form) {
  return std::make_unique<QtFormWindow>(*this, form);
}

QtFormWindow* QtWindowHost::WindowOf(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const QtFormWindow* window) { return &window->TheForm() == &form; });
  return found == windows_.end() ? nullptr : *found;
}

QWidget* QtWindowHost::WidgetOf(const Form& form) const {
  const QtFormWindow* window = WindowOf(form);
  return window == nullptr ? nullptr : &window->Widget();
}

QWidget* QtWindowHost::FrontWindow() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (auto window = windows_.rbegin(); window != windows_.rend(); ++window) {
    if ((*window)->Widget().isVisible()) return &(*window)->Widget();
  }
  return nullptr;
}

bool QtWindowHost::ShowsModal(const Form& form) const {
  if (!TakesInput(form)) return false;
  return std::any_of(windows_.begin(), windows_.end(), [&](const QtFormWindow* window) {
    return window->Widget().isVisible() && !TakesInput(window->TheForm());
  });
}

void QtWindowHost::RunModal(Form& form) {
  const QtFormWindow* window = WindowOf(form);
  if (window == nullptr || !form.Visible()) return;
  const QPointer<QWidget> owner = window->Owner();
  QEventLoop loop;
  modal_loops_.push_back({window, &loop});
  loop.exec(QEventLoop::DialogExec);
  modal_loops_.pop_back();
  GiveKeyboardTo(owner);
  DialogOver();
}

void QtWindowHost::WindowHidden(const QtFormWindow& window) {
  for (const ModalLoop& modal : modal_loops_) {
    if (modal.window == &window) modal.loop->quit();
  }
}

void QtWindowHost::WindowGone(const QtFormWindow& window) {
  WindowHidden(window);
  windows_.erase(std::remove(windows_.begin(), windows_.end(), &window), windows_.end());
  if (!windows_.empty() || !options_.on_last_window_gone) return;
  QMetaObject::invokeMethod(
      &timers_,
      [this] {
        if (windows_.empty()) options_.on_last_window_gone();
      },
      Qt::QueuedConnection);
}

bool QtWindowHost::AskToClose(IfDialogIsUp dialog) {
  if (asking_to_close_) return false;  // the question stays
  std::vector<std::weak_ptr<Object>> open;
  for (const QtFormWindow* window : windows_) open.push_back(window->TheForm().weak_from_this());
  const bool dialog_is_up = std::any_of(windows_.begin(), windows_.end(), [&](const QtFormWindow* window) {
    return !TakesInput(window->TheForm());
  });
  if (dialog_is_up) {
    close_when_dialogs_are_over_ = dialog == IfDialogIsUp::kWait;
    if (QWidget* front = FrontWindow()) QApplication::alert(front);
    Beep();
    return false;
  }
  asking_to_close_ = true;
  for (const std::weak_ptr<Object>& object : open) {
    const auto form = std::dynamic_pointer_cast<Form>(object.lock());
    QtFormWindow* window = form == nullptr ? nullptr : WindowOf(*form);
    if (window == nullptr) continue;
    window->BringBack();
    Guard([&] { form->CloseRequest(); });
  }
  asking_to_close_ = false;
  return windows_.empty();
}

void QtWindowHost::DialogOver() {
  if (!std::exchange(close_when_dialogs_are_over_, false)) return;
  QMetaObject::invokeMethod(
      &timers_, [this] { AskToClose(IfDialogIsUp::kWait); }, Qt::QueuedConnection);
}

void QtWindowHost::DoEvents() {
  QApplication::processEvents();
}

// Timers.

void QtWindowHost::TimerChanged(Timer& timer, bool alive) {
  timers_.Remove(timer);
  if (alive && timer.Enabled() && timer.Interval() > 0) timers_.Set(timer, timer.Interval());
}

void QtWindowHost::Timers::Set(Timer& timer, int milliseconds) {
  identifiers_[&timer] = startTimer(milliseconds);
}

void QtWindowHost::Timers::Remove(Timer& timer) {
  const auto found = identifiers_.find(&timer);
  if (found == identifiers_.end()) return;
  killTimer(found->second);
  identifiers_.erase(found);
}

void QtWindowHost::Timers::timerEvent(QTimerEvent* event) {
  for (const auto& [timer, identifier] : identifiers_) {
    if (identifier != event->timerId()) continue;
    Timer& elapsed = *timer;
    host_.Guard([&] { elapsed.Parent().TimerElapsed(elapsed); });
    return;
  }
}

// Sound and clipboard.

void QtWindowHost::Beep() {
  QApplication::beep();
}

std::string QtWindowHost::ClipboardText() {
  return QGuiApplication::clipboard()->text().toStdString();
}

void QtWindowHost::ClipboardText(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

std::string QtWindowHost::SelectedText() {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  return clipboard->supportsSelection() ? clipboard->text(QClipboard::Selection).toStdString()
                                        : std::string();
}

void QtWindowHost::SelectedText(const std::string& text) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (clipboard->supportsSelection()) clipboard->setText(QString::fromStdString(text), QClipboard::Selection);
}

std::optional<EditCommand> QtWindowHost::RunEditMenu(Form& form, Point place, const EditMenu& menu) {
  const QtFormWindow* window = WindowOf(form);
  if (window == nullptr) return std::nullopt;
  const auto chosen =
      orvendal::RunEditMenu(&window->Widget(), window->PlaceOnScreen(place), menu, options_.edit_captions);
  DialogOver();
  return chosen;
}

// Messages and errors.

int QtWindowHost::RunBox(const QString& text, int style, const QString& title) {
  const ModalScope scope(*this);
  const QPointer<QWidget> owner = FrontWindow();
  const int answer = RunMessageBox(owner, text, style, title.isEmpty() ? options_.application_title : title,
                                   options_.captions, Keys(), [this] { Beep(); });
  GiveKeyboardTo(owner);
  DialogOver();
  return answer;
}

int QtWindowHost::ShowMessage(std::string_view text, int style, std::string_view title) {
  return RunBox(FromUtf8(text), style, FromUtf8(title));
}

void QtWindowHost::ReportError(const RuntimeError& error) {
  if (options_.on_error) {
    options_.on_error(error);
    return;
  }
  errors_to_report_.push_back(error);
  if (reporting_) return;
  reporting_ = true;
  while (!errors_to_report_.empty()) {
    const RuntimeError next = errors_to_report_.front();
    errors_to_report_.pop_front();
    const std::string description =
        options_.describe_error ? options_.describe_error(next) : next.Description();
    const QString text =
        options_.captions.error.arg(QString::number(next.Number()), QString::fromStdString(description));
    RunBox(text, message_style::kStop, QString());
  }
  reporting_ = false;
}

void QtWindowHost::Guard(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    ReportError(error);
  } catch (const std::exception& error) {
    qCritical("An event ended with: %s", error.what());
    ReportError(RuntimeError(error_number::kInternal, error.what()));
  } catch (...) {
    qCritical("An event ended with an unknown exception");
    ReportError(RuntimeError(error_number::kInternal));
  }
}

void QtWindowHost::GuardPainting(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception& error) {
    qCritical("Painting ended with: %s", error.what());
  } catch (...) {
    qCritical("Painting ended with an unknown exception");
  }
}

}  // namespace orvendal
