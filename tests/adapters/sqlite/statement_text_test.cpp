#include <gtest/gtest.h>

#include "adapters/sqlite/sql_tokens.h"
#include "adapters/sqlite/statement_rewriter.h"
#include "adapters/sqlite/stored_date.h"
#include "platform/base/runtime_error.h"
#include "platform/data/ado_error.h"

namespace orvendal::sqlite {
namespace {

std::string Shape(const std::string& statement, Dialect dialect) {
  std::string shape;
  for (const Token& token : Tokenize(statement, dialect)) {
    shape += std::string("wntd#s").substr(static_cast<std::size_t>(token.kind), 1) + ":" + token.text + " ";
  }
  return shape;
}

TEST(Tokens, AStatementComesApart) {
  EXPECT_EQ(Shape("SELECT a.[b c], 2.5 FROM t WHERE x<>'o''clock'", Dialect::kSqlServer),
            "w:SELECT w:a s:. n:b c s:, #:2.5 w:FROM w:t w:WHERE w:x s:<> t:o'clock ");
  EXPECT_EQ(Shape("x >=#1/2/2026# AND y = \"a\"", Dialect::kJet), "w:x s:>= d:1/2/2026 w:AND w:y s:= t:a ");
  EXPECT_EQ(Shape("Año = \"b\" -- rest\n/* more */ + 1", Dialect::kSqlServer), "w:Año s:= n:b s:+ #:1 ");
}

TEST(Tokens, MarksInsideATextAreText) {
  EXPECT_EQ(Shape("x = '#1/1/2026# CONVERT( -- [a] %'", Dialect::kJet),
            "w:x s:= t:#1/1/2026# CONVERT( -- [a] % ");
}

// There a hyphen is a minus, and what follows two of them still counts.
TEST(Tokens, OneDialectHasNoComments) {
  EXPECT_EQ(Shape("x -- y", Dialect::kJet), "w:x s:- s:- w:y ");
  EXPECT_EQ(Shape("/* x */", Dialect::kJet), "s:/ s:* w:x s:* s:/ ");
}

TEST(Tokens, WhatIsNotClosedIsRefused) {
  for (const char* statement : {"'a", "a'", "[a", "#1/1/2026", "'it's'", "\"a"}) {
    EXPECT_THROW(Tokenize(statement, Dialect::kJet), RuntimeError) << statement;
  }
  EXPECT_THROW(Tokenize("#1/1/2026#", Dialect::kSqlServer), RuntimeError);
  EXPECT_THROW(Tokenize("/* a", Dialect::kSqlServer), RuntimeError);
}

std::optional<ColumnType> FindColumn(const std::string& table, const std::string& column) {
  if (table != "t") return std::nullopt;
  if (column == "text") return ColumnType{ColumnKind::kText, false, 0};
  if (column == "day") return ColumnType{ColumnKind::kDate, false, 0};
  if (column == "number") return ColumnType{ColumnKind::kNumber, false, 0};
  return std::nullopt;
}

RewrittenStatement Rewritten(const std::string& source, Dialect dialect = Dialect::kSqlServer) {
  return Rewrite(source, dialect, Region::Spanish(), FindColumn);
}

TEST(Rewriting, OnlyComparisonsOfConditionsChange) {
  EXPECT_EQ(Rewritten("UPDATE t SET text = 'a', day = NULL WHERE number = 3").sql,
            "UPDATE t SET text = 'a' , day = NULL WHERE number = 3");
  EXPECT_EQ(Rewritten("INSERT INTO t (text) VALUES ('it''s')").sql,
            "INSERT INTO t ( text ) VALUES ( 'it''s' )");
  EXPECT_EQ(Rewritten("SELECT text FROM t WHERE number = '5' AND other = 'x';").sql,
            "SELECT text FROM t WHERE number = '5' AND other = 'x'");
  EXPECT_EQ(Rewritten("SELECT * FROM t WHERE 'a' + text = 'b'").sql,
            "SELECT * FROM t WHERE 'a' + text = 'b'");
}

TEST(Rewriting, StatementsThatDifferInTheirValuesOnlyShareOneText) {
  const RewrittenStatement one = Rewritten("SELECT * FROM t WHERE text = 'a' AND day = '2026-11-16'");
  const RewrittenStatement two = Rewritten("SELECT * FROM t WHERE text = 'b' AND day = '2025-01-01'");
  EXPECT_EQ(one.sql, two.sql);
  EXPECT_NE(one.parameters, two.parameters);
  EXPECT_EQ(one.tables, std::vector<std::string>{"t"});
}

TEST(Rewriting, DatesOutsideConditionsTakeTheFormOfTheFile) {
  EXPECT_EQ(Rewritten("INSERT INTO t (day) VALUES (CONVERT(DATETIME, '2026.11.16 9:05', 102))").sql,
            "INSERT INTO t ( day ) VALUES ( '2026-11-16 09:05:00' )");
  EXPECT_EQ(Rewritten("UPDATE t SET day = #2/3/2026#", Dialect::kJet).sql,
            "UPDATE t SET day = '2026-02-03 00:00:00'");
}

TEST(Rewriting, ADateInAnotherStyleIsRefused) {
  EXPECT_THROW(Rewritten("SELECT * FROM t WHERE day = CONVERT(DATETIME, '16/11/2026', 103)"), RuntimeError);
  EXPECT_THROW(Rewritten("SELECT * FROM t WHERE day = CONVERT(DATETIME, '2026-11-16', 101)"), RuntimeError);
}

TEST(Rewriting, AConditionGoesOnAfterABracket) {
  const std::string in_bracket =
      "SELECT * FROM t WHERE number IN (SELECT number FROM t ORDER BY number) AND ";
  EXPECT_EQ(Rewritten(in_bracket + "number = 1").parameters.size(), 0U);
  EXPECT_GT(Rewritten(in_bracket + "text = 'a'").parameters.size(), 0U);
  // And the sorting after one is none of it.
  EXPECT_EQ(Rewritten("SELECT text FROM t ORDER BY (SELECT 1 FROM t WHERE number = 1), text").sql,
            "SELECT text FROM t ORDER BY ( SELECT 1 FROM t WHERE number = 1 ) , orvendal_sort_key(\"text\")");
}

TEST(Rewriting, TablesAreKnownByTheirAlias) {
  EXPECT_EQ(Rewritten("SELECT * FROM t AS a, u b WHERE b.text = 'x'").parameters.size(), 0U);
  EXPECT_NE(Rewritten("SELECT * FROM t AS a, u b WHERE a.text = 'x'").parameters.size(), 0U);
  EXPECT_EQ(Rewritten("SELECT * FROM t AS a, u b").tables, (std::vector<std::string>{"t", "u"}));
}

TEST(Rewriting, ATextComparedWithADateIsAMismatchInOneDialectAndADateInTheOther) {
  EXPECT_NE(Rewritten("SELECT * FROM t WHERE day = '2026-11-16'").parameters.size(), 0U);
  try {
    Rewritten("SELECT * FROM t WHERE day = '2026-11-16'", Dialect::kJet);
    ADD_FAILURE();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ado_error::kConversionFailed);
  }
}

TEST(StoredDates, AreReadInEveryFormThatToolsWrite) {
  const Moment noon = MomentOf(Date(2026, 11, 16, 12, 0, 0));
  EXPECT_EQ(ParseStoredDate("2026-11-16"), MomentOf(Date(2026, 11, 16)));
  EXPECT_EQ(ParseStoredDate("2026-11-16 12:00:00"), noon);
  EXPECT_EQ(ParseStoredDate("2026-11-16T12:00"), noon);
  EXPECT_EQ(ParseStoredDate("2026-11-16 12:00:00.25"), noon + 250);
  EXPECT_EQ(ParseStoredDate("2026-11-16 12:00:00.123456"), noon + 123);
  for (const char* text :
       {"", "2026-11", "2026-13-01", "2026-11-16 25:00", "2026-11-16x", "16/11/2026", "2026-11-16 "}) {
    EXPECT_FALSE(ParseStoredDate(text)) << text;
  }
}

TEST(StoredDates, BoundsOfADayEncloseItsTexts) {
  const Moment moment = MomentOf(Date(2026, 12, 31, 23, 59, 59)) + 999;
  EXPECT_EQ(FirstTextOfDay(moment), "2026-12-31");
  EXPECT_EQ(FirstTextAfterDay(moment), "2027-01-01");
  EXPECT_GT(FirstTextAfterDay(MomentOf(Date(9999, 12, 31))), "9999-12-31 23:59:59");
  EXPECT_EQ(DateOf(MomentOf(Date(1899, 12, 29, 6, 0, 0))), Date(1899, 12, 29, 6, 0, 0));
}

TEST(StoredDates, ATimeAloneLiesOnTheFirstDayOf1900) {
  EXPECT_EQ(ParseYearMonthDay("10:30"), MomentOf(Date(1900, 1, 1, 10, 30, 0)));
  EXPECT_EQ(ParseYearMonthDay(" 2026/1/2 3:04:05 "), MomentOf(Date(2026, 1, 2, 3, 4, 5)));
  EXPECT_FALSE(ParseYearMonthDay("2026-01/02"));
}

}  // namespace
}  // namespace orvendal::sqlite
