#include "screen/action_bar.h"

#include "platform/base/region.h"
#include "screen/palette.h"

namespace orvendal {
namespace {

constexpr double kFaceInset = 90;  // twips, at any size of the screen

void Place(const ActionButton& button, double left) {
  button.click_area.Left(left);
  // The caption keeps its offset inside the button, so it moves by as much as the rim is about to.
  button.caption.Left(button.caption.Left() - button.rim.Left() + button.click_area.Left());
  button.rim.Left(button.click_area.Left());
  button.face.Left(button.click_area.Left() + kFaceInset);
}

void Enable(const ActionButton& button, bool available) {
  button.caption.Enabled(available);
  button.click_area.Enabled(available);
  button.rim.BorderColor(available ? palette::kButtonRim : palette::kDarkSand);
  button.face.BorderColor(available ? palette::kButtonFace : palette::kSand);
  button.face.BackColor(available ? palette::kButtonFace : palette::kSand);
}

// "Nuevo" of LblNuevo and DivNuevo; empty for what is no part of a button.
std::string ActionOf(const Control& control) {
  const bool is_part =
      control.Index() >= 0 && (control.Name().starts_with("Lbl") || control.Name().starts_with("Div"));
  return is_part ? control.Name().substr(3) : std::string();
}

}  // namespace

bool BelongToOneButton(const Control& one, const Control& other) {
  const std::string action = ActionOf(one);
  return !action.empty() && ActionOf(other) == action;
}

void ArrangeActionBar(const ActionBar& bar, double form_width, const ButtonSet& off) {
  double free = form_width;
  for (const ActionButton& button : bar) free -= button.click_area.Width();
  const std::int32_t gap = RoundToLong(free / 6);

  double left = gap;
  for (const ActionButton& button : bar) {
    const double width = button.click_area.Width();
    Place(button, left);
    left += width + gap;
  }
  for (const ActionButton& button : bar) Enable(button, true);
  for (const std::string& name : off) {
    for (const ActionButton& button : bar) {
      if (name != button.name) continue;
      Enable(button, false);
      break;
    }
  }
}

}  // namespace orvendal
