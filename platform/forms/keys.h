#pragma once

namespace orvendal {

/// Key codes of the platform.
namespace key {
inline constexpr int kBack = 8;
inline constexpr int kTab = 9;
inline constexpr int kReturn = 13;
inline constexpr int kShift = 16;
inline constexpr int kControl = 17;
inline constexpr int kAlt = 18;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kInsert = 45;
inline constexpr int kDelete = 46;
inline constexpr int kMenu = 93;
inline constexpr int kF1 = 112;
inline constexpr int kF2 = 113;
inline constexpr int kF4 = 115;
inline constexpr int kF10 = 121;
inline constexpr int kF12 = 123;
}  // namespace key

/// Bits of the `shift` argument.
namespace shift_mask {
inline constexpr int kShift = 1;
inline constexpr int kControl = 2;
inline constexpr int kAlt = 4;
}  // namespace shift_mask

namespace mouse_button {
inline constexpr int kLeft = 1;
inline constexpr int kRight = 2;
inline constexpr int kMiddle = 4;
}  // namespace mouse_button

/// Codes of KeyPress that are no printable character.
namespace character {
inline constexpr int kSelectAll = 1;
inline constexpr int kCopy = 3;
inline constexpr int kBackspace = 8;
inline constexpr int kEnter = 13;
inline constexpr int kPaste = 22;
inline constexpr int kCut = 24;
inline constexpr int kUndo = 26;
inline constexpr int kEscape = 27;
}  // namespace character

}  // namespace orvendal
