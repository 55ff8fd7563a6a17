#include "platform/forms/common_window.h"

#include <algorithm>
#include <cmath>

#include "platform/forms/form.h"

namespace orvendal {
namespace {

constexpr int kCenterOnOwner = 1;
constexpr int kCenterOnScreen = 2;

}  // namespace

CommonWindow::CommonWindow(CommonHost& host, Form& form) : host_(host), form_(form) {
  host_.windows_.push_back(this);
}

CommonWindow::~CommonWindow() {
  host_.EndModal(*this);
  host_.windows_.erase(std::find(host_.windows_.begin(), host_.windows_.end(), this));
  if (host_.windows_.empty()) host_.LastWindowGone();
}

bool CommonWindow::IsFramed() const {
  return form_.BorderStyle() != 0;
}

const std::string& CommonWindow::Title() const {
  return form_.Caption().empty() ? host_.ApplicationTitle() : form_.Caption();
}

bool CommonWindow::IsPlacedOnce() const {
  if (IsFramed()) return true;
  const int position = form_.StartUpPosition();
  return (position == kCenterOnOwner || position == kCenterOnScreen) &&
         form_.WindowState() != WindowState::kMaximized;
}

Point CommonWindow::FirstPlace(Size size, Size whole, const Rect& screen, const Rect& owner) const {
  const bool on_owner = form_.StartUpPosition() == kCenterOnOwner && !owner.IsEmpty();
  const Rect& around = on_owner ? owner : screen;
  const double left = std::floor(around.left + (around.width - size.width) / 2);
  const double top = std::floor(around.top + (around.height - size.height) / 2);
  return {std::clamp(left, screen.left, std::max(screen.left, screen.Right() - whole.width)),
          std::clamp(top, screen.top, std::max(screen.top, screen.Bottom() - whole.height))};
}

}  // namespace orvendal
