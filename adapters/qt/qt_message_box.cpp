#include "adapters/qt/qt_message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBasicTimer>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>
#include <QTimerEvent>
#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "adapters/qt/qt_keys.h"
#include "platform/forms/answer_keys.h"

namespace orvendal {
namespace {

constexpr int kButtonBits = 0x0F;
constexpr int kIconBits = 0xF0;
constexpr int kDefaultBits = 0xF00;

struct Choice {
  QString caption;
  QMessageBox::ButtonRole role;
  int answer;
};

// A text that can be selected would take the keyboard from the buttons; and on a display without a window
// manager nobody else gives a new window the keyboard.
class FrontMessageBox final : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);
    activateWindow();
    if (defaultButton() != nullptr) defaultButton()->setFocus(Qt::ActiveWindowFocusReason);
  }
};

// The keys of a box before it has them.
class BoxKeys final : public QObject {
 public:
  BoxKeys(QMessageBox& box, KeyRun& keys, const std::function<void()>& beep)
      : box_(box), answer_keys_(keys, beep) {
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool is_press = event->type() == QEvent::KeyPress;
    if (!is_press && event->type() != QEvent::KeyRelease) return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != &box_) return false;
    // What a button or the text does not use comes to the box once more.
    if (widget == &box_ && event == std::exchange(passed_on_, nullptr)) return false;
    const bool taken =
        is_press ? TakePress(*static_cast<QKeyEvent*>(event)) : IsCharacter(*static_cast<QKeyEvent*>(event));
    passed_on_ = taken ? nullptr : event;
    return taken;
  }

  void timerEvent(QTimerEvent* event) override {
    if (event->timerId() != pause_.timerId()) return;
    pause_.stop();
    if (blank_on_ != nullptr && blank_on_->hasFocus()) blank_on_->click();
  }

 private:
  static bool IsCharacter(const QKeyEvent& event) {
    constexpr Qt::KeyboardModifiers kCommands = Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier;
    return (event.modifiers() & kCommands) == 0 && !event.text().isEmpty() && event.text().at(0).isPrint();
  }

  static bool IsModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
  }

  bool TakePress(const QKeyEvent& event) {
    if (IsModifier(event.key()) || event.modifiers() & Qt::AltModifier) return false;
    std::optional<char32_t> character;
    if (IsCharacter(event)) character = event.text().at(0).unicode();
    const AnswerKeys::Verdict verdict = answer_keys_.Take(character, InputTimeOf(event));
    pause_.stop();
    if (verdict.holds_blank) {
      blank_on_ = qobject_cast<QAbstractButton*>(box_.focusWidget());
      pause_.start(static_cast<int>(KeyRun::kShortestPause), Qt::PreciseTimer, this);
    }
    return verdict.taken;
  }

  QMessageBox& box_;
  AnswerKeys answer_keys_;
  const QEvent* passed_on_ = nullptr;
  QPointer<QAbstractButton> blank_on_;
  QBasicTimer pause_;
};

std::vector<Choice> ChoicesOf(int style, const QtCaptions& captions) {
  const Choice accept{captions.accept, QMessageBox::AcceptRole, message_answer::kOk};
  const Choice cancel{captions.cancel, QMessageBox::RejectRole, message_answer::kCancel};
  const Choice yes{captions.yes, QMessageBox::YesRole, message_answer::kYes};
  const Choice no{captions.no, QMessageBox::NoRole, message_answer::kNo};
  switch (style & kButtonBits) {
    case message_style::kOkCancel:
      return {accept, cancel};
    case message_style::kYesNoCancel:
      return {yes, no, cancel};
    case message_style::kYesNo:
      return {yes, no};
    default:
      return {accept};
  }
}

QMessageBox::Icon IconOf(int style) {
  switch (style & kIconBits) {
    case message_style::kStop:
      return QMessageBox::Critical;
    case message_style::kQuestion:
      return QMessageBox::Question;
    case message_style::kWarning:
      return QMessageBox::Warning;
    case message_style::kInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

}  // namespace

int RunMessageBox(QWidget* owner, const QString& text, int style, const QString& title,
                  const QtCaptions& captions, KeyRun& keys, const std::function<void()>& beep) {
  FrontMessageBox box(owner);
  box.setWindowTitle(title);
  box.setWindowModality(Qt::ApplicationModal);
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.setText(QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  box.setIcon(IconOf(style));
  // The order of the buttons is that of the answers on every desktop.
  box.setStyleSheet(QStringLiteral("QDialogButtonBox { button-layout: 0 }"));

  const std::vector<Choice> choices = ChoicesOf(style, captions);
  std::vector<QPushButton*> buttons;
  for (const Choice& choice : choices) buttons.push_back(box.addButton(choice.caption, choice.role));
  const std::size_t wanted = static_cast<std::size_t>((style & kDefaultBits) / message_style::kSecondDefault);
  box.setDefaultButton(buttons[wanted < buttons.size() ? wanted : 0]);
  box.setEscapeButton(buttons.back());

  const BoxKeys box_keys(box, keys, beep);
  box.exec();
  const auto pressed = std::find(buttons.begin(), buttons.end(), box.clickedButton());
  if (pressed == buttons.end()) return choices.back().answer;
  return choices[static_cast<std::size_t>(pressed - buttons.begin())].answer;
}

}  // namespace orvendal
