#pragma once

#include <optional>
#include <string>

#include "platform/forms/form.h"

namespace orvendal {

/// A press of the left button as a script says it by names, and where a script's hands press for it.
struct NamedClick {
  std::string line;   // "clic LblGuardar"
  std::string twice;  // "dobleclic LblGuardar"; empty where only the place says it
  Point place;        // on the form
  int letter = 0;     // in a text box
};

/// Nothing where a script's hands would press something else, or where it matters where exactly.
std::optional<NamedClick> ClickAt(Form& form, Control& control, Point position);

/// Whether a button that was pressed for `click` and comes up at `position` ends the same click.
bool EndsClick(const NamedClick& click, const Control& control, Point position);

/// Whether the mouse, moved there with the button down for `click`, has not done anything yet.
bool IsStillClick(const NamedClick& click, const Control& control, Point pressed, Point position);

}  // namespace orvendal
