// Runs scripts and compares what each shows, byte for byte, with the file that says what it should show.
//
//   guion_check [--escribir] FILE.guion FILE.salida ...
//
// The first line of the script may give options: "# opciones: --dialecto jet". After what the script shows on
// its two streams, the expected file has the exit code if it is not 0. The script runs twice, since it has to
// show the same each time. With --escribir the file is written instead.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>

#include "host/script/runner.h"

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

std::string Show(const std::string& script_file) {
  const CommandLine line = ReadCommandLine(OptionsIn(ReadFile(script_file)), Language::kSpanish, {});
  if (line.exit_code) throw std::runtime_error(line.errors);
  std::ostringstream output;
  std::ostringstream errors;
  const int exit_code = RunScriptFile(script_file, line.options, nullptr, output, errors);
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

int Check(const std::string& script_file, const std::string& expected_file, bool write) {
  const std::string shown = Show(script_file);
  if (Show(script_file) != shown) {
    std::cerr << "the second run shows something else\n";
    return 1;
  }
  if (write) {
    std::ofstream(expected_file, std::ios::binary) << shown;
    return 0;
  }
  return Compare(ReadFile(expected_file), shown);
}

}  // namespace

int main(int argument_count, char** arguments) {
  std::vector<std::string> words(arguments + 1, arguments + argument_count);
  const bool write = !words.empty() && words[0] == "--escribir";
  if (write) words.erase(words.begin());
  if (words.empty() || words.size() % 2 != 0) {
    std::cerr << "use: guion_check [--escribir] FILE.guion FILE.salida ...\n";
    return 2;
  }
  int worst = 0;
  for (std::size_t i = 0; i < words.size(); i += 2) {
    int result = 2;
    try {
      result = Check(words[i], words[i + 1], write);
    } catch (const std::exception& error) {
      std::cerr << error.what() << '\n';
    }
    if (result != 0) std::cerr << "in " << words[i] << '\n';
    worst = std::max(worst, result);
  }
  return worst;
}
