#include "platform/forms/common_host.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "adapters/headless/headless_host.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

class CommonHostTest : public ::testing::Test {
 protected:
  std::vector<std::int32_t> Told() const {
    std::vector<std::int32_t> numbers;
    for (const RuntimeError& error : host.ReportedErrors()) numbers.push_back(error.Number());
    return numbers;
  }

  FixedClock clock{Date(2026, 11, 16)};
  HeadlessHost host{Region::Spanish(), clock};
};

TEST_F(CommonHostTest, AnErrorThatCannotBeToldSilencesNoneAfterIt) {
  host.OnReport = [this](const RuntimeError& error) {
    if (error.Number() != 5) return;
    host.ReportError(RuntimeError(6));
    throw std::logic_error("nobody looks");
  };
  EXPECT_THROW(host.ReportError(RuntimeError(5)), std::logic_error);
  host.ReportError(RuntimeError(13));
  EXPECT_EQ(Told(), (std::vector<std::int32_t>{6, 13}));
}

TEST_F(CommonHostTest, AnErrorThatComesWhileOneIsToldWaitsForItsTurn) {
  std::vector<std::int32_t> begun;
  host.OnReport = [&](const RuntimeError& error) {
    begun.push_back(error.Number());
    if (error.Number() == 5) host.ReportError(RuntimeError(6));
    begun.push_back(-error.Number());
  };
  host.ReportError(RuntimeError(5));
  EXPECT_EQ(begun, (std::vector<std::int32_t>{5, -5, 6, -6}));
  EXPECT_EQ(Told(), (std::vector<std::int32_t>{5, 6}));
}

TEST_F(CommonHostTest, AnAnswerThatFailsLeavesTheDialogBeforeItInItsOwnLoop) {
  const auto outer = std::make_shared<Form>(host, "FrmOuter");
  const auto inner = std::make_shared<Form>(host, "FrmInner");
  host.QueueDialog([&](Form& dialog) {
    EXPECT_THROW(inner->Show(ShowMode::kModal), UnansweredDialog);
    inner->Unload();
    EXPECT_TRUE(host.IsInnermostDialog(dialog));
    dialog.Hide();
  });
  outer->Show(ShowMode::kModal);
  EXPECT_FALSE(outer->Visible());
  EXPECT_EQ(host.WindowOf(*inner), nullptr);
  EXPECT_NE(host.WindowOf(*outer), nullptr);
}

TEST_F(CommonHostTest, WhatAGuardedHandlerRaisesIsReported) {
  host.Guard([] { throw RuntimeError(13); });
  EXPECT_EQ(Told(), std::vector<std::int32_t>{13});
}

TEST_F(CommonHostTest, ATimerRunsOnlyWhileItIsEnabledAndHasAnInterval) {
  const auto form = std::make_shared<Form>(host, "FrmTimer");
  Timer timer(*form, nullptr, "Timer1");
  form->Show();
  int times = 0;
  timer.OnTimer = [&times] { ++times; };
  timer.Interval(10);
  host.PassTime(25);
  EXPECT_EQ(times, 2);
  timer.Interval(0);
  host.PassTime(100);
  timer.Enabled(false);
  timer.Interval(10);
  host.PassTime(100);
  EXPECT_EQ(times, 2);
  timer.Enabled(true);
  host.PassTime(10);
  EXPECT_EQ(times, 3);
}

}  // namespace
}  // namespace orvendal
