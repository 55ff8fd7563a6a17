#include "platform/forms/timer.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class TimerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    timer.OnTimer = [this] { ++ticks; };
  }

  Stage stage;
  Timer& timer = stage.Add<Timer>("TimerCBarra", {120, 600, 0, 0});
  int ticks = 0;
};

TEST_F(TimerTest, FiresOnceAnIntervalWhileEnabled) {
  timer.Interval(1000);
  stage.host.PassTime(999);
  EXPECT_EQ(ticks, 0);
  stage.host.PassTime(2001);
  EXPECT_EQ(ticks, 3);
  timer.Enabled(false);
  stage.host.PassTime(5000);
  EXPECT_EQ(ticks, 3);
  timer.Enabled(true);
  stage.host.PassTime(1000);
  EXPECT_EQ(ticks, 4);
}

TEST_F(TimerTest, EnablingItAgainBeginsAWholeInterval) {
  timer.Interval(1000);
  stage.host.PassTime(600);
  timer.Enabled(false);
  timer.Enabled(true);
  stage.host.PassTime(600);
  EXPECT_EQ(ticks, 0);
  stage.host.PassTime(400);
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, AnIntervalOfZeroIsNever) {
  stage.host.PassTime(5000);
  EXPECT_EQ(ticks, 0);
  timer.Interval(10);
  timer.Interval(0);
  stage.host.PassTime(5000);
  EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, AnIntervalOutsideItsLimitsIsRefused) {
  timer.Interval(65535);
  for (const int interval : {-1, 65536}) {
    try {
      timer.Interval(interval);
      FAIL() << "no error";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 380);
    }
  }
  EXPECT_EQ(timer.Interval(), 65535);
}

TEST_F(TimerTest, StaysSilentAfterUnloadAndAfterANewLoad) {
  timer.Interval(100);
  stage.form->Unload();
  stage.host.PassTime(500);
  EXPECT_EQ(ticks, 0);
  stage.Show();
  stage.host.PassTime(500);
  EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, GoesWithItsForm) {
  timer.Interval(100);
  stage.form.reset();
  stage.host.PassTime(500);
  EXPECT_EQ(ticks, 0);
}

}  // namespace
}  // namespace orvendal::testing
