#pragma once

#include <deque>
#include <string>

#include "host/sample/random.h"
#include "tests/support/screen_looks.h"
#include "tests/support/script_writer.h"

namespace orvendal {

/// Keeps answers ready for the dialogs to come, so that a script seldom stops at one.
class PreparedAnswers {
 public:
  PreparedAnswers(ScriptWriter& script, SampleRandom& random) : script_(script), random_(random) {}

  /// Prepares what is short: as many answers as one step may use up. `lines` is the number of its Enters.
  void TopUp(int lines);
  /// Takes away what dialogs have used up.
  void Count(const ScreenLook& look);

 private:
  void PrepareEmployee();
  void PrepareProduct();
  void PrepareAnswer();

  ScriptWriter& script_;
  SampleRandom& random_;
  int employees_ = 0;
  int products_ = 0;
  std::deque<std::string> answers_;
};

/// A code that a product of the store has, or "" if there is none any more.
std::string SomeProductCode(ScriptWriter& script, SampleRandom& random);
/// The first column of a row that is chosen among those of a statement; "" if there is none.
std::string SomeRow(ScriptWriter& script, SampleRandom& random, const std::string& columns,
                    const std::string& from);

}  // namespace orvendal
