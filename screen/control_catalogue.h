#pragma once

#include <span>
#include <string>

#include "platform/forms/form.h"

namespace orvendal {

/// One control of the screen as it was designed. Lengths in twips, relative to the container.
struct CatalogueRow {
  const char* name;
  int index;  // -1 outside control arrays
  ControlKind kind;
  const char* container;  // "" for the form
  Rect place;
  int tab_index;                     // -1: none
  void (*design)(Control& control);  // the properties beyond those of the row
  const char* caption = nullptr;     // of a label

  std::string FullName() const;
};

/// The 46 controls in the order of their creation, which is the order of painting too.
std::span<const CatalogueRow> ControlCatalogue();

/// Puts the form and its controls, which must be those of the catalogue, to the values of the design.
void ApplyCatalogue(Form& form);

}  // namespace orvendal
