#include "adapters/sqlite/text_pattern.h"

#include <gtest/gtest.h>

#include "adapters/sqlite/text_folding.h"

namespace orvendal::sqlite {
namespace {

bool Like(const char* value, const char* pattern) {
  return TextPattern(pattern).Matches(value);
}

TEST(LikePattern, ATextWithoutWildcardsMatchesItself) {
  EXPECT_TRUE(Like("abc", "abc"));
  EXPECT_TRUE(Like("ABC", "abc"));
  EXPECT_FALSE(Like("abcd", "abc"));
  EXPECT_FALSE(Like("ab", "abc"));
  EXPECT_TRUE(Like("", ""));
  EXPECT_FALSE(Like("a", ""));
}

TEST(LikePattern, CaseOfSpanishLettersIsIgnoredAndAccentsAreNot) {
  EXPECT_TRUE(Like("ÑÁÜÇ", "ñáüç"));
  EXPECT_FALSE(Like("nauc", "ñáüç"));
  EXPECT_TRUE(Like("CAÑA", "ca_a"));
  EXPECT_TRUE(Like("Ñ", "[ñx]"));
}

TEST(LikePattern, ThePercentStandsForAnyText) {
  EXPECT_TRUE(Like("abc", "%"));
  EXPECT_TRUE(Like("", "%"));
  EXPECT_TRUE(Like("abc", "a%"));
  EXPECT_TRUE(Like("a", "a%"));
  EXPECT_TRUE(Like("xxabxxabc", "%ab%c"));
  EXPECT_FALSE(Like("xxabxxab", "%ab%c"));
  EXPECT_TRUE(Like("aXbXc", "a%%b%c"));
}

TEST(LikePattern, TheUnderlineStandsForOneCharacter) {
  EXPECT_TRUE(Like("añb", "a_b"));
  EXPECT_FALSE(Like("ab", "a_b"));
  EXPECT_FALSE(Like("axxb", "a_b"));
}

TEST(LikePattern, ASetStandsForOneOfItsCharacters) {
  EXPECT_TRUE(Like("b", "[abc]"));
  EXPECT_TRUE(Like("B", "[a-c]"));
  EXPECT_FALSE(Like("d", "[a-c]"));
  EXPECT_TRUE(Like("d", "[^a-c]"));
  EXPECT_FALSE(Like("", "[^a-c]"));
  EXPECT_TRUE(Like("d", "[^a]"));
  EXPECT_FALSE(Like("A", "[^a]"));
  EXPECT_TRUE(Like("-", "[a-]"));
  EXPECT_FALSE(Like("", "[]"));
  EXPECT_FALSE(Like("[a", "[a"));
}

TEST(LikePattern, BlanksAtTheEndCountInThePatternOnly) {
  EXPECT_TRUE(Like("abc  ", "abc"));
  EXPECT_TRUE(Like("abc  ", "ab_"));
  EXPECT_TRUE(Like("abc ", "%c"));
  EXPECT_FALSE(Like("abc", "abc "));
  EXPECT_TRUE(Like("abc ", "abc "));
  EXPECT_TRUE(Like("  ", "_"));
}

TEST(LikePattern, ALongTextDoesNotMakeManyWildcardsSlow) {
  const std::string text(20000, 'a');
  EXPECT_FALSE(TextPattern("%a%a%a%a%a%a%a%a%b").Matches(text));
}

TEST(LikePattern, ItsLiteralBeginningIsKnown) {
  EXPECT_EQ(TextPattern("Ña1%x").LiteralPrefix(), "Ña1");
  EXPECT_EQ(TextPattern("50[%] x").LiteralPrefix(), "50% x");
  EXPECT_EQ(TextPattern("A[1-1]x").LiteralPrefix(), "A1x");
  EXPECT_EQ(TextPattern("A_[%]x").LiteralPrefix(), "A");
  EXPECT_EQ(TextPattern("A[^x]").LiteralPrefix(), "A");
  EXPECT_TRUE(TextPattern("A[^x]").HasWildcards());
  EXPECT_FALSE(TextPattern("50[%] x").HasWildcards());
  EXPECT_TRUE(TextPattern("a[bc]").HasWildcards());
  EXPECT_TRUE(TextPattern("abc%").IsPrefixOnly());
  EXPECT_TRUE(TextPattern("abc").IsPrefixOnly());
  EXPECT_FALSE(TextPattern("a_c%").IsPrefixOnly());
  EXPECT_FALSE(TextPattern("a%c").IsPrefixOnly());
}

TEST(TextFolding, EqualTextsPayNoRegardToCaseAndEndBlanks) {
  EXPECT_TRUE(TextEquals("Caña ", "CAÑA"));
  EXPECT_TRUE(TextEquals("", "   "));
  EXPECT_FALSE(TextEquals(" a", "a"));
  EXPECT_FALSE(TextEquals("caná", "cana"));
}

TEST(TextFolding, BothCasesOfEachLetterOutsideTheAlphabetAreTried) {
  EXPECT_EQ(CaseVariants("ab1"), std::vector<std::string>{"ab1"});
  EXPECT_EQ(CaseVariants("Ña"), (std::vector<std::string>{"Ña", "ña"}));
  EXPECT_EQ(CaseVariants("éñ"), (std::vector<std::string>{"éñ", "Éñ", "éÑ", "ÉÑ"}));
  EXPECT_TRUE(CaseVariants("éñí").empty());
  EXPECT_EQ(CaseVariants("1ªº€"), std::vector<std::string>{"1ªº€"});
}

TEST(TextFolding, ARangeHoldsEverySpelling) {
  const IndexRange range = RangeOfPrefix("xÑá");
  for (const char* text : {"xñÁ", "xÑá", "xñáz", "xÑÁ9"}) {
    EXPECT_GE(std::string(text), range.low) << text;
    EXPECT_LT(std::string(text), range.high) << text;
  }
  EXPECT_GE(std::string("y"), range.high);
  EXPECT_LT(std::string("xz"), range.low);
}

TEST(TextFolding, SortingFollowsTheSpanishAlphabet) {
  EXPECT_LT(SortKey("Ávila"), SortKey("Badajoz"));
  EXPECT_LT(SortKey("canz"), SortKey("caña"));
  EXPECT_LT(SortKey("caña"), SortKey("CAO"));
  EXPECT_EQ(SortKey("ÁRBOL"), SortKey("arbol"));
}

}  // namespace
}  // namespace orvendal::sqlite
