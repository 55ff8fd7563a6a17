#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/sample/random.h"
#include "tests/support/prepared_answers.h"
#include "tests/support/script_writer.h"

namespace orvendal {

/// Somebody at the screen who tries everything there is, more often what people do more often, while clock
/// and store change under the screen, and fail.
class RandomUser {
 public:
  /// `script` and `random` outlive the object.
  RandomUser(ScriptWriter& script, SampleRandom& random, bool pictures)
      : script_(script), random_(random), answers_(script, random), pictures_(pictures) {}

  /// Does so many things, one after the other, and looks after each.
  void Work(int steps);

  const std::map<std::string, int>& CarriedOut() const { return carried_out_; }
  int Refused() const { return refused_; }

 private:
  struct Situation {
    bool open = false;
    bool minimised = false;
    bool editing = false;
    bool supervisor = false;
    bool calendar = false;
    int row = 0;
    int column = 0;
    int lines = 0;  // that hold a product
  };
  struct Choice {
    int weight;
    void (RandomUser::*act)();
  };

  void LookAround();
  void Choose(const std::vector<Choice>& choices);
  // One line with the looks after it; false if the screen refused it.
  bool Act(const std::string& line);
  // The same for an action on a control.
  bool Click(const std::string& what) { return Act("clic " + what); }
  bool Key(const std::string& name) { return Act("tecla " + name); }
  bool Type(const std::string& text) { return Act("teclas " + Quoted(text)); }
  template <std::size_t count>
  std::string OneOf(const char* const (&texts)[count]) {
    return texts[random_.Below(count)];
  }
  std::string Number(int least, int most) { return std::to_string(random_.Between(least, most)); }

  // What the user does. In random_user_screen.cpp, but for what happens around the screen.
  void CountLine();
  void OpenEditor();
  void TypeInEditor();
  void TypeQuantity();
  void RepeatProduct();
  void ClickCell();
  void ClickAnywhere();
  void FocusAnywhere();
  void KeyAnywhere();
  void KeyInGrid();
  void KeyInEditor();
  void Search();
  void Delete();
  void Save();
  void Cancel();
  void ChangeStylist();
  void EnterSupervisor();
  void LeaveSupervisor();
  void ChangeDay();
  void KeyInCalendar();
  void Close();
  void Minimise();
  void FunctionKey();
  // What happens around the screen. In random_user_world.cpp.
  void Call();
  void SetStage();
  void MoveClock();
  void FailStore();
  void ChangeStore();
  void BreakStore();
  void Wrong();

  std::string TypedProduct();
  std::string TypedQuantity();
  std::string LineCode();

  ScriptWriter& script_;
  SampleRandom& random_;
  PreparedAnswers answers_;
  bool pictures_;
  int picture_count_ = 0;
  std::string branch_ = "01";
  Situation now_;
  std::map<std::string, int> carried_out_;
  int refused_ = 0;
};

}  // namespace orvendal
