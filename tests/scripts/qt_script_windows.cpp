#include "tests/scripts/qt_script_windows.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <utility>

#include "adapters/qt/qt_window_host.h"
#include "platform/forms/keys.h"
#include "tests/scripts/desktop_script_windows.h"

namespace orvendal {
namespace {

constexpr std::pair<int, int> kNamedKeys[] = {
    {key::kReturn, Qt::Key_Return},  {key::kEscape, Qt::Key_Escape},     {key::kTab, Qt::Key_Tab},
    {key::kBack, Qt::Key_Backspace}, {key::kDelete, Qt::Key_Delete},     {key::kInsert, Qt::Key_Insert},
    {key::kLeft, Qt::Key_Left},      {key::kRight, Qt::Key_Right},       {key::kUp, Qt::Key_Up},
    {key::kDown, Qt::Key_Down},      {key::kHome, Qt::Key_Home},         {key::kEnd, Qt::Key_End},
    {key::kPageUp, Qt::Key_PageUp},  {key::kPageDown, Qt::Key_PageDown}, {key::kSpace, Qt::Key_Space},
};

// The key of a code; that of the character where the code has none.
int QtKeyOf(int key_code, char32_t character) {
  for (const auto& [code, qt_key] : kNamedKeys) {
    if (code == key_code) return qt_key;
  }
  if (key_code >= key::kF1 && key_code <= key::kF12) return Qt::Key_F1 + key_code - key::kF1;
  const bool is_letter = key_code >= 'A' && key_code <= 'Z';
  const bool is_digit = key_code >= '0' && key_code <= '9';
  if (is_letter || is_digit || character == 0) return key_code;
  return QString::fromUcs4(&character, 1).toUpper().front().unicode();
}

Qt::KeyboardModifiers ModifiersOf(int shift) {
  Qt::KeyboardModifiers modifiers;
  if ((shift & shift_mask::kShift) != 0) modifiers |= Qt::ShiftModifier;
  if ((shift & shift_mask::kControl) != 0) modifiers |= Qt::ControlModifier;
  if ((shift & shift_mask::kAlt) != 0) modifiers |= Qt::AltModifier;
  return modifiers;
}

QtHostOptions ToldTo(std::function<void(const RuntimeError&)> told) {
  QtHostOptions options;
  options.on_error = std::move(told);
  return options;
}

class MeasuredQtHost final : public MeasuredDesktop<QtWindowHost> {
 public:
  MeasuredQtHost(const Region& region, Clock& clock, std::function<void(const RuntimeError&)> told)
      : MeasuredDesktop(region, clock, region, clock, ToldTo(std::move(told))) {}

 protected:
  void AtNextTurn(std::function<void()> action) override {
    QMetaObject::invokeMethod(qApp, std::move(action), Qt::QueuedConnection);
  }
};

// Each event goes to the window, and what it leaves to be done is done before the next.
class WindowInput final : public FormInput {
 public:
  explicit WindowInput(MeasuredQtHost& host) : host_(host) {}

  void MousePress(Form& form, Point position, int button, int shift, bool is_double) override {
    Mouse(form, is_double ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, position, button, shift);
  }
  void MouseRelease(Form& form, Point position, int button, int shift) override {
    Mouse(form, QEvent::MouseButtonRelease, position, button, shift);
  }
  void Key(Form& form, int key_code, int shift, char32_t character) override {
    const QString text = character == 0 ? QString() : QString::fromUcs4(&character, 1);
    const QPointer<QWidget> window = host_.WidgetOf(form);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      if (window.isNull()) return;
      QKeyEvent event(type, QtKeyOf(key_code, character), ModifiersOf(shift), text);
      event.setTimestamp(host_.InputTime());
      QApplication::sendEvent(window, &event);
      QApplication::processEvents();
    }
  }

 private:
  void Mouse(Form& form, QEvent::Type type, Point position, int button, int shift) {
    QWidget* const window = host_.WidgetOf(form);
    if (window == nullptr) return;
    const QPointF place(position.x / kTwipsPerPixel, position.y / kTwipsPerPixel);
    const Qt::MouseButton qt_button = button == mouse_button::kLeft ? Qt::LeftButton : Qt::RightButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : qt_button;
    QMouseEvent event(type, place, window->mapToGlobal(place), qt_button, held, ModifiersOf(shift));
    QApplication::sendEvent(window, &event);
    QApplication::processEvents();
  }

  MeasuredQtHost& host_;
};

}  // namespace

std::unique_ptr<ScriptWindows> MakeQtScriptWindows(const Region& region, Clock& clock) {
  return std::make_unique<DesktopScriptWindows<MeasuredQtHost, WindowInput>>(region, clock);
}

}  // namespace orvendal
