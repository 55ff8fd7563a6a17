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

// On a finer display letters are drawn anew, a little higher or lower than in the pixels they are measured
// in.
constexpr double kInkMargin = 2 * kTwipsPerPixel;

}  // namespace

ControlProperties PropertiesOfBox() {
  ControlProperties properties;
  properties.back_color = system_color::kWindowBackground;
  properties.fore_color = system_color::kWindowText;
  properties.border_style = 1;
  return properties;
}

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

Point RoomOf(TextMeasures& measures, const FontSpec& font, std::string_view text) {
  const Rect ink = measures.TextInk(font, text);
  const double left = std::min(0.0, ink.left);
  // A whole line has room for whatever stands in it.
  const double height = std::min(ink.height + kInkMargin, measures.LineHeight(font));
  return {std::max(measures.TextWidth(font, text), ink.Right()) - left, height};
}

// A design was measured with the fonts of its own desktop, and its sizes stay. What counts is the font that
// this desktop really gives for a size, so each size is measured; the steps are finer than any desktop's.
FontSpec FittingFont(TextMeasures& measures, const FontSpec& font, std::string_view text, const Rect& box) {
  constexpr double kStep = 0.25;  // points
  constexpr double kSmallestShare = 0.6;
  FontSpec fitting = font;
  for (; fitting.size >= font.size * kSmallestShare; fitting.size -= kStep) {
    const Point room = RoomOf(measures, fitting, text);
    if (room.x <= box.width && room.y <= box.height) return fitting;
  }
  return font;
}

void PaintCaption(Canvas& canvas, TextMeasures& measures, const Rect& box, std::string_view caption,
                  const FontSpec& wanted, Rgb color, HorizontalAlign horizontal, VerticalAlign vertical) {
  const CaptionText read = ReadCaption(caption);
  if (read.text.empty()) return;
  const std::string_view text = read.text;
  const FontSpec font = FittingFont(measures, wanted, text, box);
  const Rect ink = measures.TextInk(font, text);
  const double width = measures.TextWidth(font, text);

  Rect line{box.left, box.top, box.width, measures.LineHeight(font)};
  if (vertical == VerticalAlign::kCenter) line.top += (box.height - line.height) / 2;
  if (vertical == VerticalAlign::kBottom) line.top += box.height - line.height;
  // A line that is taller than its box stands so that the box shows all of its letters: the same for each
  // text where accents and tails have room, so that captions side by side stand on one line.
  if (line.height > box.height) {
    const Rect tallest = measures.TextInk(font, "Ép");
    const Rect& shown = tallest.height + kInkMargin / 2 <= box.height ? tallest : ink;
    line.top = box.top + (box.height - shown.height) / 2 - shown.top;
  }
  double left = box.left;
  if (horizontal == HorizontalAlign::kCenter) left += (box.width - width) / 2;
  if (horizontal == HorizontalAlign::kRight) left += box.width - width;
  if (horizontal == HorizontalAlign::kLeft && ink.left < 0) {
    line.left -= ink.left;
    line.width += ink.left;
    left -= ink.left;
  }
  canvas.Push({0, 0}, box);
  canvas.DrawText(line, text, font, color, horizontal, VerticalAlign::kTop);
  canvas.Pop();
  if (!read.underlined) return;

  std::size_t end = *read.underlined;
  NextCharacter(read.text, end);
  const double from = left + measures.TextWidth(font, text.substr(0, *read.underlined));
  const double to = left + measures.TextWidth(font, text.substr(0, end));
  const double bottom = line.Bottom() - 2 * kTwipsPerPixel;
  canvas.DrawLine({from, bottom}, {to, bottom}, color, kTwipsPerPixel);
}

}  // namespace orvendal
