#include "screen/background_bitmap.h"

#include <array>
#include <cmath>
#include <vector>

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

// What of the waves belongs to a column, or to a row: two angles and how much of them shows.
struct Strands {
  std::vector<double> fine_sines;
  std::vector<double> fine_cosines;
  std::vector<double> coarse_sines;
  std::vector<double> coarse_cosines;
  std::vector<double> shares;

  void Add(double fine, double coarse, double share) {
    fine_sines.push_back(std::sin(fine));
    fine_cosines.push_back(std::cos(fine));
    coarse_sines.push_back(std::sin(coarse));
    coarse_cosines.push_back(std::cos(coarse));
    shares.push_back(share);
  }
};

Strands Across() {
  Strands strands;
  for (int x = 0; x < kWidth; ++x) {
    const double bend = 60.0 * std::sin(x / 210.0) + 18.0 * std::sin(x / 67.0);
    strands.Add(bend / 23.0, bend * 1.6 / 71.0, Share(kWidth - 1 - x, kFadeAcross));
  }
  return strands;
}

Strands Down() {
  Strands strands;
  for (int y = 0; y < kHeight; ++y) {
    strands.Add(y / 23.0, y * 0.7 / 71.0, Share(kHeight - 1 - y, kFadeDown));
  }
  return strands;
}

// Soft waves like combed hair, from white to lavender. The red goes down by at least one at each step, so
// that no two of the colours are the same. The program starts with this: a sine for each pixel would take
// longer than all the rest.
std::shared_ptr<const Bitmap> Make() {
  auto bitmap = std::make_shared<Bitmap>();
  bitmap->width = kWidth;
  bitmap->height = kHeight;
  for (int i = 0; i < kColors; ++i) {
    const double share = static_cast<double>(i) / (kColors - 1);
    bitmap->palette.push_back({Between(255, 164, share), Between(255, 182, share), Between(255, 222, share)});
  }
  bitmap->pixels.resize(static_cast<std::size_t>(kWidth) * kHeight);
  const Strands across = Across();
  const Strands down = Down();
  std::uint8_t* pixel = bitmap->pixels.data();
  std::array<int, kWidth> levels{};  // of a row
  for (std::size_t y = 0; y < kHeight; ++y) {
    // The sine of a sum of two angles. The level is never below zero by as much as half a step.
    const double most = (kColors - 1) / 2.0 * down.shares[y];
    const double fine_sine = 0.6 * down.fine_sines[y];
    const double fine_cosine = 0.6 * down.fine_cosines[y];
    const double coarse_sine = 0.4 * down.coarse_sines[y];
    const double coarse_cosine = 0.4 * down.coarse_cosines[y];
    for (std::size_t x = 0; x < kWidth; ++x) {
      const double strand = fine_sine * across.fine_cosines[x] + fine_cosine * across.fine_sines[x] +
                            coarse_sine * across.coarse_cosines[x] + coarse_cosine * across.coarse_sines[x];
      levels[x] = static_cast<int>((strand + 1.0) * most * across.shares[x] + 0.5);
    }
    for (const int level : levels) *pixel++ = static_cast<std::uint8_t>(level);
  }
  return bitmap;
}

}  // namespace

std::shared_ptr<const Bitmap> BackgroundBitmap() {
  static const std::shared_ptr<const Bitmap> bitmap = Make();
  return bitmap;
}

}  // namespace orvendal
