#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "host/command_line.h"
#include "host/ending/explained_end.h"
#include "host/ending/start_error.h"
#include "host/language.h"
#include "host/program.h"
#include "host/script/parser.h"
#include "host/script/qt_pictures.h"
#include "host/script/runner.h"
#include "host/script/script_options.h"

namespace {

using namespace orvendal;

void WriteError(const std::string& sentence) {
  std::cerr << ErrorLine(sentence);
}

int Run(const std::vector<std::string>& words, const char* name) {
  const auto run_script = [name](const Options& options, const std::string& script) {
    const auto body = [&] { return RunScriptFile(script, options, QtPictures(name), std::cout, std::cerr); };
    return RunExplained(body, WordsOf(options.language), ScriptStop::kCannotGoOn, WriteError);
  };
  const std::vector<Command> commands = {{"guion", &Words::value_file, &Words::help_script_file,
                                          &Words::help_script, &Words::help_exit_codes_of_script,
                                          run_script}};
  CommandLine line = ReadCommandLine(words, LanguageOfEnvironment(), commands);
  if (line.command != nullptr && !line.exit_code) {
    // What was typed counts more than what the script says of itself.
    std::vector<std::string> with_own = OptionsOfScript(line.argument);
    with_own.insert(with_own.end(), words.begin(), words.end());
    line = ReadCommandLine(with_own, LanguageOfEnvironment(), commands);
  }
  std::cout << line.output;
  if (line.command != nullptr) {
    std::cerr << line.errors;  // whoever runs scripts reads them
  } else if (!line.errors.empty()) {
    TellWhyItEnds(line.errors, WordsOf(line.options.language), name, line.exit_code.value_or(kExitFailure));
  }
  if (line.exit_code) return *line.exit_code;
  if (line.command != nullptr) return line.command->run(line.options, line.argument);
  return RunProgram(line.options, name);
}

// What was shown has to have arrived.
int Flushed(int exit_code) {
  if (std::cout.flush() || exit_code != 0) return exit_code;
  WriteError(std::string(WordsOf(LanguageOfEnvironment()).output_lost));
  return kExitFailure;
}

// What gets past the boundary, such as an exception out of a function that must not throw any.
[[noreturn]] void EndExplained() {
  if (std::current_exception()) WriteError(SentenceForException(WordsOf(LanguageOfEnvironment())));
  std::_Exit(kExitFailure);
}

}  // namespace

int main(int argument_count, char** arguments) {
  // A reader that goes away, or a file that must not grow, is an error of writing and no sudden end.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  std::set_terminate(EndExplained);
  const Words& words = WordsOf(LanguageOfEnvironment());
  const auto body = [&] {
    const char* const name = argument_count > 0 ? arguments[0] : "orvendal";
    const std::vector<std::string> typed(arguments + (argument_count > 0 ? 1 : 0),
                                         arguments + argument_count);
    return Flushed(Run(typed, name));
  };
  return RunExplained(body, words, kExitFailure, WriteError);
}
