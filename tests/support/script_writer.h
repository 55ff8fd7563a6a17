#pragma once

#include <optional>
#include <sstream>
#include <string>

#include "host/command_line.h"
#include "host/script/commands.h"

namespace orvendal {

/// Writes a script while it carries it out, so that every line that is kept can be done where it stands. What
/// the screen answers helps to choose the next line.
///
/// Invariant: the world that the lines ran in is the one that a run of `Text()` has, up to the same line.
class ScriptWriter {
 public:
  /// `options` outlives the object.
  explicit ScriptWriter(const Options& options)
      : commands_(options, output_, [](Form&, const std::string&) { return false; }, {}) {}

  /// Carries the line out, keeps it and gives what it shows. A line that the screen offers no hold for leaves
  /// no trace and gives nothing. One that ends the script in the middle of its work is kept as the last one.
  std::optional<std::string> Do(const std::string& line);
  /// Keeps a line that is not carried out, since it changes nothing.
  void Add(const std::string& line) { text_ += line + "\n"; }
  /// What a look shows; nothing where there is nothing to see. It is not kept, and changes nothing.
  std::optional<std::string> Ask(const std::string& look);
  /// The same for "CONTROL.PROPIEDAD", the value alone; "" where there is nothing to see.
  std::string Value(const std::string& reference);

  /// No further line would be reached.
  bool HasEnded() const { return ended_; }
  /// Keeps a line that the screen refuses, as the last one, and gives true; a line that it takes is done and
  /// kept like others.
  bool EndWith(const std::string& line);
  const std::string& Text() const { return text_; }

 private:
  enum class Outcome { kDone, kRefused, kEnded };
  Outcome Execute(const std::string& line);
  std::string TakeOutput();

  std::ostringstream output_;
  ScriptCommands commands_;
  std::string text_;
  bool ended_ = false;
};

/// The text as a word of a script.
std::string Quoted(const std::string& text);

}  // namespace orvendal
