#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/forms/canvas.h"
#include "platform/forms/form.h"

namespace orvendal {

/// What is painted on it goes nowhere but for the texts: each is drawn once as it is clipped on the form and
/// once with all the room that it wants, and what the clip and the windows in front take away is noted.
class CutTexts final : public Canvas {
 public:
  /// The pixels of a part of the form after `draw` has painted on white, one number each.
  using Picture = std::vector<std::uint32_t>;
  using TakePicture = std::function<Picture(int left, int top, int width, int height,
                                            const std::function<void(Canvas&)>& draw)>;
  CutTexts(const Form& form, double pixels_per_twip, TakePicture take_picture)
      : form_(form), pixels_per_twip_(pixels_per_twip), take_picture_(std::move(take_picture)) {}

  const std::vector<std::string>& Seen() const { return seen_; }
  /// As "text by N": so many pixels are missing.
  const std::vector<std::string>& Cut() const { return cut_; }

  void FillRectangle(const Rect&, Rgb) override {}
  void FrameRectangle(const Rect&, Rgb, double) override {}
  void FocusRectangle(const Rect&) override {}
  void RoundedRectangle(const Rect&, double, std::optional<Rgb>, Rgb, double) override {}
  void DrawLine(Point, Point, Rgb, double) override {}
  void FillPolygon(const std::vector<Point>&, Rgb) override {}
  void DrawBitmap(Point, const Bitmap&, const Rect&) override {}

  void DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb, HorizontalAlign horizontal,
                VerticalAlign vertical) override {
    if (IsInBox()) return;
    const Rect place = box.Moved(levels_.back().origin.x, levels_.back().origin.y);
    seen_.emplace_back(text);
    const auto picture = [&](const Rect& line, const Rect& clip, const std::vector<Rect>& covers) {
      const auto pixel = [this](double twips) {
        return static_cast<int>(std::floor(twips * pixels_per_twip_));
      };
      constexpr int kAround = 40;
      return take_picture_(pixel(place.left) - kAround, pixel(place.top) - kAround,
                           pixel(place.width) + 2 * kAround, pixel(place.height) + 2 * kAround,
                           [&](Canvas& canvas) {
                             canvas.Push({0, 0}, clip);
                             canvas.DrawText(line, text, font, {0, 0, 0}, horizontal, vertical);
                             canvas.Pop();
                             for (const Rect& cover : covers) canvas.FillRectangle(cover, {255, 255, 255});
                           });
    };
    const Picture clipped = picture(place, place.Intersection(levels_.back().clip), Covers());
    const Rect roomy = WithRoom(place, horizontal, vertical);
    const Picture whole = picture(roomy, roomy, {});
    int missing = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) missing += clipped[i] == whole[i] ? 0 : 1;
    if (missing > 0) cut_.push_back(std::string(text) + " by " + std::to_string(missing));
  }

  void Push(Point origin, const Rect& clip) override {
    if (levels_.empty()) {
      levels_.push_back({origin, clip});
      return;
    }
    const Level& outer = levels_.back();
    levels_.push_back({{outer.origin.x + origin.x, outer.origin.y + origin.y},
                       clip.Moved(outer.origin.x, outer.origin.y).Intersection(outer.clip)});
  }
  void Pop() override { levels_.pop_back(); }

 private:
  struct Level {
    Point origin;
    Rect clip;
  };

  // The text stands in it where it stood.
  static Rect WithRoom(const Rect& place, HorizontalAlign horizontal, VerticalAlign vertical) {
    constexpr double kRoom = 400 * kTwipsPerPixel;
    Rect roomy = place;
    if (horizontal != HorizontalAlign::kLeft) roomy.left -= kRoom;
    roomy.width += horizontal == HorizontalAlign::kCenter ? 2 * kRoom : kRoom;
    if (vertical != VerticalAlign::kTop) roomy.top -= kRoom;
    roomy.height += vertical == VerticalAlign::kCenter ? 2 * kRoom : kRoom;
    return roomy;
  }

  // The control that is being painted has this corner.
  bool StandsHere(const Control& control) const {
    const Rect bounds = control.Bounds();
    return Point{bounds.left, bounds.top} == levels_.back().origin;
  }

  // What stands in a box was typed or read, and may be longer or higher than it.
  bool IsInBox() const {
    return std::any_of(form_.Controls().begin(), form_.Controls().end(), [this](const Control* control) {
      return control->Kind() == ControlKind::kTextBox && StandsHere(*control);
    });
  }

  // The windows that stand in front of the label that is being painted.
  std::vector<Rect> Covers() const {
    std::vector<Rect> covers;
    for (const Control* label : form_.Controls()) {
      if (label->Kind() != ControlKind::kLabel || !StandsHere(*label)) continue;
      for (const Control* other : form_.Controls()) {
        const bool in_front = other->Container() == label->Container() && !other->IsLightweight();
        if (in_front && other->Visible()) covers.push_back(other->Bounds());
      }
      break;
    }
    return covers;
  }

  const Form& form_;
  double pixels_per_twip_;
  TakePicture take_picture_;
  std::vector<Level> levels_;
  std::vector<std::string> seen_;
  std::vector<std::string> cut_;
};

}  // namespace orvendal
