#pragma once

#include <string>
#include <vector>

#include "platform/forms/canvas.h"

namespace orvendal {

/// Keeps a list of what was painted, in coordinates of the outermost origin and cut to the clip; what lies
/// outside the clip is not kept.
class RecordingCanvas final : public Canvas {
 public:
  struct Operation {
    std::string kind;  // "fill", "frame", "focus", "rounded", "line", "polygon", "text", "bitmap"
    Rect area;         // what of it lies inside the clip
    Rgb color;
    std::string text;
  };

  const std::vector<Operation>& Operations() const { return operations_; }
  std::vector<std::string> Texts() const;
  /// The colour of the last fill over that place; black if there was none.
  Rgb FillAt(Point position) const;
  void Forget() { operations_.clear(); }

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
  struct Frame {
    Point origin;
    Rect clip;
  };
  void Record(const std::string& kind, const Rect& area, Rgb color, const std::string& text = {});

  std::vector<Frame> frames_;
  std::vector<Operation> operations_;
};

}  // namespace orvendal
