#include <algorithm>

#include "adapters/headless/headless_host.h"
#include "fuzz/fuzzed_input.h"
#include "host/library/quantity_filter.h"
#include "platform/base/text.h"
#include "platform/forms/keys.h"

using namespace orvendal;

namespace {

constexpr std::size_t kMostDigits = 7;

std::size_t Digits(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }));
}

/// A box as the screen's editor: it takes what the filter lets through.
struct Box {
  EditedText edited;

  void Replace(const std::string& by) {
    const auto start = static_cast<std::size_t>(edited.sel_start);
    const auto length = static_cast<std::size_t>(edited.sel_length);
    edited.text = Mid(edited.text, 1, start) + by + Mid(edited.text, start + length + 1);
    edited.sel_start += static_cast<int>(Len(by));
    edited.sel_length = 0;
  }
  void Show(const std::string& text, bool select_all) {
    edited = {text, 0, select_all ? static_cast<int>(Len(text)) : 0};
  }
  void Delete() {
    if (edited.sel_length == 0 && edited.sel_start < static_cast<int>(Len(edited.text)))
      edited.sel_length = 1;
    Replace("");
  }
  void Select(int start, int length) {
    const int characters = static_cast<int>(Len(edited.text));
    edited.sel_start = std::min(start, characters);
    edited.sel_length = std::min(length, characters - edited.sel_start);
  }
};

void Press(Box& box, int key, QuantityFilter& filter, WindowHost& host, bool decimals) {
  const QuantityKey answer = filter.Filter(box.edited, key, host, decimals);
  if (answer.shown) box.Show(*answer.shown, answer.select_all);
  if (answer.instead) box.Replace(*answer.instead);
  if (answer.key >= ' ' && answer.key != 127) box.Replace(std::string(1, static_cast<char>(answer.key)));
  if (answer.key != character::kEnter) return;
  Require(IsQuantity(box.edited.text, host.UserRegion(), decimals, true), "Enter gives a quantity");
  Require(box.edited.text.empty() || Digits(box.edited.text) > 0, "with a digit, or nothing");
}

}  // namespace

// Keys into a box for quantities, by hand and by a reader, and what the box does by itself between them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedInput input(bytes, size);
  const Region& region = input.AnyRegion();
  const bool decimals = input.Bool();
  FixedClock clock{Date(2026, 11, 16)};
  HeadlessHost host(region, clock);
  QuantityFilter filter;
  Box box;
  while (!input.IsEmpty()) {
    const std::uint8_t what = input.Byte();
    const int key = input.Byte() % 128;
    const std::string before = box.edited.text;
    switch (what % 8) {
      case 0:
        box.Delete();
        break;
      case 1:
        box.Select(key % 16, what / 16);
        break;
      case 2:
        host.ClipboardText(input.Line());
        Press(box, character::kPaste, filter, host, decimals);
        break;
      case 3:
        Press(box, character::kEnter, filter, host, decimals);
        break;
      default:
        host.PassTime(what / 8 * 5);
        Press(box, "0123456789,.-a"[key % 14], filter, host, decimals);
    }
    Require(Digits(box.edited.text) <= kMostDigits + 3, "no quantity is longer");
  }
  return 0;
}
