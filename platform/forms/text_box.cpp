#include "platform/forms/text_box.h"

#include <algorithm>

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"
#include "platform/forms/control_looks.h"

namespace orvendal {
namespace {

constexpr double kCaretWidth = kTwipsPerPixel;
constexpr double kPadding = kTwipsPerPixel;

std::string_view Prefix(std::string_view text, std::size_t characters) {
  return text.substr(0, ByteOffset(text, characters));
}

}  // namespace

TextBox::TextBox(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties TextBox::DefaultProperties() const {
  return PropertiesOfBox();
}

void TextBox::RestoreDefaults() {
  Control::RestoreDefaults();
  text_.clear();
  length_ = 0;
  selection_start_ = selection_length_ = anchor_ = caret_ = 0;
  drag_ = {};
  scroll_ = 0;
  locked_ = false;
  alignment_ = HorizontalAlign::kLeft;
  max_length_ = 0;
  undo_.reset();
  typing_ = false;
}

void TextBox::Text(const std::string& text) {
  const std::string_view allowed = max_length_ == 0 ? std::string_view(text) : Prefix(text, max_length_);
  const bool changes = allowed != text_;
  if (changes) {
    text_ = allowed;
    length_ = Len(text_);
  }
  undo_.reset();
  Select(0, 0);
  if (!changes) return;
  Invalidate();
  if (OnChange) OnChange();
}

void TextBox::SelStart(int position) {
  if (position < 0) throw RuntimeError(error_number::kInvalidPropertyValue);
  const std::size_t start = std::min(static_cast<std::size_t>(position), length_);
  Select(start, start);
}

void TextBox::SelLength(int length) {
  if (length < 0) throw RuntimeError(error_number::kInvalidPropertyValue);
  const std::size_t start = selection_start_;
  Select(start, start + std::min(static_cast<std::size_t>(length), length_ - start));
}

std::string TextBox::SelText() const {
  return Mid(text_, selection_start_ + 1, selection_length_);
}

void TextBox::SelText(const std::string& text) {
  undo_.reset();
  Replace(selection_start_, selection_start_ + selection_length_, text);
}

void TextBox::Alignment(HorizontalAlign alignment) {
  if (alignment == alignment_) return;
  alignment_ = alignment;
  Invalidate();
}

void TextBox::Select(std::size_t anchor, std::size_t caret) {
  const bool moves = anchor != anchor_ || caret != caret_;
  const double old_scroll = scroll_;
  anchor_ = anchor;
  caret_ = caret;
  selection_start_ = std::min(anchor, caret);
  selection_length_ = std::max(anchor, caret) - selection_start_;
  typing_ = false;
  ScrollToCaret();
  if (moves || scroll_ != old_scroll) Invalidate();
}

void TextBox::Replace(std::size_t from, std::size_t to, std::string_view text, bool typing) {
  const std::size_t kept = length_ - (to - from);
  if (max_length_ != 0) text = Prefix(text, max_length_ > kept ? max_length_ - kept : 0);
  const std::size_t first = ByteOffset(text_, from);
  const std::size_t bytes = ByteOffset(std::string_view(text_).substr(first), to - from);
  const bool changes = std::string_view(text_).substr(first, bytes) != text;
  const std::size_t inserted = Len(text);
  text_.replace(first, bytes, text);
  length_ = kept + inserted;
  Select(from + inserted, from + inserted);
  typing_ = typing;
  if (!changes) return;
  Invalidate();
  if (OnChange) OnChange();
}

Rect TextBox::TextArea() const {
  const Rect inside = LocalBounds().Deflated(BorderInset(BorderStyle(), Appearance()));
  return {inside.left + kPadding, inside.top, std::max(0.0, inside.width - 2 * kPadding), inside.height};
}

double TextBox::OffsetOf(std::size_t position) const {
  return position == 0 ? 0 : Host().TextWidth(Font().Spec(), Prefix(text_, position));
}

double TextBox::TextOrigin() const {
  const Rect area = TextArea();
  if (alignment_ == HorizontalAlign::kLeft) return area.left - scroll_;
  const double spare = area.width - kCaretWidth - OffsetOf(length_);
  if (spare <= 0) return area.left - scroll_;
  return area.left + (alignment_ == HorizontalAlign::kCenter ? spare / 2 : spare);
}

// The boundary between characters that lies nearest to `x`, found by halving: a text is measured a few times
// only, however long it is.
std::size_t TextBox::PositionAt(double x, double origin) const {
  const double wanted = x - origin;
  std::size_t low = 0;
  std::size_t high = length_;
  while (low < high) {
    const std::size_t middle = low + (high - low) / 2;
    if ((OffsetOf(middle) + OffsetOf(middle + 1)) / 2 <= wanted) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

Point TextBox::PlaceOf(int position) const {
  const double x =
      TextOrigin() + OffsetOf(std::min(static_cast<std::size_t>(std::max(position, 0)), length_));
  return {std::clamp(x, 0.0, std::max(0.0, Width() - kTwipsPerPixel)), Height() / 2};
}

std::size_t TextBox::CharacterAt(double x) const {
  const double origin = TextOrigin();
  const std::size_t boundary = PositionAt(x, origin);
  return boundary > 0 && origin + OffsetOf(boundary) > x ? boundary - 1 : boundary;
}

void TextBox::ScrollToCaret() {
  if (caret_ == 0) {
    scroll_ = 0;
    return;
  }
  const double room = std::max(0.0, TextArea().width - kCaretWidth);
  const double surplus = OffsetOf(length_) - room;
  if (surplus <= 0) {
    scroll_ = 0;
    return;
  }
  const double caret = OffsetOf(caret_);
  scroll_ = std::clamp(scroll_, std::max(0.0, caret - room), caret);
  scroll_ = std::min(scroll_, surplus);
}

void TextBox::FontChanged() {
  ScrollToCaret();
  Invalidate();
}

void TextBox::SizeChanged() {
  ScrollToCaret();
}

void TextBox::FocusChanged(bool) {
  typing_ = false;
  Invalidate();
}

std::optional<Rect> TextBox::CaretRectangle() const {
  if (!HasFocus()) return std::nullopt;
  const Rect area = TextArea();
  const double line = std::min(Host().LineHeight(Font().Spec()), area.height);
  const double left =
      std::clamp(TextOrigin() + OffsetOf(caret_), area.left, std::max(area.left, area.Right() - kCaretWidth));
  return Rect{left, area.top + (area.height - line) / 2, kCaretWidth, line};
}

CursorShape TextBox::Cursor(Point) const {
  return CursorShape::kText;
}

void TextBox::Paint(Canvas& canvas) {
  const Rect bounds = LocalBounds();
  canvas.FillRectangle(bounds, Resolve(BackColor()));
  PaintBorder(canvas, Host(), bounds, BorderStyle(), Appearance());
  if (text_.empty()) return;

  const FontSpec& font = Font().Spec();
  const Rect area = TextArea();
  const double origin = TextOrigin();
  Rect whole{origin, area.top, OffsetOf(length_) + kTwipsPerPixel, Host().LineHeight(font)};
  if (whole.height <= area.height) {
    whole.top += (area.height - whole.height) / 2;
  } else {
    // A line that is taller than its box stands so that the box shows its digits and capitals.
    const Rect ink = Host().TextInk(font, "0");
    whole.top += (area.height - ink.height) / 2 - ink.top;
  }
  const Rgb color = Resolve(IsOperable() ? ForeColor() : system_color::kGrayText);
  canvas.Push({0, 0}, area);
  canvas.DrawText(whole, text_, font, color, HorizontalAlign::kLeft, VerticalAlign::kTop);
  if (selection_length_ > 0 && HasFocus()) {
    const double from = OffsetOf(selection_start_);
    const double to = OffsetOf(selection_start_ + selection_length_);
    const double line = std::min(Host().LineHeight(font), area.height);
    const Rect selected{origin + from, area.top + (area.height - line) / 2, to - from, line};
    canvas.Push({0, 0}, selected);
    canvas.FillRectangle(selected, Resolve(system_color::kHighlight));
    // The whole text again, so that the letters stand where they stood.
    canvas.DrawText(whole, text_, font, Resolve(system_color::kHighlightText), HorizontalAlign::kLeft,
                    VerticalAlign::kTop);
    canvas.Pop();
  }
  canvas.Pop();
}

}  // namespace orvendal
