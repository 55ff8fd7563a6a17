#include "host/library/search_list.h"

#include <gtest/gtest.h>

namespace orvendal {
namespace {

using Codes = std::vector<std::string>;

SearchList Products() {
  return SearchList({{{"CHA01", "Champú Keratina"}, 1},
                     {{"ACO01", "Acondicionador para Champú Ácido"}, 1},
                     {{"CRE01", "Crema de Manos"}, 1},
                     {{"CRE02", "Crema Facial Ñandú"}, 1},
                     {{"ZUM01", "Zumo"}, 0}},
                    1);
}

Codes Found(const std::string& text, const std::vector<std::size_t>& fields) {
  const SearchList list = Products();
  Codes codes;
  for (const std::size_t index : list.Narrow(text, fields)) codes.push_back(list.Entry(index).cells[0]);
  return codes;
}

TEST(SearchList, FindsAllWithAnEmptyTextAndLowerGroupsFirst) {
  EXPECT_EQ(Found("", {1}), (Codes{"ZUM01", "ACO01", "CHA01", "CRE01", "CRE02"}));
  EXPECT_EQ(Found("  ", {1}).size(), 5U);
}

TEST(SearchList, IsInTheOrderOfItsCellsWhateverTheirAccents) {
  const SearchList list({{{"1", "Zoe"}, 0}, {{"2", "Íñigo"}, 0}, {{"3", "ana"}, 0}, {{"4", "Álvaro"}, 0}}, 1);
  Codes codes;
  for (std::size_t i = 0; i < list.Size(); ++i) codes.push_back(list.Entry(i).cells[0]);
  EXPECT_EQ(codes, (Codes{"4", "3", "2", "1"}));
}

TEST(SearchList, IgnoresCaseAndAccents) {
  EXPECT_EQ(Found("CHAMPU keratina", {1}), Codes{"CHA01"});
  EXPECT_EQ(Found("ácido", {1}), Codes{"ACO01"});
  EXPECT_EQ(Found("nandu", {1}), Codes{"CRE02"});
}

TEST(SearchList, PutsWhatBeginsWithTheTextFirst) {
  EXPECT_EQ(Found("champú", {1}), (Codes{"CHA01", "ACO01"}));
  EXPECT_EQ(Found("u", {1}), (Codes{"ZUM01", "ACO01", "CHA01", "CRE02"}));
}

TEST(SearchList, FindsWordsInAnyOrder) {
  EXPECT_EQ(Found("manos crema", {1}), Codes{"CRE01"});
  EXPECT_TRUE(Found("manos champú", {1}).empty());
}

TEST(SearchList, SearchesOnlyTheFieldsNamed) {
  EXPECT_TRUE(Found("CRE01", {1}).empty());
  EXPECT_EQ(Found("cre", {0}), (Codes{"CRE01", "CRE02"}));
  EXPECT_EQ(Found("cre02 facial", {0, 1}), Codes{"CRE02"});
}

TEST(SearchList, ACellOfSeveralLinesBeginsWithEachAndIsNamedByEach) {
  const SearchList list({{{"A", "x 84"}, 0}, {{"B", "81\n84"}, 0}, {{"C", "840"}, 0}}, 0);
  EXPECT_EQ(list.Narrow("84", {1}), (std::vector<std::size_t>{1, 2, 0}));
  EXPECT_EQ(list.NamedBy(" 84 ", {1}), std::vector<std::size_t>{1});
  EXPECT_EQ(list.NamedBy("b", {0, 1}), std::vector<std::size_t>{1});
  EXPECT_TRUE(list.NamedBy("", {0, 1}).empty());
  EXPECT_TRUE(list.NamedBy("8%", {1}).empty());
}

TEST(SearchList, UnderstandsTheWildcardsOfTheStatements) {
  EXPECT_EQ(Found("CR%1", {0}), Codes{"CRE01"});
  EXPECT_EQ(Found("c_e0_", {0}), (Codes{"CRE01", "CRE02"}));
  EXPECT_EQ(Found("cha%ina", {1}), Codes{"CHA01"});
  EXPECT_EQ(Found("%", {0}).size(), 5U);
  EXPECT_TRUE(Found("x%", {0}).empty());
}

}  // namespace
}  // namespace orvendal
