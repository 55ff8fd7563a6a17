#include "adapters/win32/win32_fonts.h"

#include <algorithm>
#include <cmath>

namespace orvendal {
namespace {

constexpr double kPointsPerInch = 72.0;

int HeightInPixels(double points, int dpi) {
  return std::max(1, static_cast<int>(std::floor(points * dpi / kPointsPerInch + 0.5)));
}

}  // namespace

Win32Fonts::Win32Fonts() : dc_(CreateCompatibleDC(nullptr)) {}

Win32Fonts::~Win32Fonts() {
  if (dc_ != nullptr) DeleteDC(dc_);
  for (const auto& [key, kept] : kept_) DeleteObject(kept.font);
}

const Win32Fonts::Kept& Win32Fonts::Entry(const FontSpec& spec, int dpi) {
  const int height = HeightInPixels(spec.size, dpi);
  const Key key(spec.name, height, spec.weight, spec.italic);
  const auto found = kept_.find(key);
  if (found != kept_.end()) return found->second;

  LOGFONTW wanted{};
  wanted.lfHeight = -height;
  wanted.lfWeight = spec.weight;
  wanted.lfItalic = spec.italic ? TRUE : FALSE;
  wanted.lfCharSet = DEFAULT_CHARSET;
  const std::wstring name = Wide(spec.name);
  name.copy(wanted.lfFaceName, std::min<std::size_t>(name.size(), LF_FACESIZE - 1));
  Kept kept;
  kept.font = CreateFontIndirectW(&wanted);
  const HGDIOBJ before = SelectObject(dc_, kept.font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc_, &metrics);
  SelectObject(dc_, before);
  kept.measures = {metrics.tmAscent, metrics.tmHeight};
  return kept_.emplace(key, kept).first->second;
}

int Win32Fonts::TextWidth(const FontSpec& spec, int dpi, std::wstring_view text) {
  if (text.empty()) return 0;
  const HGDIOBJ before = SelectObject(dc_, Font(spec, dpi));
  SIZE size{};
  GetTextExtentPoint32W(dc_, text.data(), static_cast<int>(text.size()), &size);
  SelectObject(dc_, before);
  return size.cx;
}

}  // namespace orvendal
