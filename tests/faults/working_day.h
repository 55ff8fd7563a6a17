#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/support/form_driver.h"

namespace orvendal {

/// A whole working day at the screen, on a day that holds three lines: a stylist, lines typed, scanned and
/// searched, a quantity put right, saves, a line deleted, supervisor mode with a change of day, a cancelled
/// count, the close.
///
/// The user goes on whatever comes: what the screen does not offer is left out, every question is answered.
class WorkingDay {
 public:
  explicit WorkingDay(Dialect dialect);

  struct Step {
    enum Kind {
      kTypes,    // adds to the lines, or changes one
      kDrops,    // may take lines away, since the user wants it or the screen loads
      kDeletes,  // takes one line away
      kMaySave,  // may write counts, and load
    };
    Kind kind = kTypes;
    std::string name;
    std::function<void()> act;
  };
  const std::vector<Step>& Steps() const { return steps_; }

  /// Runs a step as far as the screen lets it.
  void Do(const Step& step);
  /// Whether somebody was told of an error with this description since last asked: by the host's report, by a
  /// message, or by the call that the host made.
  bool WasTold(const std::string& description);
  /// Descriptions of all errors that were told since last asked.
  std::vector<std::string> TakeTold();

  /// Counts of branch 01, as "code quantity" in the order in which they were stored, by days.
  using Counts = std::map<std::string, std::vector<std::string>>;
  Counts StoredCounts();
  /// "code quantity" of each line of the grid; none without a screen.
  std::vector<std::string> Lines();
  /// Loads the day anew, by whatever way is open, with nothing in hand; then enters a line and saves.
  void StartAfresh();

  FormDriver screen;

 private:
  void Add(Step::Kind kind, const std::string& name, std::function<void()> act) {
    steps_.push_back({kind, name, std::move(act)});
  }
  void Call();

  std::vector<Step> steps_;
  std::vector<std::string> failed_calls_;
};

}  // namespace orvendal
