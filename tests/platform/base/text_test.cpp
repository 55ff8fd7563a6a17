#include "platform/base/text.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

TEST(TextTest, LengthsCountCharactersNotBytes) {
  EXPECT_EQ(Len("Champú"), 6U);
  EXPECT_EQ(Len(""), 0U);
  EXPECT_EQ(Len("\xFF\xC3"), 2U);
}

TEST(TextTest, MidTakesCharactersAndStopsAtTheEnd) {
  EXPECT_EQ(Mid("0123", 1, 2), "01");
  EXPECT_EQ(Mid("ñandú", 1, 2), "ña");
  EXPECT_EQ(Mid("7", 1, 2), "7");
  EXPECT_EQ(Mid("7", 2, 2), "");
  EXPECT_THROW(Mid("7", 0, 2), RuntimeError);
}

TEST(TextTest, TrimTakesOffBlanksOnly) {
  EXPECT_EQ(Trim("  a b "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim("\ta"), "\ta");
}

TEST(TextTest, LettersOfTheLanguagesFoldToLowerCase) {
  EXPECT_EQ(ToLower("ÁÑÇ ABC"), "áñç abc");
  EXPECT_TRUE(EqualsIgnoringCase("CHAMPÚ", "champú"));
  EXPECT_FALSE(EqualsIgnoringCase("champu", "champú"));
  EXPECT_FALSE(EqualsIgnoringCase("champ", "champú"));
}

TEST(TextTest, SearchFoldsAccentsToo) {
  EXPECT_EQ(FoldForSearch("CHAMPÚ Niño"), "champu nino");
}

TEST(TextTest, AByteThatIsNoUtf8IsACharacterOfItsOwn) {
  EXPECT_TRUE(EqualsIgnoringCase("a\xD1", "A\xD1"));
  EXPECT_FALSE(EqualsIgnoringCase("\xD1", "\xF1"));
  EXPECT_FALSE(EqualsIgnoringCase("\xD1", "Ñ"));
  EXPECT_EQ(ToLower("A\xD1\xC3"), "a\xD1\xC3");
  EXPECT_EQ(FoldForSearch("A\xD1"), "a\xD1");
  // Longer than need be, half of a pair, beyond Unicode.
  for (const char* text : {"\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF0\x80\x80\x80"}) {
    EXPECT_EQ(Len(text), std::string(text).size());
    EXPECT_EQ(ToLower(text), text);
  }
}

TEST(TextTest, AByteThatIsNoUtf8IsShownByAReplacementSign) {
  EXPECT_EQ(Showable("Pe\xF1"
                     "a ñ"),
            "Pe\uFFFDa ñ");
  EXPECT_EQ(Showable("ñandú €"), "ñandú €");
}

TEST(TextTest, CharactersGoThereAndBack) {
  for (const char32_t character : {U'a', U'ñ', U'€', U'\U0001F600'}) {
    const std::string text = FromCharacter(character);
    std::size_t offset = 0;
    EXPECT_EQ(NextCharacter(text, offset), character);
    EXPECT_EQ(offset, text.size());
  }
}

}  // namespace
}  // namespace orvendal
