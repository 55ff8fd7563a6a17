#include "adapters/qt/qt_keys.h"

#include <QKeyEvent>
#include <chrono>
#include <cstring>
#include <utility>

#include "platform/forms/keys.h"

namespace orvendal {
namespace {

constexpr int kUnknownKey = 255;
constexpr int kInputMethodKey = 229;

constexpr std::pair<int, int> kNamedKeys[] = {
    {Qt::Key_Backspace, key::kBack},
    {Qt::Key_Tab, key::kTab},
    {Qt::Key_Backtab, key::kTab},
    {Qt::Key_Clear, 12},
    {Qt::Key_Return, key::kReturn},
    {Qt::Key_Enter, key::kReturn},
    {Qt::Key_Shift, key::kShift},
    {Qt::Key_Control, key::kControl},
    {Qt::Key_Alt, key::kAlt},
    {Qt::Key_AltGr, key::kAlt},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, key::kEscape},
    {Qt::Key_Space, key::kSpace},
    {Qt::Key_PageUp, key::kPageUp},
    {Qt::Key_PageDown, key::kPageDown},
    {Qt::Key_End, key::kEnd},
    {Qt::Key_Home, key::kHome},
    {Qt::Key_Left, key::kLeft},
    {Qt::Key_Up, key::kUp},
    {Qt::Key_Right, key::kRight},
    {Qt::Key_Down, key::kDown},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, key::kInsert},
    {Qt::Key_Delete, key::kDelete},
    {Qt::Key_Help, 47},
    {Qt::Key_Super_L, 91},
    {Qt::Key_Super_R, 92},
    {Qt::Key_Meta, 91},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
    // Signs, by the key that bears them on a US keyboard.
    {Qt::Key_Exclam, '1'},
    {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},
    {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},
    {Qt::Key_Asterisk, '8'},
    {Qt::Key_ParenLeft, '9'},
    {Qt::Key_ParenRight, '0'},
    {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},
    {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},
    {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},
    {Qt::Key_Ccedilla, 191},
    {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192},
    {Qt::Key_Ntilde, 192},
    {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221},
    {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},
};

constexpr std::pair<int, int> kKeypadSigns[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
};

constexpr int kKeypadZero = 96;

bool IsLetter(int qt_key) {
  return qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z;
}

bool IsDigit(int qt_key) {
  return qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9;
}

// The Latin letter that a key bears on most keyboards, by its place: on a Cyrillic, Greek or Arabic layout
// the key has another letter, and people press it with Ctrl all the same. 0 for a key that is no letter's,
// and where the layout is Latin, which puts its letters where it likes.
int LetterByPlace(const QKeyEvent& event) {
  constexpr int kLastLatin = 0x24F;
  if (event.key() <= kLastLatin || event.key() > 0xFFFF) return 0;
  struct Row {
    quint32 first;  // code of its first key on X11 and Wayland
    const char* letters;
  };
  constexpr Row kRows[] = {{24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}};
  for (const Row& row : kRows) {
    const quint32 place = event.nativeScanCode() - row.first;
    if (event.nativeScanCode() >= row.first && place < std::strlen(row.letters)) return row.letters[place];
  }
  return 0;
}

}  // namespace

int KeyCodeOf(int qt_key, Qt::KeyboardModifiers modifiers) {
  if (modifiers & Qt::KeypadModifier) {
    if (IsDigit(qt_key)) return kKeypadZero + qt_key - Qt::Key_0;
    for (const auto& [sign, code] : kKeypadSigns) {
      if (sign == qt_key) return code;
    }
  }
  if (IsLetter(qt_key) || IsDigit(qt_key)) return qt_key;
  if (qt_key >= Qt::Key_F1 && qt_key <= Qt::Key_F24) return key::kF1 + qt_key - Qt::Key_F1;
  for (const auto& [named, code] : kNamedKeys) {
    if (named == qt_key) return code;
  }
  const int letter = qt_key <= 0xFFFF ? KeyCodeOfCharacter(static_cast<char32_t>(qt_key)) : kInputMethodKey;
  return letter == kInputMethodKey ? kUnknownKey : letter;
}

std::uint64_t InputTimeOf(const QKeyEvent& event) {
  if (event.timestamp() != 0) return event.timestamp();
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

int ShiftOf(Qt::KeyboardModifiers modifiers) {
  int shift = 0;
  if (modifiers & Qt::ShiftModifier) shift |= shift_mask::kShift;
  if (modifiers & Qt::ControlModifier) shift |= shift_mask::kControl;
  if (modifiers & Qt::AltModifier) shift |= shift_mask::kAlt;
  return shift;
}

int ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return mouse_button::kLeft;
    case Qt::RightButton:
      return mouse_button::kRight;
    case Qt::MiddleButton:
      return mouse_button::kMiddle;
    default:
      return 0;
  }
}

int ButtonsOf(Qt::MouseButtons buttons) {
  int sum = 0;
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (buttons & button) sum |= ButtonOf(button);
  }
  return sum;
}

std::vector<char32_t> CharactersOf(const QKeyEvent& event) {
  const bool control = event.modifiers() & Qt::ControlModifier;
  const bool alt = event.modifiers() & Qt::AltModifier;
  if (alt && !control) return {};
  switch (event.key()) {
    case Qt::Key_Backspace:
      return {control ? U'\x7f' : U'\b'};
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return {control ? U'\n' : U'\r'};
    case Qt::Key_Escape:
      return {static_cast<char32_t>(character::kEscape)};
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete:
      return {};
    default:
      break;
  }
  if (control && !alt) {
    const int letter = IsLetter(event.key()) ? event.key() : LetterByPlace(event);
    if (letter == 0) return {};
    return {static_cast<char32_t>(letter - Qt::Key_A + 1)};
  }
  std::vector<char32_t> characters;
  for (const uint point : event.text().toUcs4()) {
    if (point >= 0x20 && point != 0x7f) characters.push_back(static_cast<char32_t>(point));
  }
  return characters;
}

int KeyCodeOfCharacter(char32_t character) {
  const QString text = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_D).toUpper();
  const char16_t base = text.isEmpty() ? u'\0' : text.front().unicode();
  const bool plain = (base >= u'A' && base <= u'Z') || (base >= u'0' && base <= u'9') || base == u' ';
  return plain ? base : kInputMethodKey;
}

}  // namespace orvendal
