#include <QKeyEvent>

#include "adapters/qt/qt_keys.h"
#include "platform/forms/keys.h"
#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

std::u32string Characters(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                          const QString& text = {}) {
  const QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
  const std::vector<char32_t> characters = CharactersOf(event);
  return std::u32string(characters.begin(), characters.end());
}

TEST(Keys, EachKeyHasThePlatformsCode) {
  const std::pair<int, int> expected[] = {
      {Qt::Key_A, 65},        {Qt::Key_Z, 90},       {Qt::Key_0, 48},       {Qt::Key_9, 57},
      {Qt::Key_F1, 112},      {Qt::Key_F2, 113},     {Qt::Key_F12, 123},    {Qt::Key_Return, 13},
      {Qt::Key_Enter, 13},    {Qt::Key_Escape, 27},  {Qt::Key_Tab, 9},      {Qt::Key_Backtab, 9},
      {Qt::Key_Backspace, 8}, {Qt::Key_Delete, 46},  {Qt::Key_Insert, 45},  {Qt::Key_Space, 32},
      {Qt::Key_Left, 37},     {Qt::Key_Up, 38},      {Qt::Key_Right, 39},   {Qt::Key_Down, 40},
      {Qt::Key_Home, 36},     {Qt::Key_End, 35},     {Qt::Key_PageUp, 33},  {Qt::Key_PageDown, 34},
      {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},     {Qt::Key_Comma, 188},
      {Qt::Key_Period, 190},  {Qt::Key_Ntilde, 192}, {Qt::Key_Eacute, 'E'}, {Qt::Key_VolumeUp, 255},
  };
  for (const auto& [qt_key, code] : expected) EXPECT_EQ(KeyCodeOf(qt_key, Qt::NoModifier), code) << qt_key;
}

TEST(Keys, NoSignIsTakenForAnArrowOrDelete) {
  for (const char sign : std::string("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~")) {
    const int code = KeyCodeOf(sign, Qt::NoModifier);
    EXPECT_FALSE(code >= key::kPageUp && code <= key::kDelete) << sign;
  }
}

TEST(Keys, TheNumericPadHasCodesOfItsOwn) {
  EXPECT_EQ(KeyCodeOf(Qt::Key_0, Qt::KeypadModifier), 96);
  EXPECT_EQ(KeyCodeOf(Qt::Key_9, Qt::KeypadModifier), 105);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Period, Qt::KeypadModifier), 110);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Comma, Qt::KeypadModifier), 110);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Enter, Qt::KeypadModifier), 13);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Home, Qt::KeypadModifier), 36);
  EXPECT_EQ(Characters(Qt::Key_Period, Qt::KeypadModifier, "."), U".");
}

TEST(Keys, ControlKeysGiveControlCharacters) {
  EXPECT_EQ(Characters(Qt::Key_A, Qt::ControlModifier), U"\x01");
  EXPECT_EQ(Characters(Qt::Key_C, Qt::ControlModifier, "c"), U"\x03");
  EXPECT_EQ(Characters(Qt::Key_V, Qt::ControlModifier, "\x16"), U"\x16");
  EXPECT_EQ(Characters(Qt::Key_X, Qt::ControlModifier), U"\x18");
  EXPECT_EQ(Characters(Qt::Key_Z, Qt::ControlModifier), U"\x1a");
  EXPECT_EQ(Characters(Qt::Key_Backspace, Qt::NoModifier, "\b"), U"\b");
  EXPECT_EQ(Characters(Qt::Key_Backspace, Qt::ControlModifier), U"\x7f");
  EXPECT_EQ(Characters(Qt::Key_Return, Qt::NoModifier, "\r"), U"\r");
  EXPECT_EQ(Characters(Qt::Key_Enter, Qt::KeypadModifier, "\r"), U"\r");
  EXPECT_EQ(Characters(Qt::Key_Escape, Qt::NoModifier, "\x1b"), U"\x1b");
}

std::u32string WithControl(int key, quint32 place, const QString& text) {
  const QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier, place, 0, 0, text);
  const std::vector<char32_t> characters = CharactersOf(event);
  return std::u32string(characters.begin(), characters.end());
}

// Seen: Ctrl+C and its like did nothing on a Russian or a Greek keyboard.
TEST(Keys, WhereTheLayoutIsNotLatinTheKeysPlaceDecidesWithControl) {
  // The keys A, C, V, X and Z of a Russian and a Greek keyboard.
  EXPECT_EQ(WithControl(0x0424, 38, QString::fromUtf8("ф")), U"\x01");
  EXPECT_EQ(WithControl(0x0421, 54, QString::fromUtf8("с")), U"\x03");
  EXPECT_EQ(WithControl(0x041C, 55, QString::fromUtf8("м")), U"\x16");
  EXPECT_EQ(WithControl(0x0427, 53, QString::fromUtf8("ч")), U"\x18");
  EXPECT_EQ(WithControl(0x042F, 52, QString::fromUtf8("я")), U"\x1a");
  EXPECT_EQ(WithControl(0x03A8, 54, QString::fromUtf8("ψ")), U"\x03");
  EXPECT_EQ(WithControl(0x0416, 47, QString::fromUtf8("ж")), U"");  // no letter's place
  EXPECT_EQ(WithControl(0x0424, 0, QString::fromUtf8("ф")), U"");   // no place known
}

TEST(Keys, ALatinLayoutPutsItsLettersWhereItLikes) {
  EXPECT_EQ(WithControl(Qt::Key_Q, 38, "q"), U"\x11");  // where a French keyboard has it
  EXPECT_EQ(WithControl(Qt::Key_Ntilde, 47, QString::fromUtf8("ñ")), U"");
  EXPECT_EQ(WithControl(Qt::Key_1, 10, "1"), U"");
}

TEST(Keys, KeysThatWriteNothingGiveNoCharacter) {
  EXPECT_EQ(Characters(Qt::Key_Tab, Qt::NoModifier, "\t"), U"");
  EXPECT_EQ(Characters(Qt::Key_Backtab, Qt::ShiftModifier, "\t"), U"");
  EXPECT_EQ(Characters(Qt::Key_Delete, Qt::NoModifier, "\x7f"), U"");
  EXPECT_EQ(Characters(Qt::Key_Left), U"");
  EXPECT_EQ(Characters(Qt::Key_F1), U"");
  EXPECT_EQ(Characters(Qt::Key_1, Qt::ControlModifier, "1"), U"");
  EXPECT_EQ(Characters(Qt::Key_A, Qt::AltModifier, "a"), U"");
}

TEST(Keys, LettersOfAnyLanguageAreWritten) {
  EXPECT_EQ(Characters(Qt::Key_Ntilde, Qt::NoModifier, QString::fromUtf8("ñ")), U"ñ");
  EXPECT_EQ(Characters(Qt::Key_A, Qt::ShiftModifier, "A"), U"A");
  EXPECT_EQ(Characters(Qt::Key_unknown, Qt::NoModifier, QString::fromUtf8("😀")), U"😀");
  EXPECT_EQ(Characters(Qt::Key_At, Qt::GroupSwitchModifier, "@"), U"@");
  EXPECT_EQ(Characters(Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@"), U"@");
}

TEST(Keys, ShiftStateAndButtonsAreThePlatformsBits) {
  EXPECT_EQ(ShiftOf(Qt::NoModifier), 0);
  EXPECT_EQ(ShiftOf(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier), 7);
  EXPECT_EQ(ShiftOf(Qt::GroupSwitchModifier | Qt::KeypadModifier), 0);
  EXPECT_EQ(ButtonOf(Qt::LeftButton), 1);
  EXPECT_EQ(ButtonOf(Qt::RightButton), 2);
  EXPECT_EQ(ButtonOf(Qt::MiddleButton), 4);
  EXPECT_EQ(ButtonOf(Qt::BackButton), 0);
  EXPECT_EQ(ButtonsOf(Qt::LeftButton | Qt::RightButton), 3);
}

TEST(Keys, ACharacterWithoutAKeyStandsForTheLetterUnderItsAccent) {
  EXPECT_EQ(KeyCodeOfCharacter(U'é'), 'E');
  EXPECT_EQ(KeyCodeOfCharacter(U'7'), '7');
  EXPECT_EQ(KeyCodeOfCharacter(U'日'), 229);
}

}  // namespace
}  // namespace orvendal
