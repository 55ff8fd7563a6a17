#include <iostream>

#include "host/command_line.h"
#include "host/guion_picture.h"
#include "host/guion_runner.h"
#include "host/language.h"
#include "host/program.h"

int main(int argument_count, char** arguments) {
  using namespace orvendal;
  const char* const name = arguments[0];
  const auto run_script = [name](const Options& options, const std::string& script) {
    return RunScriptFile(script, options, QtPictures(name), std::cout, std::cerr);
  };
  const std::vector<Command> commands = {{"guion", "FICHERO", &Words::help_script, run_script}};

  const std::vector<std::string> words(arguments + 1, arguments + argument_count);
  CommandLine line = ReadCommandLine(words, LanguageOfEnvironment(), commands);
  // A script shows the same whatever the user's language.
  if (line.command != nullptr) line = ReadCommandLine(words, Language::kSpanish, commands);
  std::cout << line.output;
  std::cerr << line.errors;
  if (line.exit_code) return *line.exit_code;
  if (line.command != nullptr) return line.command->run(line.options, line.argument);
  return RunProgram(line.options, name);
}
