#pragma once

#include <cstdint>
#include <vector>

#include "adapters/win32/windows_api.h"

namespace orvendal {

/// A picture in memory that both GDI and plain code paint on: 32 bits a pixel (0x00RRGGBB), rows from the
/// top.
///
/// Invariant: Dc has the picture selected for as long as the surface lives.
class DibSurface {
 public:
  /// Raises error 7 if the system has no room.
  DibSurface(int width, int height);
  ~DibSurface();
  DibSurface(const DibSurface&) = delete;
  DibSurface& operator=(const DibSurface&) = delete;

  int Width() const { return width_; }
  int Height() const { return height_; }
  HDC Dc() const { return dc_; }
  /// First pixel of a row. What GDI still holds back is not in it before GdiFlush.
  std::uint32_t* Row(int y) { return bits_ + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_); }
  const std::uint32_t* Row(int y) const {
    return bits_ + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
  }

 private:
  int width_;
  int height_;
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ bitmap_before_ = nullptr;
  std::uint32_t* bits_ = nullptr;
};

}  // namespace orvendal
