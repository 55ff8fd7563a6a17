#include "adapters/qt/qt_message_box.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>
#include <QShowEvent>
#include <algorithm>
#include <vector>

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
                  const QtCaptions& captions) {
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

  box.exec();
  const auto pressed = std::find(buttons.begin(), buttons.end(), box.clickedButton());
  if (pressed == buttons.end()) return choices.back().answer;
  return choices[static_cast<std::size_t>(pressed - buttons.begin())].answer;
}

}  // namespace orvendal
