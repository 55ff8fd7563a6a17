#include "host/script/runner.h"

#include <filesystem>
#include <fstream>
#include <new>

#include "host/printed_text.h"
#include "host/script/parser.h"

namespace orvendal {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string ErrorSentence(const RuntimeError& error) {
  return "error " + std::to_string(error.Number()) + ": " + error.Description();
}

// A script that is going on, and the line that it has come to.
class Run {
 public:
  Run(std::istream& script, std::ostream& output, std::ostream& errors)
      : script_(script), output_(output), errors_(errors) {}

  int ToTheEnd(const Options& options, const SavePicture& save_picture, const std::filesystem::path& folder) {
    try {
      ScriptCommands commands(options, output_, save_picture, folder);
      RunLines(commands);
      return 0;
    } catch (const ScriptStop& reason) {
      return Stop(reason.what(), reason.ExitCode());
    } catch (const UnansweredQuestion& question) {
      return Stop(question.what());
    } catch (const StoreUnavailable& reason) {
      return Stop(reason.Description());
    } catch (const RuntimeError& error) {
      return Stop(ErrorSentence(error));
    } catch (const std::bad_alloc&) {
      return Stop("no hay memoria suficiente");
    } catch (const std::logic_error& reason) {  // hands that found no way, a dialog that stayed open
      return Stop(reason.what());
    } catch (const std::exception& error) {
      return Stop(std::string("error inesperado: ") + error.what());
    } catch (...) {
      return Stop("error inesperado");
    }
  }

 private:
  void RunLines(ScriptCommands& commands) {
    std::string line;
    while (std::getline(script_, line)) {
      if (++number_ == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
      commands.Execute(ParseScriptLine(line));
      // A script does not go on changing the store for somebody who does not see it.
      if (!output_.flush()) throw ScriptStop("no se puede escribir lo que muestra el guion");
    }
    if (script_.bad()) throw ScriptStop("el guion no se puede leer más allá de esta línea");
  }

  int Stop(const std::string& sentence, int exit_code = ScriptStop::kCannotGoOn) {
    output_.flush();
    errors_ << "línea " << number_ << ": " << PrintedText(sentence) << '\n';
    return exit_code;
  }

  std::istream& script_;
  std::ostream& output_;
  std::ostream& errors_;
  int number_ = 0;
};

}  // namespace

int RunScript(std::istream& script, const Options& options, const SavePicture& save_picture,
              std::ostream& output, std::ostream& errors, const std::filesystem::path& folder) {
  return Run(script, output, errors).ToTheEnd(options, save_picture, folder);
}

int RunScriptFile(const std::string& path, const Options& options, const SavePicture& save_picture,
                  std::ostream& output, std::ostream& errors) {
  const std::filesystem::path file(path);
  std::error_code error;
  std::ifstream script;
  if (!std::filesystem::is_directory(file, error)) script.open(file, std::ios::binary);
  if (!script.is_open() || (script.peek(), script.bad())) {
    errors << "orvendal: no se puede leer el guion " << PrintedText(path) << '\n';
    return ScriptStop::kCannotGoOn;
  }
  const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
  script.clear();  // an empty script has come to its end already
  return RunScript(script, options, save_picture, output, errors, folder);
}

}  // namespace orvendal
