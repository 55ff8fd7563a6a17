#include "host/guion_runner.h"

#include <filesystem>
#include <fstream>

#include "host/guion_parser.h"

namespace orvendal {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

int RunScript(std::istream& script, const Options& options, const SavePicture& save_picture,
              std::ostream& output, std::ostream& errors) {
  ScriptCommands commands(options, output, save_picture);
  int number = 0;
  const auto stop = [&](const std::string& sentence, int exit_code) {
    output.flush();
    errors << "línea " << number << ": " << sentence << '\n';
    return exit_code;
  };
  try {
    std::string line;
    while (std::getline(script, line)) {
      if (++number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
      commands.Execute(ParseScriptLine(line));
    }
  } catch (const ScriptStop& reason) {
    return stop(reason.what(), reason.ExitCode());
  } catch (const UnansweredQuestion& question) {
    return stop(question.what(), ScriptStop::kCannotGoOn);
  } catch (const StoreUnavailable& reason) {
    return stop(reason.Description(), ScriptStop::kCannotGoOn);
  } catch (const std::logic_error& reason) {  // hands that found no way, a dialog that stayed open
    return stop(reason.what(), ScriptStop::kCannotGoOn);
  }
  output.flush();
  return 0;
}

int RunScriptFile(const std::string& path, const Options& options, const SavePicture& save_picture,
                  std::ostream& output, std::ostream& errors) {
  std::ifstream script(path, std::ios::binary);
  if (!script || std::filesystem::is_directory(path)) {
    errors << "orvendal: no se puede leer el guion " << path << '\n';
    return ScriptStop::kCannotGoOn;
  }
  return RunScript(script, options, save_picture, output, errors);
}

}  // namespace orvendal
