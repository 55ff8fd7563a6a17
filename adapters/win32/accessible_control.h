#pragma once

#include <optional>
#include <string>

#include "adapters/win32/windows_api.h"
#include "platform/forms/control.h"

namespace orvendal {

/// Accessible properties of a control; roles and states are those of the system's accessibility.

/// Its caption; else that of its twin in the same control array; else the title of the grid's column that it
/// floats over; else the label beside or above it; else, for a surface, that of its form; else its own name.
std::string AccessibleName(Control& control);
/// What it holds; nothing for kinds that hold nothing.
std::optional<std::string> AccessibleValue(Control& control);
LONG AccessibleRole(const Control& control);
LONG AccessibleState(Control& control);
/// Whether a click on it does something.
bool IsPressable(const Control& control);

/// Title of a column of a grid: the last fixed row's; else the column's number, from 1.
std::string ColumnTitle(const class MSFlexGrid& grid, int column);

/// The control that assistive software finds at a place of the form: what takes the mouse there, or what
/// shows there; nullptr on the bare form.
Control* AccessibleControlAt(const Form& form, Point place);

}  // namespace orvendal
