#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "host/script/script_actions.h"
#include "host/script/world.h"

namespace orvendal {

/// Paints a loaded form into a PNG file; false if it cannot be written.
using SavePicture = std::function<bool(Form& form, const std::string& path)>;

/// The commands of a script, on a world of their own.
class ScriptCommands {
 public:
  /// `options` and `output` outlive the object. An empty `save_picture` refuses pictures; `folder` is the
  /// script's own, empty for none.
  ScriptCommands(const Options& options, std::ostream& output, SavePicture save_picture,
                 std::filesystem::path folder, const MakeScriptWindows& make_windows = MakeHeadlessWindows,
                 const WrapScriptLibrary& wrap_library = {});

  /// Runs one line's words; none do nothing. Raises ScriptStop, and what comes out of a dialog that nobody
  /// answers.
  void Execute(const std::vector<std::string>& words);

  ScriptWorld& World() { return world_; }

 private:
  using Words = std::vector<std::string>;  // without the command
  struct Command {
    const char* name;
    const char* usage;
    std::size_t least;
    std::size_t most;
    void (ScriptCommands::*run)(const Words& words);
  };
  static const std::vector<Command>& Commands();

  void SetClock(const Words& words);
  void SetDisplay(const Words& words);
  void SetBase(const Words& words);
  void RunSql(const Words& words);
  void Call(const Words& words);
  void QueueEmployee(const Words& words);
  void QueueProduct(const Words& words);
  void QueueAnswer(const Words& words);
  void QueuePanel(const Words& words);
  void QueueSession(const Words& words);
  void Fail(const Words& words);
  void Show(const Words& words);
  void Expect(const Words& words);
  void TakePicture(const Words& words);

  std::shared_ptr<FrmOrvendalciales> Screen() const;
  void CheckNoScreen(const char* command) const;
  void Print(const std::string& line) { output_ << line << '\n'; }
  void PrintError(const RuntimeError& error);
  void PrintMessages();
  void PrintStatements();

  std::ostream& output_;
  SavePicture save_picture_;
  std::filesystem::path folder_;
  ScriptDesktop desktop_;
  ScriptWorld world_;
  ScriptActions actions_{[this] { return Screen(); }, world_.windows->Input(), desktop_};
};

}  // namespace orvendal
