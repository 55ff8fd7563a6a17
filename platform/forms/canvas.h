#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/forms/color.h"
#include "platform/forms/font.h"
#include "platform/forms/geometry.h"

namespace orvendal {

enum class HorizontalAlign { kLeft, kRight, kCenter };
enum class VerticalAlign { kTop, kCenter, kBottom };

/// What a canvas made of a bitmap for its device.
struct DeviceBitmap {
  virtual ~DeviceBitmap() = default;
};

/// Keeps it with the bitmap. Not copied: a copy of a bitmap is there to become another one.
class DeviceBitmapSlot {
 public:
  DeviceBitmapSlot() = default;
  DeviceBitmapSlot(const DeviceBitmapSlot&) {}
  DeviceBitmapSlot& operator=(const DeviceBitmapSlot&) {
    kept.reset();
    return *this;
  }
  ~DeviceBitmapSlot() = default;

  std::unique_ptr<DeviceBitmap> kept;
};

/// A picture with a palette, one byte a pixel, rows from the top. Lives as long as somebody paints it, and is
/// not changed after it was painted.
struct Bitmap {
  int width = 0;   // pixels
  int height = 0;  // pixels
  std::vector<Rgb> palette;
  std::vector<std::uint8_t> pixels;
  mutable DeviceBitmapSlot device;  // a canvas's own; one kind of canvas that keeps something in a process
};

/// The drawing surface, which each adapter implements. Positions are twips, relative to the origin that Push
/// moved; the adapter rounds edges to its device's pixels, so that equal edges meet. Nothing is painted
/// outside the current clip.
class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual void FillRectangle(const Rect& rect, Rgb color) = 0;
  /// A frame of `width` twips (at least one pixel) just inside `rect`.
  virtual void FrameRectangle(const Rect& rect, Rgb color, double width) = 0;
  /// A dotted frame of one pixel inside `rect`, seen on any background.
  virtual void FocusRectangle(const Rect& rect) = 0;
  /// Corners of `radius` twips; the border of `width` twips is centred on the edge; no fill if `fill` is
  /// empty.
  virtual void RoundedRectangle(const Rect& rect, double radius, std::optional<Rgb> fill, Rgb border,
                                double width) = 0;
  virtual void DrawLine(Point from, Point to, Rgb color, double width) = 0;
  /// One filled polygon, for arrows and marks.
  virtual void FillPolygon(const std::vector<Point>& points, Rgb color) = 0;
  /// One line of text (UTF-8) aligned in `box` and clipped to it.
  virtual void DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb color,
                        HorizontalAlign horizontal, VerticalAlign vertical) = 0;
  /// At its own size, 15 twips to a pixel, clipped to `clip`.
  virtual void DrawBitmap(Point at, const Bitmap& bitmap, const Rect& clip) = 0;

  /// From here to the matching Pop, positions are relative to `origin` and painting is clipped to `clip` too,
  /// both given in the coordinates before the call.
  virtual void Push(Point origin, const Rect& clip) = 0;
  virtual void Pop() = 0;

  // What a painter need not paint. To the pixel of the device; a canvas that cannot tell paints everything.

  /// False if nothing within `rect` can be painted, since the clip leaves nothing of it.
  virtual bool ShowsAnyOf(const Rect& /*rect*/) const { return true; }
  /// True if whatever can be painted lies within `rect`, so that filling it would hide all that was there.
  virtual bool IsWithin(const Rect& /*rect*/) const { return false; }
};

}  // namespace orvendal
