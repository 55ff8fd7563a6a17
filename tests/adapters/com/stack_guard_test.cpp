#include <gtest/gtest.h>

#include <cstdint>

extern "C" std::uintptr_t __stack_chk_guard;

namespace orvendal {
namespace {

TEST(StackGuard, IsANumberOfThisProcessThatATextCannotWrite) {
  EXPECT_NE(__stack_chk_guard, 0U);
  EXPECT_EQ(__stack_chk_guard & 0xFF, 0U);
}

}  // namespace
}  // namespace orvendal
