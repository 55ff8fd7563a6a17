#include "fuzz/fuzzed_input.h"
#include "host/script/parser.h"

using namespace orvendal;

// One line of a script.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedInput input(bytes, size);
  const std::string line = input.Line();
  const std::string text = input.Rest();
  try {
    ParseScriptLine(line);
  } catch (const ScriptStop& stop) {
    Require(stop.ExitCode() == ScriptStop::kCannotGoOn, "a line that cannot be read ends the script");
  }

  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') quoted += '\\';
    quoted += character;
  }
  const auto words = ParseScriptLine("tecla " + quoted + "\"");
  Require(words.size() == 2 && words[1] == text, "a text in quotes is that text");
  return 0;
}
