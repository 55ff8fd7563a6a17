#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace orvendal {

/// Why a script ends before its last line: one sentence for its writer.
class ScriptStop : public std::runtime_error {
 public:
  /// What was expected did not come true.
  static constexpr int kDiffers = 1;
  /// The script asks for what cannot be done.
  static constexpr int kCannotGoOn = 2;

  explicit ScriptStop(const std::string& sentence, int exit_code = kCannotGoOn)
      : std::runtime_error(sentence), sentence_(sentence), exit_code_(exit_code) {}
  /// Whole, where what() ends at a NUL of the script.
  const std::string& Sentence() const { return sentence_; }
  int ExitCode() const { return exit_code_; }

 private:
  std::string sentence_;
  int exit_code_;
};

/// The words of one line: separated by blanks, except inside double quotes, where \" \\ \n \r \t stand for
/// themselves, and inside parentheses, whose blanks are dropped. "#" outside quotes begins a comment. Raises
/// ScriptStop for quotes or parentheses left open, an unknown escape, a text that touches a word.
std::vector<std::string> ParseScriptLine(std::string_view line);

}  // namespace orvendal
