#include "adapters/qt/qt_window_host.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QScreen>
#include <QTimerEvent>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "adapters/qt/qt_form_window.h"
#include "adapters/qt/qt_icon.h"
#include "platform/forms/form.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

QWidget& WidgetOfWindow(const CommonWindow& window) {
  return static_cast<const QtFormWindow&>(window).Widget();
}

// On a display without a window manager the keyboard belongs to nobody after a dialog.
void GiveKeyboardTo(QWidget* window) {
  if (window == nullptr || !window->isVisible() || window->isMinimized()) return;
  window->activateWindow();
}

}  // namespace

QtWindowHost::QtWindowHost(const Region& region, Clock& clock, const QtHostOptions& options)
    : CommonHost(options),
      region_(region),
      clock_(clock),
      display_(options.display),
      captions_(options.captions),
      edit_captions_(options.edit_captions),
      on_last_window_gone_(options.on_last_window_gone),
      measures_(fonts_),
      timers_(*this) {
  if (QApplication::windowIcon().isNull()) QApplication::setWindowIcon(ProgramIcon());
}

QtWindowHost::~QtWindowHost() = default;

// Screen and fonts.

QSize QtWindowHost::DisplaySize() const {
  return display_ ? *display_ : QGuiApplication::primaryScreen()->geometry().size();
}

double QtWindowHost::ScreenWidth() {
  return DisplaySize().width() * kTwipsPerPixel;
}

double QtWindowHost::ScreenHeight() {
  return DisplaySize().height() * kTwipsPerPixel;
}

QMargins QtWindowHost::FrameMargins() const {
  constexpr QMargins kUsual(8, 40, 8, 8);
  for (const CommonWindow* window : Windows()) {
    const QWidget& widget = WidgetOfWindow(*window);
    const QWindow* handle = widget.windowHandle();
    if (handle != nullptr && widget.isVisible() && !handle->frameMargins().isNull()) {
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
  return static_cast<QtFormWindow*>(CommonHost::WindowOf(form));
}

QWidget* QtWindowHost::WidgetOf(const Form& form) const {
  const QtFormWindow* window = WindowOf(form);
  return window == nullptr ? nullptr : &window->Widget();
}

QWidget* QtWindowHost::FrontWindow() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (auto window = Windows().rbegin(); window != Windows().rend(); ++window) {
    if (WidgetOfWindow(**window).isVisible()) return &WidgetOfWindow(**window);
  }
  return nullptr;
}

bool QtWindowHost::ShowsModal(const Form& form) const {
  if (!TakesInput(form)) return false;
  return std::any_of(Windows().begin(), Windows().end(), [&](const CommonWindow* window) {
    return WidgetOfWindow(*window).isVisible() && !TakesInput(window->TheForm());
  });
}

class QtWindowHost::EventLoop final : public ModalLoop {
 public:
  explicit EventLoop(const CommonWindow& window)
      : ModalLoop(window), owner_(static_cast<const QtFormWindow&>(window).Owner()) {}

  void Run(Form&) override {
    loop_.exec(QEventLoop::DialogExec);
    GiveKeyboardTo(owner_);
  }

 protected:
  void End(ModalLoop*) override { loop_.quit(); }

 private:
  const QPointer<QWidget> owner_;
  QEventLoop loop_;
};

std::unique_ptr<CommonHost::ModalLoop> QtWindowHost::MakeModalLoop(const CommonWindow& window) {
  return std::make_unique<EventLoop>(window);
}

void QtWindowHost::LastWindowGone() {
  if (!on_last_window_gone_) return;
  QMetaObject::invokeMethod(
      &timers_,
      [this] {
        if (!HasWindows()) on_last_window_gone_();
      },
      Qt::QueuedConnection);
}

bool QtWindowHost::AskToClose(IfDialogIsUp dialog) {
  if (asking_to_close_) return false;  // the question stays
  std::vector<std::weak_ptr<Object>> open;
  for (const CommonWindow* window : Windows()) open.push_back(window->TheForm().weak_from_this());
  const bool dialog_is_up = std::any_of(Windows().begin(), Windows().end(), [&](const CommonWindow* window) {
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
  return !HasWindows();
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
      orvendal::RunEditMenu(&window->Widget(), window->PlaceOnScreen(place), menu, edit_captions_);
  DialogOver();
  return chosen;
}

// Messages and errors.

int QtWindowHost::RunMessageBox(const std::string& text, int style, const std::string& title) {
  const QPointer<QWidget> owner = FrontWindow();
  const int answer =
      orvendal::RunMessageBox(owner, QString::fromStdString(text), style, QString::fromStdString(title),
                              captions_, Keys(), [this] { Beep(); });
  GiveKeyboardTo(owner);
  return answer;
}

std::string QtWindowHost::ErrorText(std::int32_t number, const std::string& description) const {
  return captions_.error.arg(QString::number(number), QString::fromStdString(description)).toStdString();
}

void QtWindowHost::Log(const char* what_ended, const char* how) {
  qCritical("%s ended with: %s", what_ended, how);
}

}  // namespace orvendal
