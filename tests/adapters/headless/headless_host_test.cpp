#include "adapters/headless/headless_host.h"

#include <gtest/gtest.h>

namespace orvendal {
namespace {

class HeadlessHosts : public ::testing::Test {
 protected:
  FixedClock clock{Date(2026, 11, 16)};
  HeadlessHost host{Region::Spanish(), clock};
};

TEST_F(HeadlessHosts, AMessageBoxThatNobodyAnswersIsNoSilentYes) {
  EXPECT_THROW(host.ShowMessage("¿Guardar?", 4, ""), UnansweredDialog);
  EXPECT_TRUE(host.TakesInput(Form(host, "FrmOther"))) << "the box is over";
}

}  // namespace
}  // namespace orvendal
