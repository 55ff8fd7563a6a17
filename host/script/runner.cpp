#include "host/script/runner.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <new>

#include "host/script/included_script.h"
#include "host/script/parser.h"
#include "host/text/printed_text.h"

namespace orvendal {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string ErrorSentence(const RuntimeError& error) {
  return "error " + std::to_string(error.Number()) + ": " + error.Description();
}

constexpr const char* kInclude = "incluir";

// A script that is going on, and those that it is including.
class Run {
 public:
  // `file` is empty for a script that has none.
  Run(std::ostream& output, std::ostream& errors, const std::filesystem::path& folder,
      const std::filesystem::path& file)
      : output_(output), errors_(errors), folder_(folder) {
    std::error_code ignored;
    levels_.push_back({"", std::filesystem::canonical(file, ignored)});
  }

  int ToTheEnd(std::istream& script, const Options& options, const SavePicture& save_picture,
               const MakeScriptWindows& make_windows) {
    try {
      ScriptCommands commands(options, output_, save_picture, folder_, make_windows);
      RunLines(script, folder_, commands);
      return 0;
    } catch (const ScriptStop& reason) {
      return Stop(reason.Sentence(), reason.ExitCode());
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
  struct Level {
    std::string name;  // as it was included; "" for the script that was started
    std::filesystem::path file;
    int number = 0;  // of the line that it has come to
  };

  void RunLines(std::istream& script, const std::filesystem::path& folder, ScriptCommands& commands) {
    std::string line;
    while (std::getline(script, line)) {
      if (++levels_.back().number == 1 && line.starts_with(kByteOrderMark))
        line.erase(0, kByteOrderMark.size());
      const std::vector<std::string> words = ParseScriptLine(line);
      if (!words.empty() && words.front() == kInclude) {
        Include(words, folder, commands);
      } else {
        commands.Execute(words);
      }
      // A script does not go on changing the store for somebody who does not see it.
      if (!output_.flush()) throw ScriptStop("no se puede escribir lo que muestra el guion");
    }
    if (script.bad()) throw ScriptStop("el guion no se puede leer más allá de esta línea");
  }

  void Include(const std::vector<std::string>& words, const std::filesystem::path& folder,
               ScriptCommands& commands) {
    if (words.size() != 2) throw ScriptStop("se escribe: incluir FICHERO.guion");
    const std::string& name = words[1];
    const std::filesystem::path file = IncludedScript(name, folder, folder_);
    if (std::any_of(levels_.begin(), levels_.end(), [&](const Level& level) { return level.file == file; })) {
      throw ScriptStop("un guion no puede incluirse a sí mismo, y " + name + " lo haría");
    }
    std::ifstream script(file, std::ios::binary);
    if (!script.is_open()) throw ScriptStop("no se puede leer el guion " + name);
    levels_.push_back({name, file});
    RunLines(script, file.parent_path(), commands);
    levels_.pop_back();  // after an exception it stays, and says where that came from
  }

  int Stop(const std::string& sentence, int exit_code = ScriptStop::kCannotGoOn) {
    output_.flush();
    for (const Level& level : levels_) {
      if (!level.name.empty()) errors_ << PrintedText(level.name) << ", ";
      errors_ << "línea " << level.number << ": ";
    }
    errors_ << PrintedText(sentence) << '\n';
    return exit_code;
  }

  std::ostream& output_;
  std::ostream& errors_;
  const std::filesystem::path& folder_;
  std::vector<Level> levels_;  // from the script that was started on
};

}  // namespace

int RunScript(std::istream& script, const Options& options, const SavePicture& save_picture,
              std::ostream& output, std::ostream& errors, const std::filesystem::path& folder) {
  return Run(output, errors, folder, {}).ToTheEnd(script, options, save_picture, MakeHeadlessWindows);
}

int RunScriptFile(const std::string& path, const Options& options, const SavePicture& save_picture,
                  std::ostream& output, std::ostream& errors, const MakeScriptWindows& make_windows) {
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
  return Run(output, errors, folder, file).ToTheEnd(script, options, save_picture, make_windows);
}

}  // namespace orvendal
