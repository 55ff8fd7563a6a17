#include "host/script/day_lines.h"

#include "host/text/printed_text.h"
#include "platform/forms/ms_flex_grid.h"

namespace orvendal {

std::string LinesOf(const Form& form, std::string_view grid_name) {
  const auto* grid = dynamic_cast<const MSFlexGrid*>(form.FindControl(grid_name));
  std::string lines;
  if (grid == nullptr) return lines;
  // The first row without a code ends the lines.
  for (int row = 1; row < grid->Rows() && !grid->TextMatrix(row, 0).empty(); ++row) {
    lines += std::to_string(row);
    for (int column = 0; column < grid->Cols(); ++column) {
      lines += "\t" + PrintedText(grid->TextMatrix(row, column));
    }
    lines += "\n";
  }
  return lines;
}

}  // namespace orvendal
