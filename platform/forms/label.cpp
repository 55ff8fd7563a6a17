#include "platform/forms/label.h"

#include <algorithm>

#include "platform/forms/control_looks.h"
#include "platform/forms/form.h"

namespace orvendal {

Label::Label(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

void Label::RestoreDefaults() {
  Control::RestoreDefaults();
  caption_.clear();
  auto_size_ = false;
  opaque_ = true;
  alignment_ = HorizontalAlign::kLeft;
}

void Label::Caption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  if (auto_size_) Fit();
  Invalidate();
}

void Label::AutoSize(bool auto_size) {
  if (auto_size == auto_size_) return;
  auto_size_ = auto_size;
  if (auto_size_) Fit();
}

void Label::Opaque(bool opaque) {
  if (opaque == opaque_) return;
  opaque_ = opaque;
  Invalidate();
}

void Label::Alignment(HorizontalAlign alignment) {
  if (alignment == alignment_) return;
  alignment_ = alignment;
  Invalidate();
}

void Label::Design(const std::string& caption, bool auto_size, bool opaque) {
  caption_ = caption;
  auto_size_ = auto_size;
  opaque_ = opaque;
  Invalidate();
}

void Label::FontChanged() {
  if (auto_size_) Fit();
  Invalidate();
}

void Label::Fit() {
  const double borders = BorderStyle() == 0 ? 0 : 2 * kTwipsPerPixel;
  const FontSpec& font = Font().Spec();
  Move(Left(), Top(), RoomOf(Host(), font, ReadCaption(caption_).text).x + borders,
       Host().LineHeight(font) + borders);
}

// The largest part that neither the container's edges nor the windows in front of all labels cover; all of a
// label of which nothing shows.
Rect Label::ShownPart() const {
  const auto largest = [](std::initializer_list<Rect> parts) {
    return *std::max_element(parts.begin(), parts.end(), [](const Rect& left, const Rect& right) {
      return left.width * left.height < right.width * right.height;
    });
  };
  Rect shown{Left(), Top(), Width(), Height()};
  if (Container() == nullptr) {
    shown = shown.Intersection({0, 0, Parent().Width(), Parent().Height()});
  } else {
    const Point inside = Container()->ClientOrigin();
    shown =
        shown.Intersection({0, 0, Container()->Width() - 2 * inside.x, Container()->Height() - 2 * inside.y});
  }
  for (const Control* other : Parent().Controls()) {
    const Rect cover{other->Left(), other->Top(), other->Width(), other->Height()};
    if (other->Container() != Container() || other->IsLightweight() || !other->Visible() ||
        !cover.Intersects(shown))
      continue;
    shown =
        largest({{shown.left, shown.top, std::max(0.0, cover.left - shown.left), shown.height},
                 {shown.left, shown.top, shown.width, std::max(0.0, cover.top - shown.top)},
                 {cover.Right(), shown.top, std::max(0.0, shown.Right() - cover.Right()), shown.height},
                 {shown.left, cover.Bottom(), shown.width, std::max(0.0, shown.Bottom() - cover.Bottom())}});
  }
  return shown.IsEmpty() ? LocalBounds() : shown.Moved(-Left(), -Top());
}

void Label::Paint(Canvas& canvas) {
  Rect inside = LocalBounds();
  if (opaque_) canvas.FillRectangle(inside, Resolve(BackColor()));
  if (BorderStyle() != 0) {
    const bool flat = Appearance() == Appearance::kFlat;
    canvas.FrameRectangle(inside, Resolve(flat ? system_color::kWindowFrame : system_color::kButtonShadow),
                          kTwipsPerPixel);
    inside = inside.Deflated(kTwipsPerPixel);
  }
  const Rgb color = Resolve(IsOperable() ? ForeColor() : system_color::kGrayText);
  PaintCaption(canvas, Host(), inside.Intersection(ShownPart()), caption_, Font().Spec(), color, alignment_,
               VerticalAlign::kTop);
}

}  // namespace orvendal
