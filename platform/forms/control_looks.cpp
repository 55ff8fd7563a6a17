#include "platform/forms/control_looks.h"

#include <algorithm>

#include "platform/base/text.h"

namespace orvendal {
namespace {

// One pixel along the inside of `rect`: two colours that make it stand out or sink in.
void PaintEdge(Canvas& canvas, const Rect& rect, Rgb upper_left, Rgb lower_right) {
  if (rect.IsEmpty()) return;
  const double pixel = kTwipsPerPixel;
  canvas.FillRectangle({rect.left, rect.top, rect.width, pixel}, upper_left);
  canvas.FillRectangle({rect.left, rect.top, pixel, rect.height}, upper_left);
  canvas.FillRectangle({rect.left, rect.Bottom() - pixel, rect.width, pixel}, lower_right);
  canvas.FillRectangle({rect.Right() - pixel, rect.top, pixel, rect.height}, lower_right);
}

}  // namespace

double BorderInset(int border_style, Appearance appearance) {
  if (border_style == 0) return 0;
  return appearance == Appearance::kFlat ? kTwipsPerPixel : 2 * kTwipsPerPixel;
}

void PaintBorder(Canvas& canvas, WindowHost& host, const Rect& bounds, int border_style,
                 Appearance appearance) {
  if (border_style == 0) return;
  if (appearance == Appearance::kFlat) {
    canvas.FrameRectangle(bounds, host.Resolve(system_color::kWindowFrame), kTwipsPerPixel);
    return;
  }
  PaintEdge(canvas, bounds, host.Resolve(system_color::kButtonShadow),
            host.Resolve(system_color::kButtonHighlight));
  PaintEdge(canvas, bounds.Deflated(kTwipsPerPixel), host.Resolve(system_color::kButtonDarkShadow),
            host.Resolve(system_color::kButtonFace));
}

void PaintButtonFace(Canvas& canvas, WindowHost& host, const Rect& bounds, ColorWord face, Relief relief) {
  canvas.FillRectangle(bounds, host.Resolve(face));
  const Rgb light = host.Resolve(system_color::kButtonHighlight);
  const Rgb shadow = host.Resolve(system_color::kButtonShadow);
  const Rgb dark = host.Resolve(system_color::kButtonDarkShadow);
  if (relief == Relief::kPushed) {
    PaintEdge(canvas, bounds, dark, light);
    PaintEdge(canvas, bounds.Deflated(kTwipsPerPixel), shadow, host.Resolve(face));
  } else {
    PaintEdge(canvas, bounds, light, dark);
    PaintEdge(canvas, bounds.Deflated(kTwipsPerPixel), host.Resolve(face), shadow);
  }
}

void PaintArrow(Canvas& canvas, const Rect& place, ArrowDirection direction, Rgb color) {
  const Point middle{place.left + place.width / 2, place.top + place.height / 2};
  const double half = std::min(place.width, place.height) / 4;  // of the base
  const double depth = half / 2;
  switch (direction) {
    case ArrowDirection::kLeft:
      canvas.FillPolygon({{middle.x - depth, middle.y},
                          {middle.x + depth, middle.y - half},
                          {middle.x + depth, middle.y + half}},
                         color);
      return;
    case ArrowDirection::kRight:
      canvas.FillPolygon({{middle.x + depth, middle.y},
                          {middle.x - depth, middle.y - half},
                          {middle.x - depth, middle.y + half}},
                         color);
      return;
    case ArrowDirection::kUp:
      canvas.FillPolygon({{middle.x, middle.y - depth},
                          {middle.x - half, middle.y + depth},
                          {middle.x + half, middle.y + depth}},
                         color);
      return;
    case ArrowDirection::kDown:
      canvas.FillPolygon({{middle.x, middle.y + depth},
                          {middle.x - half, middle.y - depth},
                          {middle.x + half, middle.y - depth}},
                         color);
      return;
  }
}

CaptionText ReadCaption(std::string_view caption) {
  CaptionText read;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&') {
      ++i;
      if (i == caption.size()) break;
      if (caption[i] != '&') read.underlined = read.text.size();
    }
    read.text.push_back(caption[i]);
  }
  return read;
}

void PaintCaption(Canvas& canvas, WindowHost& host, const Rect& box, std::string_view caption,
                  const FontSpec& font, Rgb color, HorizontalAlign horizontal, VerticalAlign vertical) {
  const CaptionText read = ReadCaption(caption);
  if (read.text.empty()) return;
  canvas.DrawText(box, read.text, font, color, horizontal, vertical);
  if (!read.underlined) return;

  const double width = host.TextWidth(font, read.text);
  const double height = host.LineHeight(font);
  double left = box.left;
  if (horizontal == HorizontalAlign::kCenter) left += (box.width - width) / 2;
  if (horizontal == HorizontalAlign::kRight) left += box.width - width;
  double bottom = box.top + height;
  if (vertical == VerticalAlign::kCenter) bottom = box.top + (box.height + height) / 2;
  if (vertical == VerticalAlign::kBottom) bottom = box.Bottom();

  std::size_t end = *read.underlined;
  NextCharacter(read.text, end);
  const std::string_view text = read.text;
  const double from = left + host.TextWidth(font, text.substr(0, *read.underlined));
  const double to = left + host.TextWidth(font, text.substr(0, end));
  canvas.DrawLine({from, bottom - 2 * kTwipsPerPixel}, {to, bottom - 2 * kTwipsPerPixel}, color,
                  kTwipsPerPixel);
}

}  // namespace orvendal
