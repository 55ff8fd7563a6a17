#pragma once

#include <array>
#include <string>

#include "platform/forms/label.h"
#include "platform/forms/shape.h"

namespace orvendal {

/// One button of the action bar: two labels and two shapes that are used as one.
struct ActionButton {
  const char* name;
  Label& caption;     // Lbl<Accion>(0)
  Label& click_area;  // Lbl<Accion>(1): its width is the button's
  Shape& rim;         // Div<Accion>(0)
  Shape& face;        // Div<Accion>(1)
};

/// In the order in which they stand on the screen.
using ActionBar = std::array<ActionButton, 5>;

/// The names of the buttons to switch off; an empty text names none.
using ButtonSet = std::array<std::string, 5>;

/// Whether both are parts of one button of the bar, by their names.
bool BelongToOneButton(const Control& one, const Control& other);

/// Spaces the buttons evenly over `form_width` twips, switches all of them on and then those off that `off`
/// names exactly. A name that is none of theirs does nothing.
void ArrangeActionBar(const ActionBar& bar, double form_width, const ButtonSet& off);

}  // namespace orvendal
