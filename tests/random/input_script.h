#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orvendal {

/// What a random user did, as a script that does the same: an event a line, and before it the answers that
/// its dialogs were given.
class InputScript {
 public:
  /// An event begins, whose handlers may open dialogs.
  void Begin(const std::string& line) {
    event_ = lines_.size();
    lines_.push_back(line);
  }
  /// A dialog of the event that is going on was answered so.
  void Answer(const std::string& line) {
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(event_), line);
    ++event_;
  }
  std::string Text() const {
    std::string text;
    for (const std::string& line : lines_) text += line + "\n";
    return text;
  }
  const std::vector<std::string>& Lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
  std::size_t event_ = 0;
};

}  // namespace orvendal
