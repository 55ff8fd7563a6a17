#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/language.h"
#include "host/options.h"
#include "host/words.h"

namespace orvendal {

/// A command that does something other than open the screen: a word followed by one argument. The options
/// that make sense for it hold before and after it; without one for it, the language is Spanish.
struct Command {
  std::string name;
  std::string_view Words::*argument;  // what the help calls it
  std::string_view Words::*argument_help;
  std::string_view Words::*help;
  std::string_view Words::*exit_codes;
  std::function<int(const Options& options, const std::string& argument)> run;
};

/// The outcome of reading a command line: either there is something to do, or the program ends at once with
/// `exit_code`, having written the texts. With a wrong use of a command, too, `command` is the one meant.
struct CommandLine {
  Options options;
  const Command* command = nullptr;  // nullptr: open the screen
  std::string argument;
  std::optional<int> exit_code;
  std::string output;
  std::string errors;
};

inline constexpr int kExitFailure = 1;
inline constexpr int kExitWrongUse = 2;

/// Options that some programs have no use for.
struct OfferedOptions {
  bool region = true;
  bool display = true;
  bool picture = true;
  bool record = true;
};

/// Reads the words after the program's name. Help and errors are in the language asked for, else in
/// `system_language`; wrong use gives one line and kExitWrongUse. `commands` outlives the result.
CommandLine ReadCommandLine(const std::vector<std::string>& arguments, Language system_language,
                            const std::vector<Command>& commands, OfferedOptions offered = {});

}  // namespace orvendal
