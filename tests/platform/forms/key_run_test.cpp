#include "platform/forms/key_run.h"

#include <gtest/gtest.h>

#include "tests/platform/forms/control_stage.h"

namespace orvendal {
namespace {

TEST(KeyRun, IsAReadersFromTheThirdCharacterThatComesCloseBehindTheOthers) {
  KeyRun run;
  run.Add('8', 1000);
  EXPECT_FALSE(run.IsReaderAt(1010));
  run.Add('4', 1049);
  EXPECT_FALSE(run.IsReaderAt(1050));
  run.Add('1', 1098);
  EXPECT_TRUE(run.IsReaderAt(1147));
  EXPECT_FALSE(run.IsReaderAt(1148));
  EXPECT_EQ(run.Text(), "841");
}

TEST(KeyRun, APauseBeginsAnotherRun) {
  KeyRun run;
  for (const std::uint64_t time : {0U, 10U, 60U, 70U}) run.Add('7', time);
  EXPECT_EQ(run.Length(), 2U);
  EXPECT_FALSE(run.IsReaderAt(75));
}

TEST(KeyRun, TheEnterOfACodeBelongsToItAndSoDoesASecondOne) {
  KeyRun run;
  for (const char character : {'E', 'A', 'N'}) run.Add(static_cast<char32_t>(character), 100);
  run.Add('\r', 120);
  EXPECT_TRUE(run.IsReaderAt(160));
  run.Add('\n', 160);
  EXPECT_TRUE(run.IsReaderAt(200));
  EXPECT_EQ(run.Text(), "EAN");
}

TEST(KeyRun, WhatFollowsTheEnterIsAnotherCode) {
  KeyRun run;
  for (const char32_t character : {U'E', U'A', U'N', U'\r', U'\u00f1'}) run.Add(character, 100);
  EXPECT_EQ(run.Length(), 1U);
}

TEST(KeyRun, ALoneEnterIsNobodysButTheHands) {
  KeyRun run;
  run.Add('\r', 100);
  run.Add('\r', 110);
  run.Add('\r', 120);
  run.Add('\r', 130);
  EXPECT_FALSE(run.IsReaderAt(130));
}

TEST(KeyRun, AClockThatRunsBackwardsEndsTheRun) {
  KeyRun run;
  for (int i = 0; i < 5; ++i) run.Add('7', 4294967290U);
  EXPECT_FALSE(run.IsReaderAt(3));
}

TEST(KeyRun, AKeyHeldDownForHoursTakesNoMoreMemoryThanACode) {
  KeyRun run;
  for (std::uint64_t i = 0; i < 100000; ++i) run.Add('7', i * 30);
  EXPECT_EQ(run.Length(), 100000U);
  EXPECT_LT(run.Text().size(), 1000U);
}

TEST(KeyRun, TakesTheCharactersOfEveryFormBeforeAnyHandlerHearsOfThem) {
  testing::Stage stage;
  stage.Show();
  std::vector<std::string> heard;
  stage.form->OnKeyPress = [&](int&) { heard.push_back(stage.host.Keys().Text()); };
  for (const char character : {'E', '4'}) {
    stage.host.InputTime(stage.host.InputTime() + 20);
    stage.form->KeyPress(character, 0);
    stage.form->Character(static_cast<char32_t>(character));
  }
  EXPECT_EQ(heard, (std::vector<std::string>{"E", "E4"}));
}

}  // namespace
}  // namespace orvendal
