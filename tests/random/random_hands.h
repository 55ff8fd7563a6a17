#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/sample/random.h"
#include "tests/random/input_script.h"
#include "tests/random/screen_watch.h"
#include "tests/random/user_world.h"

namespace orvendal {

/// Somebody at the screen with mouse, keyboard and a bar-code reader, who does what people do and everything
/// else: presses anywhere, drags, turns the wheel, types into whatever has the focus, answers dialogs as it
/// comes.
class RandomHands {
 public:
  /// All outlive the object.
  RandomHands(UserWorld& world, InputScript& script, ScreenWatch& watch, SampleRandom& random);

  /// Goes on until so many events have been sent, looking at the screen after each.
  void Work(int events);
  int Events() const { return events_; }
  /// Things done so far, by name.
  const std::map<std::string, int>& Done() const { return done_; }

 private:
  struct Choice {
    int weight;
    const char* name;
    void (RandomHands::*act)();
  };
  struct KeyName {
    const char* name;
    int code;
  };

  std::shared_ptr<FrmOrvendalciales> Screen() const { return world_.Screen(); }
  void Choose(const std::vector<Choice>& choices);
  // One event: `line` is its line in the script. False once the screen is gone.
  bool Event(const std::string& line, const std::function<void(FrmOrvendalciales& screen)>& send,
             bool moves_only = false);

  // What hands are made of.
  bool Press(Point place, int button, int shift, bool is_double);
  bool Move(Point place, int buttons);
  bool Release(Point place, int button, int shift);
  bool Turn(Point place, double lines);
  bool Key(const KeyName& key, int shift, int milliseconds);
  bool Letter(char32_t letter, int milliseconds);
  bool ClickAt(Point place, bool is_double = false);
  bool ClickOn(const Control& control);
  bool ClickCell(int row, int column, bool is_double);
  bool Enter() { return Key({"Enter", key::kReturn}, 0, Pause()); }
  /// Typed by a reader or by hand; a line break is Enter.
  bool Type(const std::string& text, bool by_reader);
  int Pause() { return random_.Between(80, 900); }
  Point Anywhere(const Control& control);
  Point AnywhereOnForm();
  const KeyName& AnyKey();
  int AnyShift();
  std::string SomeProduct();
  std::string SomeQuantity();
  int Lines() const;
  template <std::size_t count>
  const char* OneOf(const char* const (&texts)[count]) {
    return texts[random_.Below(count)];
  }

  // What they do.
  void CountLine();
  void Scan();
  void TypeAnything();
  void PressKeys();
  void PressAnywhere();
  void PressControl();
  void PressCell();
  void Drag();
  void TurnWheel();
  void HoverAround();
  void Search();
  void Delete();
  void Save();
  void Cancel();
  void ChangeStylist();
  void Supervisor();
  void ChangeDay();
  void Close();
  void Minimise();
  void FunctionKey();
  void Paste();
  void Call();
  void ChangeDisplay();
  void ChangeClock();

  // In dialogs, whose events are no lines of the script.
  void UseDialog(Form& dialog);
  void UseDialogOnce(Form& dialog);
  std::int32_t Answer(std::int32_t style);

  UserWorld& world_;
  InputScript& script_;
  ScreenWatch& watch_;
  SampleRandom& random_;
  std::vector<std::string> products_;
  std::vector<std::string> references_;
  std::vector<std::string> descriptions_;
  std::vector<std::string> branches_;
  std::map<std::string, int> done_;
  int events_ = 0;
  int dialogs_up_ = 0;
};

}  // namespace orvendal
