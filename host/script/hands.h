#pragma once

#include <optional>
#include <string>

#include "adapters/headless/robot.h"
#include "form/frm_orvendalciales.h"

namespace orvendal {

/// Mouse and keyboard of a script on the screen, through the same input as a person's. Each operation raises
/// ScriptStop for what no hand could do: nothing was touched then. Errors of the screen's own handlers are
/// reported by the screen.
class ScriptHands {
 public:
  /// `form` is loaded; both outlive the object.
  explicit ScriptHands(FrmOrvendalciales& form, FormInput& input = DirectInput())
      : form_(form), robot_(form, input) {}

  enum class Clicks { kOne, kTwo };
  /// At the middle of the control.
  void Click(const std::string& name, Clicks clicks);
  /// At the middle of a cell, which is scrolled to; rows and columns count from 0, titles included.
  void ClickCell(const std::string& name, int row, int column, Clicks clicks);
  /// "minimizar" or "cerrar" of a title bar.
  void ClickButtonOf(const std::string& name, const std::string& button);
  /// That day in the open calendar, turning months as needed.
  void ClickDay(Date day);
  /// Where a press on a text box leaves the caret, counted in characters from 0.
  void ClickLetter(const std::string& name, int position, Clicks clicks);
  /// As fast as a bar-code reader, after a pause or so many milliseconds after the key before.
  void Type(const std::string& text, std::optional<int> milliseconds = std::nullopt);
  /// As a hand does, with a pause before each key.
  void Write(const std::string& text);
  /// One key by its name in the script, such as "Ctrl+Inicio", after a pause or so many milliseconds after
  /// the key before. `character` in place of the one that the key stands for, 0 for none.
  void Key(const std::string& name, std::optional<int> milliseconds = std::nullopt,
           std::optional<char32_t> character = std::nullopt);
  /// The focus goes there as by the Tab key, whether or not Tab stops there.
  void Focus(const std::string& name);

 private:
  Control& Usable(const std::string& name) const;
  MSFlexGrid& UsableGrid(const std::string& name) const;
  void CheckReach(const Control& control, Point position) const;
  void CheckWindow() const;
  void CheckFocus() const;

  FrmOrvendalciales& form_;
  Robot robot_;
};

}  // namespace orvendal
