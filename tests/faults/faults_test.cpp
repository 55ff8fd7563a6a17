#include <algorithm>
#include <cstdlib>

#include "platform/data/ado_error.h"
#include "tests/faults/working_day.h"

namespace orvendal {
namespace {

constexpr const char* kBreakdown = "avería de prueba";

/// Numbers that a provider gives for what can go wrong at any moment.
constexpr std::int32_t kNumbers[] = {ado_error::kUnspecified,      ado_error::kMultipleStep,
                                     ado_error::kTimeout,          ado_error::kEitherBofOrEof,
                                     ado_error::kObjectClosed,     ado_error::kInvalidConnection,
                                     ado_error::kPermissionDenied, ado_error::kDataConversion,
                                     ado_error::kItemNotFound,     error_number::kTypeMismatch};

bool IsBeginningOf(const std::vector<std::string>& part, const std::vector<std::string>& whole) {
  return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

/// One breakdown somewhere in a working day, and what is left after it.
class OneBreakdown : public testing::TestWithParam<Dialect> {
 protected:
  using Plan = std::function<void(WorkingDay& day)>;

  static bool AllNumbers() { return std::getenv("ORVENDAL_ALL_FAULTS") != nullptr; }

  // How often `count` counts in a day without a breakdown.
  int CountsInADay(const std::function<int(WorkingDay& day)>& count) {
    WorkingDay day(GetParam());
    for (const WorkingDay::Step& step : day.Steps()) {
      day.Do(step);
      EXPECT_TRUE(day.screen.host.ReportedErrors().empty()) << step.name;
    }
    return count(day);
  }

  // Lives through a day in which `plan` has put one breakdown. Gives the step in which it was told.
  void Live(const Plan& plan, const std::string& where) {
    SCOPED_TRACE(where);
    WorkingDay day(GetParam());
    plan(day);
    bool told = false;
    for (const WorkingDay::Step& step : day.Steps()) {
      const WorkingDay::Counts stored = day.StoredCounts();
      const std::vector<std::string> lines = day.Lines();
      day.Do(step);
      if (!day.WasTold(kBreakdown)) continue;
      told = true;
      SCOPED_TRACE("while somebody wanted to: " + step.name);
      if (step.kind != WorkingDay::Step::kMaySave) {
        EXPECT_EQ(day.StoredCounts(), stored);
      } else {
        CheckSave(stored, lines, day.StoredCounts());
      }
      if (step.kind == WorkingDay::Step::kTypes) CheckTyped(lines, day.Lines());
      if (!day.screen.HasForm() && step.name != "call" && step.name != "close") ADD_FAILURE() << "no screen";
    }
    EXPECT_TRUE(told) << "nobody was told";
    CheckUsable(day);
  }

  // No line that was there is gone, though one may have been changed by the very step.
  static void CheckTyped(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    ASSERT_GE(after.size(), before.size());
    int changed = 0;
    for (std::size_t i = 0; i < before.size(); ++i) changed += before[i] == after[i] ? 0 : 1;
    EXPECT_LE(changed, 1);
  }

  // A day that was being stored is as it was, or holds the beginning of the lines; other days are as before.
  static void CheckSave(const WorkingDay::Counts& before, const std::vector<std::string>& lines,
                        WorkingDay::Counts after) {
    int touched = 0;
    for (const auto& [day, counts] : before) {
      const std::vector<std::string> left = after[day];
      if (left == counts) continue;
      ++touched;
      EXPECT_TRUE(IsBeginningOf(left, lines))
          << day << ": " << testing::PrintToString(left) << " of " << testing::PrintToString(lines);
    }
    EXPECT_LE(touched, 1);
  }

  static void CheckUsable(WorkingDay& day) {
    day.TakeTold();
    day.StartAfresh();
    EXPECT_EQ(day.screen.host.ReportedErrors().size(), 0U);
    std::vector<std::string> stored = day.StoredCounts()["2026-11-16"];
    EXPECT_TRUE(std::find(stored.begin(), stored.end(), "P30 3") != stored.end())
        << testing::PrintToString(stored);
    std::vector<std::string> lines = day.Lines();
    std::sort(stored.begin(), stored.end());
    std::sort(lines.begin(), lines.end());
    EXPECT_EQ(lines, stored) << "the screen shows what the store holds";
  }
};

TEST_P(OneBreakdown, OfTheStoreIsToldAndLosesNothingWhicheverOperationItHits) {
  const int operations = CountsInADay([](WorkingDay& day) { return day.screen.recordsets.Operations(); });
  ASSERT_GT(operations, 300);
  const std::size_t numbers = std::size(kNumbers);
  for (int nth = 1; nth <= operations; ++nth) {
    for (std::size_t i = 0; i < (AllNumbers() ? numbers : 1); ++i) {
      const std::int32_t number = kNumbers[(static_cast<std::size_t>(nth) + i) % numbers];
      const auto plan = [&](WorkingDay& day) {
        day.screen.recordsets.FailOperation(nth, number, kBreakdown);
      };
      Live(plan, "operation " + std::to_string(nth) + " fails with " + std::to_string(number));
      if (HasFailure()) return;
    }
  }
}

TEST_P(OneBreakdown, OfTheLibraryIsToldAndLosesNothingWhicheverCallItHits) {
  const int calls = CountsInADay([](WorkingDay& day) { return day.screen.library.CallsThatCanFail(); });
  ASSERT_GT(calls, 50);
  for (int nth = 1; nth <= calls; ++nth) {
    const auto plan = [&](WorkingDay& day) {
      day.screen.library.FailCall(nth,
                                  RuntimeError(kNumbers[static_cast<std::size_t>(nth) % 10], kBreakdown));
    };
    Live(plan, "call " + std::to_string(nth) + " of the library fails");
    if (HasFailure()) return;
  }
}

std::string NameOfDialect(const testing::TestParamInfo<Dialect>& info) {
  return info.param == Dialect::kJet ? "Jet" : "SqlServer";
}

INSTANTIATE_TEST_SUITE_P(BothDialects, OneBreakdown, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOfDialect);

}  // namespace
}  // namespace orvendal
