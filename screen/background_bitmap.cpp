#include "screen/background_bitmap.h"

#include <cmath>

namespace orvendal {
namespace {

constexpr int kWidth = 1149;
constexpr int kHeight = 770;
constexpr int kColors = 85;
// Where the display is larger than the picture, the picture fades into the window's white before it ends.
constexpr int kFadeAcross = 380;
constexpr int kFadeDown = 140;

std::uint8_t Between(int from, int to, double share) {
  return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
}

// 1 where the picture is itself, 0 at its edge, and soft at both ends.
double Share(int from_edge, int fade) {
  const double share = std::min(1.0, static_cast<double>(from_edge) / fade);
  return share * share * (3 - 2 * share);
}

// Soft waves like combed hair, from white to lavender. The red goes down by at least one at each step, so
// that no two of the colours are the same.
std::shared_ptr<const Bitmap> Make() {
  auto bitmap = std::make_shared<Bitmap>();
  bitmap->width = kWidth;
  bitmap->height = kHeight;
  for (int i = 0; i < kColors; ++i) {
    const double share = static_cast<double>(i) / (kColors - 1);
    bitmap->palette.push_back({Between(255, 164, share), Between(255, 182, share), Between(255, 222, share)});
  }
  bitmap->pixels.reserve(static_cast<std::size_t>(kWidth) * kHeight);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const double bend = 60.0 * std::sin(x / 210.0) + 18.0 * std::sin(x / 67.0);
      const double strand = std::sin((y + bend) / 23.0) * 0.6 + std::sin((y * 0.7 + bend * 1.6) / 71.0) * 0.4;
      const double shown = Share(kWidth - 1 - x, kFadeAcross) * Share(kHeight - 1 - y, kFadeDown);
      const double level = (strand + 1.0) / 2.0 * (kColors - 1) * shown;
      bitmap->pixels.push_back(
          static_cast<std::uint8_t>(std::min(kColors - 1L, std::max(0L, std::lround(level)))));
    }
  }
  return bitmap;
}

}  // namespace

std::shared_ptr<const Bitmap> BackgroundBitmap() {
  static const std::shared_ptr<const Bitmap> bitmap = Make();
  return bitmap;
}

}  // namespace orvendal
