#include "host/quantity_filter.h"

#include "platform/base/text.h"
#include "platform/forms/keys.h"

namespace orvendal {
namespace {

constexpr std::size_t kMostWholeDigits = 7;
constexpr std::size_t kMostDecimals = 3;

bool IsControlKey(int key_ascii) {
  constexpr int kFirstPrintable = 32;
  constexpr int kDeleteWord = 127;
  return key_ascii < kFirstPrintable || key_ascii == kDeleteWord;
}

std::size_t CountDigits(std::string_view text, std::size_t from) {
  std::size_t at = from;
  while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
  return at - from;
}

std::string WithoutWhiteSpaceAround(const std::string& text) {
  constexpr std::string_view kWhite = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kWhite);
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhite) - first + 1);
}

std::string TextWith(const EditedText& box, std::string_view typed) {
  const auto start = static_cast<std::size_t>(box.sel_start);
  const auto length = static_cast<std::size_t>(box.sel_length);
  return Mid(box.text, 1, start) + std::string(typed) + Mid(box.text, start + length + 1);
}

// The box pastes by itself what it can take as it is; what has to be trimmed is put in for it.
QuantityKey FilterPaste(const EditedText& box, WindowHost& host, bool decimals) {
  const std::string clipboard = host.ClipboardText();
  const std::string trimmed = WithoutWhiteSpaceAround(clipboard);
  if (trimmed.empty() || !IsQuantity(TextWith(box, trimmed), host.UserRegion(), decimals)) return {};
  if (trimmed == clipboard) return {character::kPaste, {}};
  return {0, trimmed};
}

}  // namespace

bool IsQuantity(std::string_view text, const Region& region, bool decimals) {
  const std::size_t whole = CountDigits(text, 0);
  if (whole > kMostWholeDigits) return false;
  if (whole == text.size()) return true;
  if (!decimals || whole == 0 || text[whole] != region.DecimalMark()) return false;
  const std::size_t fraction = CountDigits(text, whole + 1);
  return fraction <= kMostDecimals && whole + 1 + fraction == text.size();
}

QuantityKey FilterQuantityKey(const EditedText& box, int key_ascii, WindowHost& host, bool decimals) {
  if (key_ascii == character::kPaste) return FilterPaste(box, host, decimals);
  if (IsControlKey(key_ascii)) return {key_ascii, {}};
  const char mark = host.UserRegion().DecimalMark();
  const int key = key_ascii == '.' ? mark : key_ascii;
  const bool is_digit = key >= '0' && key <= '9';
  if (!is_digit && key != mark) return {};
  const std::string result = TextWith(box, std::string(1, static_cast<char>(key)));
  return {IsQuantity(result, host.UserRegion(), decimals) ? key : 0, {}};
}

}  // namespace orvendal
