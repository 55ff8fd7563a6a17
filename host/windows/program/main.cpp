#include <windows.h>

#include <shellapi.h>

#include "adapters/win32/windows_api.h"
#include "host/command_line.h"
#include "host/windows/program/sample_program.h"
#include "host/windows/user_language.h"

namespace {

std::vector<std::string> WordsOfCommandLine() {
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int index = 1; index < count; ++index) arguments.push_back(orvendal::Utf8(words[index]));
  LocalFree(words);
  return arguments;
}

/// From here on a library that is asked for by its name alone comes from the system's own folder. Those that
/// the program stands on are beside it, and its manifest says so. Systems without this search as they always
/// did.
void TakeLibrariesOfSystemOnly() {
  const auto set_folders =
      orvendal::SystemFunction<BOOL(WINAPI*)(DWORD)>(L"kernel32.dll", "SetDefaultDllDirectories");
  if (set_folders) set_folders(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*line*/, int /*show*/) {
  using namespace orvendal;
  TakeLibrariesOfSystemOnly();
  // What the system knows of the user, and what belongs to a program without windows, is not asked for here.
  const OfferedOptions offered{.region = false, .display = false, .picture = false, .record = false};
  const CommandLine line = ReadCommandLine(WordsOfCommandLine(), LanguageOfUser(), {}, offered);
  if (!line.output.empty()) ShowText(line.output, MB_ICONINFORMATION);
  if (!line.errors.empty()) ShowText(line.errors, MB_ICONERROR);
  return line.exit_code ? *line.exit_code : RunSampleProgram(line.options);
}
