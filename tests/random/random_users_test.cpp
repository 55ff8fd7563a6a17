#include "tests/random/random_run.h"

#include <gtest/gtest.h>

namespace orvendal {
namespace {

constexpr int kEvents = 600;

class RandomUsersTest : public testing::TestWithParam<std::uint64_t> {};

TEST_P(RandomUsersTest, NothingThatAUserDoesLeavesTheScreenOtherThanItHasToBe) {
  const RandomRun run = RunRandomUser(GetParam(), kEvents);
  EXPECT_EQ(run.broken, "") << "seed " << GetParam() << ", event " << run.events << "\n" << run.script;
  EXPECT_GE(run.events, kEvents);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUsersTest, testing::Range(std::uint64_t{1}, std::uint64_t{7}));

TEST(RandomUsersTest, TheyGetToWhereThereIsSomethingToSee) {
  int loads = 0;
  int dialogs = 0;
  int messages = 0;
  int most_lines = 0;
  for (std::uint64_t seed = 101; seed <= 103; ++seed) {
    const RandomRun run = RunRandomUser(seed, kEvents);
    EXPECT_EQ(run.broken, "") << "seed " << seed << ", event " << run.events << "\n" << run.script;
    loads += run.loads;
    dialogs += run.dialogs;
    messages += run.messages;
    most_lines = std::max(most_lines, run.most_lines);
    EXPECT_GT(run.pictures, kEvents / 4);
  }
  EXPECT_GE(loads, 5);
  EXPECT_GE(dialogs, 15);
  EXPECT_GE(messages, 10);
  EXPECT_GE(most_lines, 4);
}

TEST(RandomUsersTest, TheSameSeedDoesTheSame) {
  EXPECT_EQ(RunRandomUser(7, 300).script, RunRandomUser(7, 300).script);
}

}  // namespace
}  // namespace orvendal
