#pragma once

#include <optional>

#include "platform/forms/canvas.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// A scroll bar as it is laid out at one moment: an arrow at each end, the track between them, and on it the
/// thumb that stands for a position. Lengths and places in twips, relative to the control.
class ScrollTrack {
 public:
  enum class Direction { kHorizontal, kVertical };
  enum class Part { kBackArrow, kForwardArrow, kThumb, kBeforeThumb, kBehindThumb };
  /// The thumb is no shorter, so that a hand can take it.
  static constexpr double kShortestThumb = 8 * kTwipsPerPixel;

  /// What the thumb stands for: `position` of `range`, both from 0; and the part of the whole that shows.
  struct Scale {
    double position = 0;
    double range = 0;
    double shown = 1;
  };

  /// `arrow` is the length of each arrow; half of the bar at most.
  ScrollTrack(const Rect& whole, Direction direction, double arrow, const Scale& scale);

  /// As it is where nothing can be scrolled: without a thumb.
  void RemoveThumb() { thumb_ = {}; }

  Direction Runs() const { return direction_; }
  const Rect& Whole() const { return whole_; }
  const Rect& Thumb() const { return thumb_; }
  double TrackLength() const { return track_; }

  /// For a place within the bar.
  Part PartAt(Point place) const;
  /// How far behind the thumb's beginning it was taken.
  double GripAt(Point place) const;
  /// Which part of the range, from 0 to 1, the thumb stands for once it is dragged there, taken at `grip`;
  /// nothing if it cannot move.
  std::optional<double> DraggedTo(Point place, double grip) const;

  void Paint(Canvas& canvas, WindowHost& host, Rgb groove, Rgb marks) const;

 private:
  Rect Piece(double from, double length) const;
  /// Of a place, from the beginning of the bar.
  double Along(Point place) const;

  Rect whole_;
  Direction direction_;
  double arrow_;
  double track_;
  Rect thumb_;
};

}  // namespace orvendal
