#include "tests/scripts/check_scripts.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>

#include "host/command_line.h"
#include "host/script/runner.h"

namespace orvendal {
namespace {

constexpr std::string_view kOptionsMark = "# opciones:";

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

std::vector<std::string> WordsIn(const std::string& text) {
  std::istringstream rest(text);
  std::vector<std::string> words;
  for (std::string word; rest >> word;) words.push_back(word);
  return words;
}

std::string OptionsIn(const std::string& script) {
  const std::string first = script.substr(0, script.find('\n'));
  return first.starts_with(kOptionsMark) ? first.substr(kOptionsMark.size()) : std::string();
}

struct Settings {
  bool write = false;
  bool once = false;
  std::string more_options;
  const MakeScriptWindows& make_windows;
};

std::string Show(const std::string& script_file, const Settings& settings) {
  const std::string options = OptionsIn(ReadFile(script_file)) + " " + settings.more_options;
  const CommandLine line = ReadCommandLine(WordsIn(options), Language::kSpanish, {});
  if (line.exit_code) throw std::runtime_error(line.errors);
  std::ostringstream output;
  std::ostringstream errors;
  const int exit_code =
      RunScriptFile(script_file, line.options, nullptr, output, errors, settings.make_windows);
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

int Check(const std::string& script_file, const std::string& expected_file, const Settings& settings) {
  const std::string shown = Show(script_file, settings);
  if (!settings.once && Show(script_file, settings) != shown) {
    std::cerr << "the second run shows something else\n";
    return 1;
  }
  if (settings.write) {
    std::ofstream(expected_file, std::ios::binary) << shown;
    return 0;
  }
  return Compare(ReadFile(expected_file), shown);
}

}  // namespace

int CheckScripts(std::vector<std::string> words, const MakeScriptWindows& make_windows) {
  Settings settings{false, false, "", make_windows};
  if (!words.empty() && words[0] == "--write") {
    settings.write = true;
    words.erase(words.begin());
  } else if (!words.empty() && words[0] == "--once") {
    settings.once = true;
    words.erase(words.begin());
  }
  if (words.size() > 1 && words[0] == "--with") {
    settings.more_options = words[1];
    words.erase(words.begin(), words.begin() + 2);
  }
  if (words.empty() || words.size() % 2 != 0) {
    std::cerr << "use: script_check [--write | --once] [--with OPTIONS] FILE.guion FILE.salida ...\n";
    return 2;
  }
  int worst = 0;
  for (std::size_t i = 0; i < words.size(); i += 2) {
    int result = 2;
    try {
      result = Check(words[i], words[i + 1], settings);
    } catch (const std::exception& error) {
      std::cerr << error.what() << '\n';
    }
    if (result != 0) std::cerr << "in " << words[i] << '\n';
    worst = std::max(worst, result);
  }
  return worst;
}

}  // namespace orvendal
