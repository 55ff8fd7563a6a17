#include "host/library/quantity_filter.h"

#include "platform/base/text.h"
#include "platform/forms/keys.h"

namespace orvendal {
namespace {

constexpr std::size_t kMostWholeDigits = 7;
constexpr std::size_t kMostDecimals = 3;

/// A text taken apart: "-12,5" has a sign, "12" before the mark and "5" behind it.
struct Parts {
  bool sign = false;
  std::string whole;
  bool mark = false;
  std::string decimals;
  bool is_number = false;  // it consists of these parts; any of them may be missing
};

std::size_t CountDigits(std::string_view text, std::size_t from) {
  std::size_t at = from;
  while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
  return at - from;
}

Parts PartsOf(std::string_view text, const Region& region) {
  Parts parts;
  std::size_t at = 0;
  if (at < text.size() && text[at] == '-') {
    parts.sign = true;
    ++at;
  }
  parts.whole = std::string(text.substr(at, CountDigits(text, at)));
  at += parts.whole.size();
  if (at < text.size() && text[at] == region.DecimalMark()) {
    parts.mark = true;
    ++at;
    parts.decimals = std::string(text.substr(at, CountDigits(text, at)));
    at += parts.decimals.size();
  }
  parts.is_number = at == text.size();
  return parts;
}

bool FitsLimits(const Parts& parts) {
  return parts.whole.size() <= kMostWholeDigits && parts.decimals.size() <= kMostDecimals;
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

// A sign is never typed: it may stay where the box holds one and the selection leaves it alone.
bool KeepsSign(const EditedText& box) {
  return box.sel_start > 0 && !box.text.empty() && box.text.front() == '-';
}

bool IsWhollySelected(const EditedText& box) {
  return box.sel_start == 0 && box.sel_length == static_cast<int>(Len(box.text));
}

// The box pastes by itself what it can take as it is; what has to be trimmed is put in for it.
QuantityKey FilterPaste(const EditedText& box, WindowHost& host, bool decimals) {
  const std::string clipboard = host.PastedText();
  const std::string trimmed = WithoutWhiteSpaceAround(clipboard);
  const bool fits = IsQuantity(TextWith(box, trimmed), host.UserRegion(), decimals, KeepsSign(box));
  if (trimmed.empty() || !fits) return {};
  if (trimmed == clipboard) return {character::kPaste, {}, {}};
  return {0, trimmed, {}};
}

bool IsLetter(int key_ascii) {
  return (key_ascii >= 'A' && key_ascii <= 'Z') || (key_ascii >= 'a' && key_ascii <= 'z');
}

bool IsControlKey(int key_ascii) {
  constexpr int kFirstPrintable = 32;
  constexpr int kDeleteWord = 127;
  return key_ascii < kFirstPrintable || key_ascii == kDeleteWord;
}

}  // namespace

bool IsQuantity(std::string_view text, const Region& region, bool decimals, bool sign) {
  const Parts parts = PartsOf(text, region);
  if (!parts.is_number || !FitsLimits(parts) || (parts.sign && !sign)) return false;
  return !parts.mark || (decimals && !parts.whole.empty());
}

QuantityKey QuantityFilter::Filter(const EditedText& box, int key_ascii, WindowHost& host, bool decimals) {
  const std::uint64_t now = host.InputTime();
  if (key_ascii == character::kEnter && run_.IsReaderAt(now) && box.text == expected_) {
    run_.Add(static_cast<char32_t>(key_ascii), now);
    if (refusing_) return {};
    if (has_letter_) return PutBack(host);
  }
  if (!IsControlKey(key_ascii)) return FilterCharacter(box, key_ascii, host, decimals);
  run_.Add(static_cast<char32_t>(key_ascii), now);
  refusing_ = false;
  if (key_ascii == character::kEnter) return FilterEnter(box, host, decimals);
  if (key_ascii == character::kPaste) return FilterPaste(box, host, decimals);
  return {key_ascii, {}, {}};
}

QuantityKey QuantityFilter::FilterCharacter(const EditedText& box, int key_ascii, WindowHost& host,
                                            bool decimals) {
  const std::uint64_t now = host.InputTime();
  // A box that somebody else wrote to shows something new, however fast the keys come.
  if (!run_.GoesOn(now) || box.text != expected_) run_ = {};
  run_.Add(static_cast<char32_t>(key_ascii), now);
  if (run_.Length() == 1) {
    before_run_ = expected_ = box.text;
    refusing_ = has_letter_ = false;
  }
  if (refusing_) return {};

  const Region& region = host.UserRegion();
  const int key = key_ascii == '.' ? region.DecimalMark() : key_ascii;
  const bool is_digit = key >= '0' && key <= '9';
  if (!is_digit && key != region.DecimalMark()) {
    has_letter_ = has_letter_ || IsLetter(key_ascii);
    return {};
  }
  const std::string result = TextWith(box, std::string(1, static_cast<char>(key)));
  if (IsQuantity(result, region, decimals, KeepsSign(box))) {
    expected_ = result;
    return {key, {}, {}};
  }
  const Parts parts = PartsOf(result, region);
  const bool exceeds = is_digit && parts.is_number && !FitsLimits(parts);
  return exceeds ? PutBack(host) : QuantityKey();
}

QuantityKey QuantityFilter::PutBack(WindowHost& host) {
  host.Beep();
  refusing_ = true;
  expected_ = before_run_;
  return {0, {}, before_run_, true};
}

// What the box got from the store stands as long as it is selected as it was shown, however long it is.
QuantityKey QuantityFilter::FilterEnter(const EditedText& box, WindowHost& host, bool decimals) {
  const Parts parts = PartsOf(box.text, host.UserRegion());
  const bool fits = FitsLimits(parts) && (decimals || !parts.mark);
  if (!parts.is_number || (!fits && !IsWhollySelected(box))) {
    host.Beep();
    return {0, {}, box.text, true};
  }
  if (parts.whole.empty() && parts.decimals.empty()) {
    if (box.text.empty()) return {character::kEnter, {}, {}};
    host.Beep();
    return {0, {}, std::string(), false};
  }
  std::string right = (parts.sign ? "-" : "") + (parts.whole.empty() ? "0" : parts.whole);
  if (!parts.decimals.empty()) right += host.UserRegion().DecimalMark() + parts.decimals;
  if (right == box.text) return {character::kEnter, {}, {}};
  return {character::kEnter, {}, right};
}

}  // namespace orvendal
