#pragma once

#include <QString>
#include <Qt>
#include <cstdint>
#include <vector>

class QKeyEvent;

namespace orvendal {

/// The platform's code of a key: letters, accents aside, and digits are their upper-case ASCII, others as in
/// keys.h. A key that has none gives 255, which means nothing to anybody.
int KeyCodeOf(int qt_key, Qt::KeyboardModifiers modifiers);

/// When a key came, in milliseconds: as the window system says, or as this machine counts where it does not.
std::uint64_t InputTimeOf(const QKeyEvent& event);

/// Bits of shift_mask. The key that chooses the third level of a keyboard is neither Ctrl nor Alt.
int ShiftOf(Qt::KeyboardModifiers modifiers);

/// 1 left, 2 right, 4 middle; 0 for any other.
int ButtonOf(Qt::MouseButton button);
/// A sum of these.
int ButtonsOf(Qt::MouseButtons buttons);

/// The characters that a key press stands for, control characters included: Ctrl+A 1 to Ctrl+Z 26, Backspace
/// 8 (127 with Ctrl), Enter 13 (10 with Ctrl), Esc 27. None for Tab, Delete, and keys held with Alt.
std::vector<char32_t> CharactersOf(const QKeyEvent& event);

/// The key that people press for a character which came without one, from an input method or a dead key:
/// the letter under its accent; 229 where there is none.
int KeyCodeOfCharacter(char32_t character);

}  // namespace orvendal
