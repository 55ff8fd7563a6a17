#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/forms/canvas.h"
#include "platform/forms/control.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// The looks that several kinds of control share. Lengths in twips, positions relative to the canvas's
/// origin.

enum class Relief { kRaised, kPushed };
enum class ArrowDirection { kLeft, kRight, kUp, kDown };

/// The properties that a box has at first which shows texts to choose or to change: the colours of a window,
/// and a border.
ControlProperties PropertiesOfBox();

/// Width of the border that PaintBorder draws: nothing without a border, one pixel flat, two otherwise.
double BorderInset(int border_style, Appearance appearance);
/// A black frame of one pixel (flat), or the sunken edge of two.
void PaintBorder(Canvas& canvas, WindowHost& host, const Rect& bounds, int border_style,
                 Appearance appearance);
/// The edge of a push button over a face that is filled with `face`.
void PaintButtonFace(Canvas& canvas, WindowHost& host, const Rect& bounds, ColorWord face, Relief relief);
/// A filled triangle in the middle of `place`.
void PaintArrow(Canvas& canvas, const Rect& place, ArrowDirection direction, Rgb color);

/// A caption without its marks: "&" underlines the next letter, "&&" stands for one "&".
struct CaptionText {
  std::string text;
  std::optional<std::size_t> underlined;  // byte offset in `text`
};
CaptionText ReadCaption(std::string_view caption);
/// Width and height of a box that shows the whole of one line of `text`, its leaning letters included.
Point RoomOf(TextMeasures& measures, const FontSpec& font, std::string_view text);
/// `font`, or the nearest smaller one in which the whole of `text` shows in a box of that size. A text that
/// would become too small to read keeps its font, and is cut.
FontSpec FittingFont(TextMeasures& measures, const FontSpec& font, std::string_view text, const Rect& box);
/// One line of a caption in `box`, its marked letter underlined: written smaller rather than cut, and as high
/// in the box as its letters need, where the line itself is taller.
void PaintCaption(Canvas& canvas, TextMeasures& measures, const Rect& box, std::string_view caption,
                  const FontSpec& font, Rgb color, HorizontalAlign horizontal, VerticalAlign vertical);

}  // namespace orvendal
