#include "platform/forms/scroll_track.h"

#include <algorithm>

#include "platform/forms/control_looks.h"

namespace orvendal {

ScrollTrack::ScrollTrack(const Rect& whole, Direction direction, double arrow, const Scale& scale)
    : whole_(whole), direction_(direction) {
  const double length = direction == Direction::kVertical ? whole.height : whole.width;
  arrow_ = std::min(arrow, length / 2);
  track_ = length - 2 * arrow_;
  const double thumb = std::min(track_, std::max(kShortestThumb, track_ * scale.shown));
  const double way = scale.range > 0 ? (track_ - thumb) * scale.position / scale.range : 0;
  thumb_ = Piece(arrow_ + way, thumb);
}

Rect ScrollTrack::Piece(double from, double length) const {
  return direction_ == Direction::kVertical ? Rect{whole_.left, whole_.top + from, whole_.width, length}
                                            : Rect{whole_.left + from, whole_.top, length, whole_.height};
}

double ScrollTrack::Along(Point place) const {
  return direction_ == Direction::kVertical ? place.y - whole_.top : place.x - whole_.left;
}

ScrollTrack::Part ScrollTrack::PartAt(Point place) const {
  if (thumb_.Contains(place)) return Part::kThumb;
  if (Along(place) < arrow_) return Part::kBackArrow;
  if (Along(place) >= arrow_ + track_) return Part::kForwardArrow;
  const bool is_before = !thumb_.IsEmpty() && GripAt(place) < 0;
  return is_before ? Part::kBeforeThumb : Part::kBehindThumb;
}

double ScrollTrack::GripAt(Point place) const {
  return Along(place) - Along({thumb_.left, thumb_.top});
}

std::optional<double> ScrollTrack::DraggedTo(Point place, double grip) const {
  const double thumb = direction_ == Direction::kVertical ? thumb_.height : thumb_.width;
  const double way = track_ - thumb;
  if (way <= 0) return std::nullopt;
  return std::clamp((Along(place) - arrow_ - grip) / way, 0.0, 1.0);
}

void ScrollTrack::Paint(Canvas& canvas, WindowHost& host, Rgb groove, Rgb marks) const {
  const Rect back = Piece(0, arrow_);
  const Rect forward = Piece(arrow_ + track_, arrow_);
  const bool is_vertical = direction_ == Direction::kVertical;
  canvas.FillRectangle(whole_, groove);
  for (const Rect& part : {back, forward, thumb_}) {
    if (!part.IsEmpty()) PaintButtonFace(canvas, host, part, system_color::kButtonFace, Relief::kRaised);
  }
  PaintArrow(canvas, back, is_vertical ? ArrowDirection::kUp : ArrowDirection::kLeft, marks);
  PaintArrow(canvas, forward, is_vertical ? ArrowDirection::kDown : ArrowDirection::kRight, marks);
}

}  // namespace orvendal
