#include "fuzz/fuzzed_input.h"
#include "platform/base/text.h"

using namespace orvendal;

// Characters of any bytes: none is lost, none is counted twice.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedInput input(bytes, size);
  const std::size_t start = input.Byte() + 1U;
  const std::size_t length = input.Byte();
  const std::string text = input.Rest();

  std::string again;
  std::size_t characters = 0;
  for (std::size_t at = 0; at < text.size(); ++characters) AppendCharacter(again, NextCharacter(text, at));
  Require(again == text, "characters put together are the text");
  Require(Len(text) == characters, "as many are counted");
  const std::size_t rest = characters + 1 > start ? characters + 1 - start : 0;
  Require(Len(Mid(text, start, length)) == std::min(length, rest), "a part has its length");
  Require(Mid(text, 1, start - 1) + Mid(text, start) == text, "two parts are the whole");
  Require(EqualsIgnoringCase(text, ToLower(text)), "case does not count");
  Require(ToLower(ToLower(text)) == ToLower(text), "lower case stays");
  Require(FoldForSearch(FoldForSearch(text)) == FoldForSearch(text), "what is folded stays");
  const std::string shown = Showable(text);
  for (std::size_t at = 0; at < shown.size();) {
    Require(NextCharacter(shown, at) < kStrayByte, "what is shown is UTF-8");
  }
  Require(Len(shown) == characters, "as much is shown");
  return 0;
}
