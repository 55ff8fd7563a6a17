#pragma once

#include <QString>
#include <functional>

#include "platform/forms/key_run.h"

class QWidget;

namespace orvendal {

/// What message boxes say of their own; "&" marks the key that presses a button.
struct QtCaptions {
  QString accept = QStringLiteral("&Aceptar");
  QString cancel = QStringLiteral("&Cancelar");
  QString yes = QStringLiteral("&Sí");
  QString no = QStringLiteral("&No");
  /// How an error is told: %1 its number, %2 its description.
  QString error = QStringLiteral("Error %1: %2");
};

/// Styles and answers of message boxes, as the platform numbers them.
namespace message_style {
inline constexpr int kOk = 0;
inline constexpr int kOkCancel = 1;
inline constexpr int kYesNoCancel = 3;
inline constexpr int kYesNo = 4;
inline constexpr int kStop = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kWarning = 48;
inline constexpr int kInformation = 64;
inline constexpr int kSecondDefault = 256;
}  // namespace message_style

namespace message_answer {
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;
}  // namespace message_answer

/// Shows a modal message box in front of `owner` (which may be nullptr) until it is answered, and gives the
/// answer. `style` is an icon plus a set of buttons; an unknown set of buttons shows one. Enter presses the
/// first button or the one that the style makes the default, Esc the one that says no the mildest way, Alt
/// with its letter any. The text can be selected and copied. The caller holds a ModalScope.
///
/// What a bar-code reader types answers nothing (AnswerKeys). `keys` are those that came before, and take the
/// box's own.
int RunMessageBox(QWidget* owner, const QString& text, int style, const QString& title,
                  const QtCaptions& captions, KeyRun& keys, const std::function<void()>& beep);

}  // namespace orvendal
