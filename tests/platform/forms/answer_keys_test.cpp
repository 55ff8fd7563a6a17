#include "platform/forms/answer_keys.h"

#include <gtest/gtest.h>

namespace orvendal {
namespace {

class AnswerKeysTest : public testing::Test {
 protected:
  AnswerKeys::Verdict Take(std::optional<char32_t> character, std::uint64_t time) {
    return keys.Take(character, time);
  }
  KeyRun run;
  int beeps = 0;
  AnswerKeys keys{run, [this] { ++beeps; }};
};

TEST_F(AnswerKeysTest, NoCharacterIsAnAnswer) {
  EXPECT_TRUE(Take(U'N', 1000).taken);
  EXPECT_TRUE(Take(U'7', 2000).taken);
  EXPECT_EQ(beeps, 0);
}

TEST_F(AnswerKeysTest, TheEnterOfAHandReachesTheBox) {
  EXPECT_FALSE(Take(std::nullopt, 1000).taken);
  Take(U'a', 2000);
  Take(U'b', 2010);
  EXPECT_FALSE(Take(std::nullopt, 2020).taken);
}

TEST_F(AnswerKeysTest, TheEnterOfAReaderIsDroppedWithOneBeepACode) {
  for (const std::uint64_t code : {1000U, 2000U}) {
    for (std::uint64_t key = 0; key < 13; ++key) EXPECT_TRUE(Take(U'8', code + key * 10).taken);
    EXPECT_TRUE(Take(std::nullopt, code + 130).taken);
  }
  EXPECT_EQ(beeps, 2);
  EXPECT_FALSE(Take(std::nullopt, 3000).taken);
}

TEST_F(AnswerKeysTest, ACodeThatBeganBeforeTheBoxIsTheReadersToo) {
  for (const std::uint64_t time : {970U, 980U, 990U}) run.Add(U'8', time);
  EXPECT_TRUE(Take(std::nullopt, 1000).taken);
  EXPECT_EQ(beeps, 1);
}

TEST_F(AnswerKeysTest, ABlankIsHeldUnlessItComesCloseBehindAnotherKey) {
  EXPECT_TRUE(Take(U' ', 1000).holds_blank);
  EXPECT_FALSE(Take(U'a', 1010).holds_blank);
  EXPECT_FALSE(Take(U' ', 1020).holds_blank);
}

}  // namespace
}  // namespace orvendal
