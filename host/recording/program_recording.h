#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "host/host_context.h"
#include "host/options.h"
#include "host/recording/kept_work.h"
#include "host/recording/recorded_library.h"
#include "host/script/screen_state.h"
#include "session/component_state.h"

namespace orvendal {

/// The parts of a program that are recorded; all of them outlive the recording.
struct RecordedProgram {
  const Options& options;
  const Words& words;
  RecordedClock& clock;
  HostContext& context;
  Library& stand_in;
  RecordedLibrary& library;
  ComponentState& state;
  /// While it is told true, errors are not told to the user.
  std::function<void(bool quiet)> be_quiet;
  /// A sentence for whoever looks after the program.
  std::function<void(const std::string& sentence)> tell;
};

/// What a program writes down of its user, and brings back of an earlier run.
class ProgramRecording {
 public:
  explicit ProgramRecording(const RecordedProgram& program);
  ~ProgramRecording();
  ProgramRecording(const ProgramRecording&) = delete;
  ProgramRecording& operator=(const ProgramRecording&) = delete;

  /// The whole session goes into a new file. Raises RuntimeError, in words for the user, if it cannot be
  /// made.
  void RecordInto(const std::string& path);
  /// What is typed is kept in the user's own folder until it is saved; what an earlier run has left there is
  /// asked for. To be called before the screen opens. A folder that cannot be written is told, and that is
  /// all.
  void KeepWork();
  /// The host's call, and what the user wanted back after it. Raises what the call raises.
  void Call(const std::function<void()>& call);

 private:
  std::string Head() const;
  std::string HeadOfKeptWork(FrmOrvendalciales& screen);
  bool AskWhetherToBringBack(const KeptWork& work, const std::string& aside);
  void BringBack();
  void Keep(std::unique_ptr<RecordFile> file, const std::string& path);

  RecordedProgram program_;
  Recorder recorder_;
  std::unique_ptr<RecordFile> session_;
  std::unique_ptr<RecordFile> kept_;
  std::string kept_path_;
  std::optional<WorkPlace> place_;
  std::optional<KeptWork> wanted_back_;
  ScreenValues fresh_;
};

}  // namespace orvendal
