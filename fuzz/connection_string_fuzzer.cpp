#include "fuzz/fuzzed_input.h"
#include "host/windows/store/connection_string.h"

using namespace orvendal;

namespace {

constexpr std::int32_t kBadConnectionString = -2147217805;

}  // namespace

// What a host hands over to open a store.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedInput input(bytes, size);
  const std::string text = input.Rest();
  Succeeds({kBadConnectionString}, [&] { ReadConnectionString(text); });

  std::string quoted;
  for (const char character : text) quoted += character == '"' ? "\"\"" : std::string(1, character);
  const ConnectionSettings settings = ReadConnectionString("provider=x; Data Source = \"" + quoted + "\" ;");
  Require(settings.data_source == text && settings.provider == "x", "a value in quotes is that value");
  return 0;
}
