#include "adapters/win32/win32_fonts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace orvendal {
namespace {

constexpr double kPointsPerInch = 72.0;
constexpr LONG kLightestBold = 600;

int HeightInPixels(double points, int dpi) {
  return std::max(1, static_cast<int>(std::floor(points * dpi / kPointsPerInch + 0.5)));
}

// A family that not every system has, and what may stand in for it, the likest first; the system chooses
// among those of the same sort if it has none of them.
struct StandIns {
  const wchar_t* name;
  BYTE sort;
  std::array<const wchar_t*, 5> others;
};
constexpr StandIns kStandIns[] = {
    {L"Bookman Old Style",
     VARIABLE_PITCH | FF_ROMAN,
     {L"URW Bookman", L"Bookman URW", L"TeX Gyre Bonum", L"Century Schoolbook", L"Georgia"}},
    {L"MS Sans Serif",
     VARIABLE_PITCH | FF_SWISS,
     {L"Microsoft Sans Serif", L"Arial", L"Liberation Sans", L"Nimbus Sans", L"Tahoma"}},
};

int CALLBACK NoteFace(const LOGFONTW* /*face*/, const TEXTMETRICW* /*metrics*/, DWORD /*kind*/,
                      LPARAM parameter) noexcept {
  *reinterpret_cast<bool*>(parameter) = true;
  return 0;
}

void TakeFamily(LOGFONTW& wanted, std::wstring_view name) {
  const std::size_t length = name.copy(wanted.lfFaceName, LF_FACESIZE - 1);
  wanted.lfFaceName[length] = L'\0';
}

bool IsInstalled(HDC dc, const wchar_t* name) {
  LOGFONTW family{};
  family.lfCharSet = DEFAULT_CHARSET;
  TakeFamily(family, name);
  bool found = false;
  EnumFontFamiliesExW(dc, &family, NoteFace, reinterpret_cast<LPARAM>(&found), 0);
  return found;
}

void ReplaceMissingFamily(HDC dc, LOGFONTW& wanted) {
  for (const StandIns& family : kStandIns) {
    if (lstrcmpiW(family.name, wanted.lfFaceName) != 0) continue;
    wanted.lfPitchAndFamily = family.sort;
    if (IsInstalled(dc, family.name)) return;
    const auto other = std::find_if(family.others.begin(), family.others.end(),
                                    [&](const wchar_t* name) { return IsInstalled(dc, name); });
    if (other != family.others.end()) TakeFamily(wanted, *other);
    return;
  }
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
  TakeFamily(wanted, Wide(spec.name));
  ReplaceMissingFamily(dc_, wanted);
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

// Smoothing may touch one pixel more than the outline that is asked for here.
RECT Win32Fonts::TextInk(const FontSpec& spec, int dpi, std::wstring_view text) {
  constexpr int kSmoothing = 1;
  constexpr MAT2 kUpright = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
  const int base = LineMeasures(spec, dpi).ascent;
  const HGDIOBJ before = SelectObject(dc_, Font(spec, dpi));
  RECT ink{0, base, 0, base};
  bool any = false;
  int x = 0;
  for (const wchar_t letter : text) {
    GLYPHMETRICS glyph{};
    if (GetGlyphOutlineW(dc_, letter, GGO_METRICS, &glyph, 0, nullptr, &kUpright) == GDI_ERROR) {
      const int width = TextWidth(spec, dpi, {&letter, 1});
      x += width;
      continue;
    }
    if (letter != L' ') {
      const RECT touched{x + glyph.gmptGlyphOrigin.x, base - glyph.gmptGlyphOrigin.y,
                         x + glyph.gmptGlyphOrigin.x + static_cast<LONG>(glyph.gmBlackBoxX),
                         base - glyph.gmptGlyphOrigin.y + static_cast<LONG>(glyph.gmBlackBoxY)};
      ink = any ? RECT{std::min(ink.left, touched.left), std::min(ink.top, touched.top),
                       std::max(ink.right, touched.right), std::max(ink.bottom, touched.bottom)}
                : touched;
      any = true;
    }
    x += glyph.gmCellIncX;
  }
  SelectObject(dc_, before);
  if (any) ink.right += kSmoothing;
  return ink;
}

}  // namespace orvendal
