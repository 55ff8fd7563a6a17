#include "platform/forms/option_button.h"

#include <algorithm>
#include <vector>

#include "platform/forms/control_looks.h"
#include "platform/forms/form.h"

namespace orvendal {
namespace {

constexpr double kMarkSize = 13 * kTwipsPerPixel;
constexpr double kGap = 4 * kTwipsPerPixel;

}  // namespace

OptionButton::OptionButton(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

void OptionButton::RestoreDefaults() {
  Control::RestoreDefaults();
  caption_.clear();
  value_ = false;
}

void OptionButton::Caption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Invalidate();
}

void OptionButton::Value(bool value) {
  if (value == value_) return;
  if (!value) {
    value_ = false;
    Invalidate();
    return;
  }
  Mark();
  if (OnClick) OnClick();
}

void OptionButton::Mark() {
  for (Control* control : Parent().Controls()) {
    if (control->Kind() != ControlKind::kOptionButton || control->Container() != Container()) continue;
    auto& option = static_cast<OptionButton&>(*control);
    const bool chosen = &option == this;
    if (option.value_ == chosen) continue;
    option.value_ = chosen;
    option.Invalidate();
  }
}

void OptionButton::MouseReleased(int button, int, Point local) {
  // The form raises the Click of this gesture.
  if (button == mouse_button::kLeft && LocalBounds().Contains(local)) Mark();
}

// The next of the group that can have the focus; this one if it is alone.
OptionButton* OptionButton::Neighbour(bool backwards) const {
  std::vector<OptionButton*> group;
  for (Control* control : Parent().Controls()) {
    if (control->Kind() != ControlKind::kOptionButton || control->Container() != Container()) continue;
    if (control->IsFocusable()) group.push_back(static_cast<OptionButton*>(control));
  }
  std::stable_sort(group.begin(), group.end(), [](const OptionButton* left, const OptionButton* right) {
    return left->TabIndex() < right->TabIndex();
  });
  const auto here = std::find(group.begin(), group.end(), this);
  if (here == group.end()) return nullptr;
  const auto at = static_cast<std::size_t>(here - group.begin());
  return group[(at + (backwards ? group.size() - 1 : 1)) % group.size()];
}

bool OptionButton::KeyDownDefault(int key_code, int) {
  const bool backwards = key_code == key::kLeft || key_code == key::kUp;
  const bool forwards = key_code == key::kRight || key_code == key::kDown;
  if (key_code == key::kSpace) Value(true);
  OptionButton* neighbour = backwards || forwards ? Neighbour(backwards) : nullptr;
  if (neighbour == nullptr || neighbour == this) return false;
  neighbour->SetFocus();
  neighbour->Value(true);
  return false;
}

void OptionButton::FocusChanged(bool) {
  Invalidate();
}

void OptionButton::Paint(Canvas& canvas) {
  const Rect bounds = LocalBounds();
  canvas.FillRectangle(bounds, Resolve(BackColor()));
  const double size = std::min(kMarkSize, bounds.height);
  const Rect ring{0, (bounds.height - size) / 2, size, size};
  const Rgb color = Resolve(IsOperable() ? ForeColor() : system_color::kGrayText);
  canvas.RoundedRectangle(ring.Deflated(kTwipsPerPixel), size / 2, Resolve(system_color::kWindowBackground),
                          Resolve(system_color::kButtonShadow), kTwipsPerPixel);
  if (value_) canvas.RoundedRectangle(ring.Deflated(size * 0.3), size / 2, color, color, kTwipsPerPixel);
  const Rect text{size + kGap, 0, std::max(0.0, bounds.width - size - kGap), bounds.height};
  PaintCaption(canvas, Host(), text, caption_, Font().Spec(), color, HorizontalAlign::kLeft,
               VerticalAlign::kCenter);
  if (HasFocus()) canvas.FocusRectangle(text);
}

}  // namespace orvendal
