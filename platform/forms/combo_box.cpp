#include "platform/forms/combo_box.h"

#include <algorithm>

#include "platform/base/runtime_error.h"
#include "platform/forms/control_looks.h"

namespace orvendal {
namespace {

constexpr double kButtonWidth = 17 * kTwipsPerPixel;
const std::string kNoText;

}  // namespace

ComboBox::ComboBox(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties ComboBox::DefaultProperties() const {
  return PropertiesOfBox();
}

void ComboBox::RestoreDefaults() {
  Control::RestoreDefaults();
  entries_.clear();
  first_index_.clear();
  list_index_ = -1;
}

const std::string& ComboBox::Text() const {
  return list_index_ < 0 ? kNoText : entries_[static_cast<std::size_t>(list_index_)];
}

void ComboBox::Text(const std::string& text) {
  const auto found = first_index_.find(text);
  if (found == first_index_.end()) throw RuntimeError(error_number::kPropertyReadOnly);
  Choose(found->second);
}

const std::string& ComboBox::List(int index) const {
  if (index < 0 || index >= ListCount()) throw RuntimeError(error_number::kSubscriptOutOfRange);
  return entries_[static_cast<std::size_t>(index)];
}

void ComboBox::ListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw RuntimeError(error_number::kInvalidPropertyValue);
  Choose(index);
}

void ComboBox::AddItem(const std::string& text) {
  first_index_.try_emplace(text, ListCount());
  entries_.push_back(text);
}

void ComboBox::Clear() {
  entries_.clear();
  first_index_.clear();
  list_index_ = -1;
  Invalidate();
}

void ComboBox::Choose(int index) {
  if (index == list_index_) return;
  list_index_ = index;
  Invalidate();
  if (OnClick) OnClick();
}

bool ComboBox::KeyDownDefault(int key_code, int) {
  if (entries_.empty()) return false;
  const int last = ListCount() - 1;
  switch (key_code) {
    case key::kUp:
    case key::kLeft:
      Choose(std::max(0, list_index_ - 1));
      return false;
    case key::kDown:
    case key::kRight:
      Choose(std::min(last, list_index_ + 1));
      return false;
    case key::kHome:
      Choose(0);
      return false;
    case key::kEnd:
      Choose(last);
      return false;
    default:
      return false;
  }
}

bool ComboBox::MouseWheel(WheelTurn turn) {
  if (entries_.empty() || !HasFocus()) return false;
  if (turn.notches != 0) Choose(std::clamp(list_index_ + turn.notches, 0, ListCount() - 1));
  return true;
}

void ComboBox::FocusChanged(bool) {
  Invalidate();
}

void ComboBox::Paint(Canvas& canvas) {
  const Rect bounds = LocalBounds();
  canvas.FillRectangle(bounds, Resolve(BackColor()));
  PaintBorder(canvas, Host(), bounds, BorderStyle(), Appearance());
  const Rect inside = bounds.Deflated(BorderInset(BorderStyle(), Appearance()));
  const double button_width = std::min(kButtonWidth, inside.width);
  const Rect button{inside.Right() - button_width, inside.top, button_width, inside.height};
  const Rgb text_color = Resolve(IsOperable() ? ForeColor() : system_color::kGrayText);
  PaintButtonFace(canvas, Host(), button, system_color::kButtonFace, Relief::kRaised);
  PaintArrow(canvas, button, ArrowDirection::kDown,
             Resolve(IsOperable() ? system_color::kButtonText : system_color::kGrayText));

  const Rect text =
      Rect{inside.left, inside.top, inside.width - button_width, inside.height}.Deflated(kTwipsPerPixel);
  const bool marked = HasFocus();
  if (marked) canvas.FillRectangle(text, Resolve(system_color::kHighlight));
  canvas.DrawText(text, Text(), Font().Spec(), marked ? Resolve(system_color::kHighlightText) : text_color,
                  HorizontalAlign::kLeft, VerticalAlign::kCenter);
  if (marked) canvas.FocusRectangle(text);
}

}  // namespace orvendal
