#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvendal {

/// A part of a help: a title, and below it lines of two columns.
struct HelpSection {
  struct Line {
    std::string name;
    std::string text;
  };
  std::string_view title;
  std::vector<Line> lines;
};

/// What a help says, from its first line to its last.
struct HelpPage {
  std::string_view purpose;
  /// Ways to call the program, each a line of its own after `usage`.
  std::string_view usage;
  std::vector<std::string> calls;
  std::vector<HelpSection> sections;
  std::vector<std::string_view> notes;
};

/// The page as it is written to a terminal, in lines of 80 characters at most; a word that is longer, such as
/// a path, stands on a line of its own. Sections without lines are left out.
std::string HelpText(const HelpPage& page);

}  // namespace orvendal
