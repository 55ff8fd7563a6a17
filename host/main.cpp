#include <iostream>

#include "host/command_line.h"
#include "host/language.h"
#include "host/program.h"

int main(int argument_count, char** arguments) {
  using namespace orvendal;
  const std::vector<Command> commands;
  const std::vector<std::string> words(arguments + 1, arguments + argument_count);
  const CommandLine line = ReadCommandLine(words, LanguageOfEnvironment(), commands);
  std::cout << line.output;
  std::cerr << line.errors;
  if (line.exit_code) return *line.exit_code;
  if (line.command != nullptr) return line.command->run(line.options, line.argument);
  return RunProgram(line.options, arguments[0]);
}
