#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/script/hands.h"
#include "platform/forms/input_observer.h"

namespace orvendal {

/// What scripts put in the place of the desktop: the text that a paste brings, and what is chosen from the
/// menus of text boxes, in the order in which they come up; a menu beyond them is closed.
class ScriptDesktop final : public InputReplay {
 public:
  void Clipboard(const std::string& text) { clipboard_ = text; }
  void QueueMenu(std::optional<EditCommand> choice) { choices_.push_back(choice); }

  std::optional<std::string> TextToPaste() override { return clipboard_; }
  std::optional<EditCommand> ChoiceFromMenu() override;

 private:
  std::optional<std::string> clipboard_;
  std::deque<std::optional<EditCommand>> choices_;
};

/// The commands of a script that a person carries out with mouse and keyboard.
class ScriptActions {
 public:
  /// `screen` gives the screen, or raises ScriptStop if it is not open. `input` and `desktop` outlive the
  /// object.
  ScriptActions(std::function<std::shared_ptr<FrmOrvendalciales>()> screen, FormInput& input,
                ScriptDesktop& desktop)
      : screen_(std::move(screen)), input_(input), desktop_(desktop) {}

  /// False, with nothing done, if the line is another command. Raises ScriptStop.
  bool Execute(const std::vector<std::string>& words);

 private:
  using Words = std::vector<std::string>;  // without the command
  struct Action {
    const char* name;
    const char* usage;
    std::size_t least;
    std::size_t most;
    void (ScriptActions::*run)(const Words& words);
  };
  static const std::vector<Action>& Actions();

  void Click(const Words& words);
  void DoubleClick(const Words& words);
  void ClickDay(const Words& words);
  void Type(const Words& words);
  void Write(const Words& words);
  void Key(const Words& words);
  void Focus(const Words& words);
  void UseMouse(const Words& words);
  void TurnWheel(const Words& words);
  void KeyDown(const Words& words);
  void KeyUp(const Words& words);
  void Close(const Words& words);
  void ChangeWindow(const Words& words);
  void PutOnClipboard(const Words& words);
  void QueueMenu(const Words& words);

  void ClickPlace(const Words& words, ScriptHands::Clicks clicks);
  void UseHands(const std::function<void(ScriptHands& hands)>& act);

  std::function<std::shared_ptr<FrmOrvendalciales>()> screen_;
  FormInput& input_;
  ScriptDesktop& desktop_;
};

/// The line's command among `usage`s that take so many words; raises ScriptStop with the usage otherwise.
void CheckWords(const std::vector<std::string>& words, std::size_t least, std::size_t most,
                const char* usage);

}  // namespace orvendal
