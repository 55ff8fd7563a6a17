#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "adapters/headless/form_input.h"

namespace orvendal {

class MSFlexGrid;
class MonthView;

/// Synthetic input of mouse and keyboard, as a person would give it: positions and keys go through the form's
/// own input, so that hit test, focus and disabled controls decide what happens. Raises std::invalid_argument
/// for what no hand could do. Keeps the form alive: a key that closes it still comes up.
class Robot {
 public:
  /// What a click meets on its way to a control.
  enum class Obstacle { kNone, kHidden, kDisabled, kOutside, kCovered };
  struct Reach {
    Obstacle obstacle = Obstacle::kNone;
    const Control* by = nullptr;  // what covers it; nullptr for the form itself
  };

  /// `input` outlives the object.
  explicit Robot(Form& form, FormInput& input = DirectInput())
      : form_(form), input_(input), alive_(form.shared_from_this()) {}

  /// The control by its full name, or member 1 of the control array of that name.
  Control& Find(std::string_view name) const;
  /// Why a click on the control would not reach it; empty if it would. What belongs to the same control
  /// array, and so raises the same events, never covers.
  std::string WhyUnreachable(const Control& control, Point position) const;
  /// The same for those who put it into words of their own.
  Reach ReachOf(const Control& control, Point position) const;

  void Click(const Control& control);
  void DoubleClick(const Control& control);
  void ClickCell(MSFlexGrid& grid, int row, int column);
  void DoubleClickCell(MSFlexGrid& grid, int row, int column);
  /// Clicks that day in an open calendar, turning months as needed.
  void ClickDay(MonthView& calendar, Date day);
  void Press(Point position, int button = 1, int shift = 0);
  void Release(Point position, int button = 1, int shift = 0);
  void ClickAt(Point position);
  void DoubleClickAt(Point position);

  /// One key by its code, with the character that it stands for, after a pause.
  void Key(int key_code, int shift = 0);
  /// The same so many milliseconds after the key before; `character` in place of the one it stands for, 0 for
  /// none.
  void KeyAfter(int milliseconds, int key_code, int shift, std::optional<char32_t> character = std::nullopt);
  /// Types a text after a pause, one key after the other as fast as a bar-code reader; a line break is Enter.
  void Type(std::string_view text);
  /// The same with a pause before each key, as a hand does.
  void Write(std::string_view text);
  /// The same with the first key so many milliseconds after the one before, and so many between the others.
  void TypeAfter(int first, int between, std::string_view text);
  /// The character that a key stands for by itself; 0 for none.
  static char32_t CharacterOf(int key_code, int shift);

  Point MiddleOf(const Control& control) const;
  /// The middle of what shows of a cell, scrolled to if it is out of view.
  Point CellPosition(MSFlexGrid& grid, int row, int column) const;

 private:
  void Wait(int milliseconds) const;

  Form& form_;
  FormInput& input_;
  ObjectRef alive_;
};

}  // namespace orvendal
