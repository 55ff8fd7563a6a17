#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "form/frm_orvendalciales.h"
#include "host/recording/click_words.h"
#include "host/recording/recorded_clock.h"
#include "host/recording/script_sink.h"
#include "host/script/key_names.h"
#include "platform/forms/input_observer.h"

namespace orvendal {

/// Writes what a user does at the screen as a script, event by event: an event is in the sinks when its last
/// handler is over, its dialogs' answers before it, as a script has to have them. What follows one another
/// and has a name of its own becomes one entry: a press and its release a click, keys a text.
///
/// Invariant: what the sinks hold is a script, whenever the program ends.
class Recorder final : public InputObserver {
 public:
  /// `host` and `clock` outlive it. It looks on from construction to destruction.
  Recorder(WindowHost& host, RecordedClock& clock);
  ~Recorder() override;
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  /// What a script is kept for.
  struct Use {
    /// Everything is shown in its place, so that a replay can be compared: lines after each load and at the
    /// end, messages when they come.
    bool shows = false;
    /// Called after each event that has loaded the lines anew; gives what the script begins with from there
    /// on. Empty for a script that goes on. One that begins anew is empty after the screen was closed, unless
    /// that was to save the lines and did not.
    std::function<std::string(FrmOrvendalciales& screen)> begin_anew;
  };
  /// `sink` outlives the object.
  void WriteTo(ScriptSink& sink, Use use);

  /// The host calls: `line` says how, `call` does it. What it raises comes out when it has been recorded.
  void RecordCall(const std::string& line, const std::function<void()>& call);
  /// A line that something else than the user stands for, such as a change of the store.
  void Note(const std::string& line);
  /// The answer of a dialog to the event that is going on, as the line that prepares it.
  void Answer(const std::string& line);
  /// A message was shown.
  void MessageShown() { message_shown_ = true; }
  /// Tells what screen the host's calls open, which is asked for after each of them.
  void FindScreenBy(std::function<std::shared_ptr<FrmOrvendalciales>()> find) { find_ = std::move(find); }

  void Before(Form& form, const InputEvent& event) override;
  void After(Form& form, const InputEvent& event) override;
  void Pasted(const std::string& text) override;
  void ChosenFromMenu(std::optional<EditCommand> chosen) override;

  /// Events written so far.
  std::uint64_t Events() const { return events_; }

 private:
  struct Sink {
    ScriptSink* sink;
    Use use;
  };
  // What an event is to the script, as it is known before its handlers.
  struct Step {
    enum class Kind { kNothing, kLine, kKey, kCharacter, kPress, kRelease };
    Kind kind = Kind::kNothing;
    std::string line;
    std::optional<NamedClick> click;  // of a press
    bool ends_click = false;          // of a release
    bool is_over = false;             // of a press and a release: no button is held any more
    bool is_second = false;
    Point place;
    int button = 0;
    NamedKey key;
    char32_t character = 0;
    std::optional<int> milliseconds;  // since the key before, if a reader's
  };
  // What the last entries are, for what may be joined to them.
  struct Entry {
    enum class Kind { kClosed, kText, kPress, kClick };
    Kind kind = Kind::kClosed;
    std::string before;  // lines that stand before its own
    bool read_clock = false;
    // kText
    std::string text;
    std::size_t characters = 0;
    bool of_reader = false;
    std::optional<int> milliseconds;
    // kPress and kClick
    std::optional<NamedClick> click;
    bool is_second = false;
    int button = 0;
    Point place;
  };

  void BeginOutermost();
  void EndOutermost(const std::vector<Step>& steps);
  Step StepOf(Form& form, const InputEvent& event);
  Step PressStep(Form& form, const InputEvent& event);
  Step MoveStep(Form& form, const InputEvent& event);
  Step ReleaseStep(Form& form, const InputEvent& event);
  Step KeyStep(Form& form, const InputEvent& event);
  std::optional<int> MillisecondsSinceLastKey();

  bool IsOpen() const;
  void Commit(const Step& step);
  void CommitPress(const Step& step);
  void CommitRelease(const Step& step);
  void CommitCharacter(const Step& step);
  void CommitTyped(const std::string& character, std::optional<int> milliseconds);
  void FlushKey();
  void WriteLine(const std::string& line);
  void WriteText();
  /// The lines that stand before the entry, which are its own from then on.
  std::string TakeBefore();
  void Put(const std::string& entry, std::size_t replaced = 0);
  void Show(const std::string& line);
  void LookAfter();

  WindowHost& host_;
  RecordedClock& clock_;
  std::vector<Sink> sinks_;
  std::vector<Step> going_on_;  // one event inside the other
  std::vector<Step> finished_;  // inside the outermost one, in the order in which they began
  bool in_event_ = false;
  std::string before_;  // answers and the clock of the event that is going on
  bool read_clock_ = false;
  bool message_shown_ = false;
  bool save_failed_ = false;  // of the event that closed the screen
  std::optional<Date> clock_written_;
  std::optional<Step> held_key_;  // its character is still to come
  std::string before_held_key_;
  bool read_clock_for_held_key_ = false;
  int key_down_alone_ = 0;  // a key whose release is written, too
  std::optional<std::uint64_t> last_key_time_;
  Entry last_;
  Entry click_before_;  // the first click of what may become a double one
  std::function<std::shared_ptr<FrmOrvendalciales>()> find_;
  std::weak_ptr<FrmOrvendalciales> screen_;
  bool was_open_ = false;
  std::uint64_t loads_seen_ = 0;
  std::uint64_t events_ = 0;
};

}  // namespace orvendal
