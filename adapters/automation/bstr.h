#pragma once

#include <string>
#include <string_view>

#include "adapters/automation/com_headers.h"

namespace orvendal {

/// Between the texts of the core and those of Automation. A byte that is not UTF-8 crosses as U+DC80 to
/// U+DCFF, alone, and comes back as itself; any other lone surrogate becomes U+FFFD. A text with characters
/// of value zero in it keeps them; a null BSTR is the empty text.
std::wstring WideText(std::string_view utf8);
std::string Utf8Text(std::wstring_view wide);
std::string TextOfBstr(BSTR text);
/// The caller frees it with SysFreeString. Throws std::bad_alloc.
[[nodiscard]] BSTR MakeBstr(std::string_view utf8);

/// A BSTR of its own, for in-out arguments: the other side may free what stands there and put another.
class BstrCell {
 public:
  BstrCell() = default;
  explicit BstrCell(std::string_view utf8) : text_(MakeBstr(utf8)) {}
  BstrCell(const BstrCell&) = delete;
  BstrCell& operator=(const BstrCell&) = delete;
  ~BstrCell() { SysFreeString(text_); }

  BSTR Get() const { return text_; }
  BSTR* InOut() { return &text_; }
  std::string Text() const { return TextOfBstr(text_); }

 private:
  BSTR text_ = nullptr;
};

}  // namespace orvendal
