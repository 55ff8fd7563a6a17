#pragma once

#include <string>
#include <vector>

#include "platform/forms/form.h"

namespace orvendal {

inline constexpr const char* kRawMouseUsage =
    "raton pulsa|doble|mueve|suelta CONTROL X Y [BOTONES] [Mayus+Ctrl+Alt]";
inline constexpr const char* kWheelUsage = "rueda CONTROL X Y LINEAS [LINEAS_DE_UNA_MUESCA]";

/// One event of the mouse where no name says the same: the words after "raton". X and Y are twips from the
/// corner of the control, or of the form if that is named "Form"; nothing is looked at whether it can be
/// reached. Raises ScriptStop for words that say no such event.
void MoveRawMouse(Form& form, const std::vector<std::string>& words);
/// The wheel over a place: the words after "rueda".
void TurnRawWheel(Form& form, const std::vector<std::string>& words);

/// The words for such an event; `over` is the control that the place counts from, nullptr for the form.
std::string RawMouseLine(const InputEvent& event, const Control* over);
std::string RawWheelLine(const InputEvent& event, const Control* over);

}  // namespace orvendal
