#pragma once

#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"

namespace orvendal {

/// Measures and looks that the dialogs of the stand-in library have in common. Twips.
namespace dialog_design {

inline constexpr double kMargin = 180;
inline constexpr double kGap = 120;
inline constexpr double kLine = 360;  // height of a box, and of its label
inline constexpr double kButtonWidth = 1500;
inline constexpr double kButtonHeight = 420;
inline constexpr double kFontSize = 9.75;

/// A dialog with the system's frame and that title, in the middle of the screen; it lies on what is free of
/// it, frame included.
void PlaceDialog(Form& form, std::string_view title, double width, double height);

void DesignOption(OptionButton& option, std::string_view caption, const Rect& place, int tab_index);
void DesignLabel(Label& label, std::string_view caption, const Rect& place);
void DesignBox(TextBox& box, const Rect& place, int tab_index);
void DesignButton(CommandButton& button, std::string_view caption, const Rect& place, int tab_index);

/// A grid for a choice of rows; its columns take those shares of its width, with a title each and room for
/// the scroll bar.
struct GridColumn {
  std::string_view title;
  double share = 1;
};
void DesignGrid(MSFlexGrid& grid, const std::vector<GridColumn>& columns, const Rect& place, int tab_index);

}  // namespace dialog_design

}  // namespace orvendal
