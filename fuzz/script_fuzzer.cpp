#include <sstream>

#include "fuzz/fuzzed_input.h"
#include "host/script/parser.h"
#include "host/script/runner.h"

using namespace orvendal;

namespace {

// So that scripts are short: who fuzzes wants many of them.
constexpr std::size_t kLongest = 2000;

}  // namespace

// Whole scripts, with the screen on a store in memory; nothing of them reaches the disk.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size > kLongest) return 0;
  FuzzedInput input(bytes, size);
  Options options;
  if (input.Bool()) options.dialect = Dialect::kJet;
  options.store = ":memory:";
  options.create = true;
  std::istringstream script(input.Rest());
  std::ostringstream output;
  std::ostringstream errors;
  const int exit_code = RunScript(script, options, {}, output, errors);
  Require(exit_code == 0 || exit_code == ScriptStop::kDiffers || exit_code == ScriptStop::kCannotGoOn,
          "exit codes are the documented ones");
  Require((exit_code == 0) == errors.str().empty(), "a script that stops says why");
  return 0;
}
