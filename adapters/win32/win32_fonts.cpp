#include "adapters/win32/win32_fonts.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvendal {
namespace {

constexpr double kPointsPerInch = 72.0;
constexpr LONG kLightestBold = 600;

int HeightInPixels(double points, int dpi) {
  return std::max(1, static_cast<int>(std::floor(points * dpi / kPointsPerInch + 0.5)));
}

struct BoldSearch {
  bool italic = false;
  bool has_bold = false;
  LONG half_bold_weight = 0;
};

int CALLBACK LookAtFace(const LOGFONTW* face, const TEXTMETRICW* /*metrics*/, DWORD /*kind*/,
                        LPARAM parameter) noexcept {
  auto& search = *reinterpret_cast<BoldSearch*>(parameter);
  if ((face->lfItalic != 0) != search.italic) return 1;
  const std::wstring_view style = reinterpret_cast<const ENUMLOGFONTEXW*>(face)->elfStyle;
  if (face->lfWeight >= kLightestBold) {
    search.has_bold = true;
  } else if (style.find(L"Demi") != std::wstring_view::npos ||
             style.find(L"Semi") != std::wstring_view::npos) {
    search.half_bold_weight = face->lfWeight;
  }
  return 1;
}

// Some families have a half-bold cut for their heaviest and call it normal: asked for something heavier, the
// system would thicken their light cut.
void PreferOwnBold(HDC dc, LOGFONTW& wanted) {
  if (wanted.lfWeight < kLightestBold) return;
  BoldSearch search;
  search.italic = wanted.lfItalic != FALSE;
  LOGFONTW family = wanted;
  EnumFontFamiliesExW(dc, &family, LookAtFace, reinterpret_cast<LPARAM>(&search), 0);
  if (!search.has_bold && search.half_bold_weight > 0) wanted.lfWeight = search.half_bold_weight;
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
  PreferOwnBold(dc_, wanted);
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
