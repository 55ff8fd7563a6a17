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

/// A dialog with the system's frame and that title, in the middle of the screen, no larger than it.
void PlaceDialog(Form& form, std::string_view title, double width, double height);

void DesignOption(OptionButton& option, std::string_view caption, const Rect& place, int tab_index);
void DesignLabel(Label& label, std::string_view caption, const Rect& place);
void DesignBox(TextBox& box, const Rect& place, int tab_index);
void DesignButton(CommandButton& button, std::string_view caption, const Rect& place, int tab_index);

/// A grid whose columns take those shares of its width, with a title each and room for the scroll bar.
struct GridColumn {
  std::string_view title;
  double share = 1;
};
void DesignGrid(MSFlexGrid& grid, const std::vector<GridColumn>& columns, const Rect& place, int tab_index);

}  // namespace dialog_design

/// Shows one whole row of a grid as the chosen one, whatever the cursor's column.
///
/// Invariant: at most one row has the colours of the choice.
class RowHighlight {
 public:
  explicit RowHighlight(MSFlexGrid& grid) : grid_(grid) {}

  /// The row of the cursor becomes the chosen one and is brought into view. To be called when the cursor has
  /// moved, and after the rows were filled anew.
  void FollowCursor();
  /// Before the rows are filled anew.
  void TakeOff();
  /// True while it moves the cursor itself to paint cells.
  bool IsPainting() const { return painting_; }

 private:
  void PaintRow(int row, ColorWord back, ColorWord fore);

  MSFlexGrid& grid_;
  int row_ = 0;  // 0: none
  bool painting_ = false;
};

}  // namespace orvendal
