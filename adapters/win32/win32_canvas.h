#pragma once

#include <functional>
#include <vector>

#include "adapters/win32/dib_surface.h"
#include "adapters/win32/win32_fonts.h"
#include "platform/forms/canvas.h"

namespace orvendal {

/// A canvas over a surface of a display of `dpi` pixels to an inch.
///
/// Edges go to the nearest pixel, so equal edges meet, and straight lines are whole pixels wide at any
/// resolution. Curves and slanted edges are smoothed. Texts are GDI's.
///
/// Invariants: `origin_` is in twips from the form's corner, `clip_` in pixels of the surface and within it.
class Win32Canvas final : public Canvas {
 public:
  /// `part` is the part of the form, in pixels, that lies on the surface's upper left corner; nothing is
  /// painted outside it.
  Win32Canvas(DibSurface& surface, Win32Fonts& fonts, int dpi, const RECT& part);
  ~Win32Canvas() override;
  Win32Canvas(const Win32Canvas&) = delete;
  Win32Canvas& operator=(const Win32Canvas&) = delete;

  void FillRectangle(const Rect& rect, Rgb color) override;
  void FrameRectangle(const Rect& rect, Rgb color, double width) override;
  void FocusRectangle(const Rect& rect) override;
  void RoundedRectangle(const Rect& rect, double radius, std::optional<Rgb> fill, Rgb border,
                        double width) override;
  void DrawLine(Point from, Point to, Rgb color, double width) override;
  void FillPolygon(const std::vector<Point>& points, Rgb color) override;
  void DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb color,
                HorizontalAlign horizontal, VerticalAlign vertical) override;
  void DrawBitmap(Point at, const Bitmap& bitmap, const Rect& clip) override;
  void Push(Point origin, const Rect& clip) override;
  void Pop() override;

 private:
  struct Level {
    Point origin;
    RECT clip;
  };
  struct RoundedEdge;
  /// How much of the pixel at that place, is covered: 0 to 1.
  using Coverage = std::function<double(int x, int y)>;

  double Pixels(double twips) const { return twips * pixels_per_twip_; }
  int X(double twips) const;
  int Y(double twips) const;
  RECT Device(const Rect& rect) const;
  int LineWidth(double twips) const;
  /// Lets plain code see what GDI painted.
  void FinishText();
  void Fill(const RECT& pixels, std::uint32_t color);
  /// The four sides of a frame, each given to `fill`.
  void Frame(const RECT& pixels, int width, const std::function<void(const RECT&)>& fill);
  void Blend(const RECT& bounds, Rgb color, const Coverage& coverage);
  void FillPixelPolygon(const std::vector<Point>& pixels, Rgb color);

  DibSurface& surface_;
  Win32Fonts& fonts_;
  int dpi_;
  double pixels_per_twip_;
  POINT corner_;
  Point origin_;
  RECT clip_;
  std::vector<Level> levels_;
  bool text_pending_ = false;
  int dc_state_;
};

}  // namespace orvendal
