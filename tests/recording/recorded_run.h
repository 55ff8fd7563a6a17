#pragma once

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "host/recording/recorded_library.h"
#include "host/recording/work_replay.h"
#include "host/script/commands.h"
#include "host/script/screen_state.h"

namespace orvendal::testing_support {

/// A script that runs while somebody records it: the script's hands are the user.
class RecordedRun {
 public:
  /// `store` is the file that it works on. `kept`, if there is one, takes a record that is cut after each
  /// load.
  RecordedRun(Options options, const std::string& store, ScriptSink* kept = nullptr);
  ~RecordedRun();

  /// Runs one line; what no hand can do, or what a dialog needs and has not got, is left out. False for a
  /// line that was left out.
  bool Do(const std::string& line);

  ScriptText& Record() { return record_; }
  ScriptCommands& Commands() { return *commands_; }
  std::shared_ptr<FrmOrvendalciales> Screen() { return commands_->World().Screen(); }
  Recorder& TheRecorder() { return *recorder_; }

  /// What a kept record holds is done again at the screen.
  WorkReplay::Result BringBack(const std::string& script);

  /// Everything that is compared: messages and errors so far, lines, snapshot, cursor, focus, editor, modes.
  std::string Seen();

 private:
  bool CanHaveFocus(const std::string& name);

  Options options_;
  std::ostringstream output_;
  ScriptText record_;
  std::unique_ptr<RecordedClock> clock_;
  std::unique_ptr<Recorder> recorder_;
  std::unique_ptr<ScriptCommands> commands_;
  RecordedLibrary* library_ = nullptr;  // the world's
  ScreenValues fresh_;
};

/// What runs where nobody records, with the same looks.
struct Replayed {
  int exit_code = 0;
  std::string errors;
  std::string seen;
};
Replayed Replay(const std::string& script, const Options& options, const std::string& store);

/// What the screen shows and knows, one thing a line.
std::string SeenOn(ScriptCommands& commands);
/// What the counts, the stock and the journal of a store hold, in short: rows written by a script in full.
std::string StoredIn(const std::string& store);

}  // namespace orvendal::testing_support
