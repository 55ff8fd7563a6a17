#include "adapters/win32/dib_surface.h"

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {
constexpr std::int32_t kOutOfMemory = 7;
}

DibSurface::DibSurface(int width, int height) : width_(width), height_(height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  dc_ = CreateCompatibleDC(nullptr);
  if (dc_ != nullptr) bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap_ == nullptr) {
    if (dc_ != nullptr) DeleteDC(dc_);
    throw RuntimeError(kOutOfMemory, "Out of memory");
  }
  bits_ = static_cast<std::uint32_t*>(bits);
  bitmap_before_ = SelectObject(dc_, bitmap_);
}

DibSurface::~DibSurface() {
  SelectObject(dc_, bitmap_before_);
  DeleteObject(bitmap_);
  DeleteDC(dc_);
}

}  // namespace orvendal
