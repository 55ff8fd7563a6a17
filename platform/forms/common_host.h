#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/window_host.h"

namespace orvendal {

class CommonWindow;

/// Options of a host, the same on every desktop.
struct CommonHostOptions {
  /// Title of windows and message boxes that have none.
  std::string application_title;
  /// The description of an error as the user is told it; the error's own without it.
  std::function<std::string(const RuntimeError&)> describe_error;
  /// Told of errors in place of the message box.
  std::function<void(const RuntimeError&)> on_error;
};

/// What the hosts of all systems do alike: errors are told one after the other, message boxes and modal forms
/// shut the rest out, timers run while they may, handlers are guarded. An adapter adds what only its system
/// can do, and its windows are CommonWindows.
///
/// Invariants: `windows_` holds the windows of the loaded forms in order of making; `modal_loops_` those of
/// the modal forms that are up, the innermost last; `reporting_` exactly while an error is being told.
class CommonHost : public WindowHost {
 public:
  explicit CommonHost(CommonHostOptions options = {}) : options_(std::move(options)) {}

  /// Runs the loop of `form`'s window, if that is shown, until it is hidden or gone.
  void RunModal(Form& form) final;
  void TimerChanged(Timer& timer, bool alive) final;
  /// Tells the user. An error that comes meanwhile waits for its turn. What goes wrong in the telling ends in
  /// the log, and the next error is told all the same.
  void ReportError(const RuntimeError& error) final;

  /// A message box of the user's; `style` and answer are the platform's numbers. An empty title is the
  /// application's. No form takes input meanwhile.
  int ShowMessage(std::string_view text, int style, std::string_view title);

  bool HasWindows() const { return !windows_.empty(); }

  /// Runs `action`, which is the form's, and reports what it throws.
  template <typename Action>
  void Guard(const Action& action) noexcept {
    GuardQuietly("An event", [&] {
      try {
        action();
      } catch (...) {
        ReportCaught();
      }
    });
  }
  /// The same where no dialog can come up: the error goes to the log, with `what` it ended.
  template <typename Action>
  void GuardQuietly(const char* what, const Action& action) noexcept {
    try {
      action();
    } catch (...) {
      LogCaught(what);
    }
  }

 protected:
  /// The loop of a modal form that is up.
  class ModalLoop {
   public:
    explicit ModalLoop(const CommonWindow& window) : window_(window) {}
    virtual ~ModalLoop() = default;
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;

    /// Lets the system's events through until HasEnded, or until the program quits.
    virtual void Run(Form& form) = 0;
    bool HasEnded() const { return ended_; }

   protected:
    /// The window is about to be hidden or to go: Run is to return. `inner` is the next loop inside it that
    /// goes on, nullptr without one.
    virtual void End(ModalLoop* inner) = 0;

   private:
    friend class CommonHost;
    const CommonWindow& window_;
    bool ended_ = false;
  };

  // What only the system can do.
  virtual std::unique_ptr<ModalLoop> MakeModalLoop(const CommonWindow& window) = 0;
  /// Shows a box and waits for its answer.
  virtual int RunMessageBox(const std::string& text, int style, const std::string& title) = 0;
  /// Runs a timer anew from now on. Each time it elapses, Form::TimerElapsed is to be called.
  virtual void StartTimer(Timer& timer, int milliseconds) = 0;
  virtual void StopTimer(Timer& timer) = 0;
  /// A line for those who look after the program. Called while the exception is being handled.
  virtual void Log(const char* what_ended, const char* how) = 0;

  /// Tells one error; the next one waits meanwhile.
  virtual void TellError(const RuntimeError& error);
  virtual std::string ErrorText(std::int32_t number, const std::string& description) const;
  /// A modal form, a message box or a menu is over.
  virtual void DialogOver() {}
  virtual void LastWindowGone() {}

  const std::string& ApplicationTitle() const { return options_.application_title; }
  const std::vector<CommonWindow*>& Windows() const { return windows_; }
  /// The window of a loaded form; nullptr without one.
  CommonWindow* WindowOf(const Form& form) const;
  /// Before a modal form's window is hidden or goes: its loop is over. Does nothing for any other.
  void EndModal(const CommonWindow& window);

 private:
  friend class CommonWindow;
  void ReportCaught();
  void LogCaught(const char* what);

  CommonHostOptions options_;
  std::vector<CommonWindow*> windows_;
  std::vector<ModalLoop*> modal_loops_;
  std::deque<RuntimeError> errors_to_report_;
  bool reporting_ = false;
};

}  // namespace orvendal
