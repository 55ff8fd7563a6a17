// Runs a script and compares what it shows, byte for byte, with the file that says what it should show.
//
//   guion_check [--escribir] FILE.guion FILE.salida
//
// The first line of the script may give options: "# opciones: --dialecto jet". After what the script shows on
// its two streams, the expected file has the exit code if it is not 0. The script runs twice, since it has to
// show the same each time. With --escribir the file is written instead.

#include <fstream>
#include <iostream>
#include <sstream>

#include "host/guion_runner.h"

namespace {

using namespace orvendal;

constexpr std::string_view kOptionsMark = "# opciones:";

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

std::vector<std::string> OptionsIn(const std::string& script) {
  const std::string first = script.substr(0, script.find('\n'));
  std::vector<std::string> words;
  if (!first.starts_with(kOptionsMark)) return words;
  std::istringstream rest(first.substr(kOptionsMark.size()));
  for (std::string word; rest >> word;) words.push_back(word);
  return words;
}

std::string Show(const std::string& script) {
  const CommandLine line = ReadCommandLine(OptionsIn(script), Language::kSpanish, {});
  if (line.exit_code) throw std::runtime_error(line.errors);
  std::istringstream input(script);
  std::ostringstream output;
  std::ostringstream errors;
  const int exit_code = RunScript(input, line.options, nullptr, output, errors);
  std::string shown = output.str() + errors.str();
  if (exit_code != 0) shown += "código de salida: " + std::to_string(exit_code) + "\n";
  return shown;
}

int Compare(const std::string& expected, const std::string& shown) {
  std::istringstream expected_lines(expected);
  std::istringstream shown_lines(shown);
  for (int number = 1;; ++number) {
    std::string wanted;
    std::string got;
    const bool more_wanted = static_cast<bool>(std::getline(expected_lines, wanted));
    const bool more_got = static_cast<bool>(std::getline(shown_lines, got));
    if (more_wanted == more_got && wanted == got && more_wanted) continue;
    if (!more_wanted && !more_got) return expected == shown ? 0 : 1;
    std::cerr << "line " << number << " of the output\n  expected: " << (more_wanted ? wanted : "(end)")
              << "\n  shown:    " << (more_got ? got : "(end)") << "\nall that was shown:\n"
              << shown;
    return 1;
  }
}

}  // namespace

int main(int argument_count, char** arguments) {
  std::vector<std::string> words(arguments + 1, arguments + argument_count);
  const bool write = !words.empty() && words[0] == "--escribir";
  if (write) words.erase(words.begin());
  if (words.size() != 2) {
    std::cerr << "use: guion_check [--escribir] FILE.guion FILE.salida\n";
    return 2;
  }
  try {
    const std::string script = ReadFile(words[0]);
    const std::string shown = Show(script);
    if (Show(script) != shown) {
      std::cerr << "the second run shows something else\n";
      return 1;
    }
    if (write) {
      std::ofstream(words[1], std::ios::binary) << shown;
      return 0;
    }
    return Compare(ReadFile(words[1]), shown);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 2;
  }
}
