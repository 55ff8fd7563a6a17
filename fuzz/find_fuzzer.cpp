#include "adapters/sqlite/find_criteria.h"
#include "fuzz/fuzzed_input.h"
#include "platform/data/ado_error.h"

using namespace orvendal;

// Criteria of Find, against values of every kind.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedInput input(bytes, size);
  const std::string text = input.Line();
  const std::string criteria = input.Rest();
  Succeeds({ado_error::kInvalidArgument}, [&] {
    const sqlite::FindCriteria found(criteria);
    Require(!found.FieldName().empty(), "a criteria names its field");
    for (const Value& value :
         {Value(), Value(0), Value(-12.5), Value(Date(2026, 11, 16)), Value(""), Value(text)}) {
      found.Matches(value);
    }
  });

  // A text in quotes finds that text.
  std::string quoted;
  for (const char character : text) quoted += character == '\'' ? "''" : std::string(1, character);
  Succeeds({ado_error::kInvalidArgument}, [&] {
    Require(sqlite::FindCriteria("Codigo = '" + quoted + "'").Matches(Value(text)),
            "a text is equal to itself");
  });
  return 0;
}
