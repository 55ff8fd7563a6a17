#include "adapters/automation/bstr.h"

#include <gtest/gtest.h>

namespace orvendal {
namespace {

std::string ThereAndBack(const std::string& bytes) {
  return BstrCell(bytes).Text();
}

TEST(BstrTest, TextsCrossAsTheSystemWritesThem) {
  EXPECT_EQ(WideText("Año €"), L"A\u00F1o \u20AC");
  EXPECT_EQ(WideText("\xF0\x9F\x92\x80"), L"\xD83D\xDC80");  // a pair, whose second half looks like a byte
  EXPECT_EQ(ThereAndBack("Año € \xF0\x9F\x92\x80"), "Año € \xF0\x9F\x92\x80");
  EXPECT_EQ(WideText(""), L"");
  EXPECT_EQ(TextOfBstr(nullptr), "");
}

TEST(BstrTest, AByteThatIsNotUtf8ComesBackAsItself) {
  EXPECT_EQ(WideText("PE\xD1"), L"PE\xDCD1");
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      for (const char* const third : {"", "A", "\x80", "\xED"}) {
        const std::string bytes = std::string{static_cast<char>(first), static_cast<char>(second)} + third;
        ASSERT_EQ(ThereAndBack(bytes), bytes) << first << " " << second;
      }
    }
  }
}

// Halves of pairs, codes beyond Unicode, longer ways to write a character, sequences that end too soon.
TEST(BstrTest, SequencesThatLookLikeTextComeBackByteForByte) {
  for (const std::string bytes : {"\xED\xA0\x80", "\xED\xB2\x80", "\xED\xA0\x80\xF1", "\xF4\x90\x80\x80",
                                  "\xC1\x81", "\xE2\x82", "\xF0\x9F\x92", "\xF0\x9F\x92\x80\x80"}) {
    EXPECT_EQ(ThereAndBack(bytes), bytes);
  }
}

TEST(BstrTest, HalfAPairThatStandsForNoByteIsNoText) {
  EXPECT_EQ(Utf8Text(L"a\xD83D"), "a\uFFFD");
  EXPECT_EQ(Utf8Text(L"\xD83D-"), "\uFFFD-");
  EXPECT_EQ(Utf8Text(L"\xDC00\xDC7F\xDD00"), "\uFFFD\uFFFD\uFFFD");
}

}  // namespace
}  // namespace orvendal
