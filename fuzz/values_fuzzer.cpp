#include "fuzz/fuzzed_input.h"

using namespace orvendal;

// Numbers and dates out of texts, and back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedInput input(bytes, size);
  const Region& region = input.AnyRegion();
  const std::string mask = input.Line();
  const std::string text = input.Rest();

  if (const auto number = region.ParseNumber(text)) {
    Succeeds({error_number::kOverflow}, [&] {
      const std::string written = region.ToText(*number);
      const auto again = region.ParseNumber(written);
      Require(again && region.ToText(*again) == written, "a number that is written reads as itself");
    });
  }
  if (const auto date = region.ParseDate(text)) {
    Require(region.ParseDate(region.ToText(*date)) == date || date->Year() < 1930 || date->Year() > 2029,
            "a date that is written reads as itself");
    region.Format(*date, mask);
  }
  Succeeds({error_number::kTypeMismatch, error_number::kOverflow}, [&] { region.ToLong(Value(text)); });
  Succeeds({error_number::kTypeMismatch, error_number::kInvalidProcedureCall},
           [&] { region.ToDate(Value(text)); });
  region.Format(text, mask);
  return 0;
}
