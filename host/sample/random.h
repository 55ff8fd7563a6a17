#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace orvendal {

/// Numbers that look random and are the same for the same seed on every machine and with every compiler,
/// which the distributions of the standard library do not promise.
class SampleRandom {
 public:
  explicit SampleRandom(std::uint64_t seed) : engine_(seed) {}

  /// From 0 to `count` - 1; `count` is not 0.
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(engine_() % count); }
  /// From `least` to `most`, both included.
  int Between(int least, int most) {
    return least + static_cast<int>(Below(static_cast<std::size_t>(most - least) + 1));
  }
  /// True `percent` times in a hundred.
  bool Chance(int percent) { return Below(100) < static_cast<std::size_t>(percent); }

 private:
  std::mt19937_64 engine_;
};

}  // namespace orvendal
