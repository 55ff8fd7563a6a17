// How a line of a script divides into words.

#include <gtest/gtest.h>

#include "host/script/parser.h"

namespace orvendal {
namespace {

using Words = std::vector<std::string>;

std::string StopOf(const std::string& line) {
  try {
    ParseScriptLine(line);
  } catch (const ScriptStop& stop) {
    EXPECT_EQ(stop.ExitCode(), ScriptStop::kCannotGoOn);
    return stop.what();
  }
  return "no stop";
}

TEST(ScriptLine, WordsAreSeparatedByAnyBlanks) {
  EXPECT_EQ(ParseScriptLine("clic MSFProductos 1 0"), (Words{"clic", "MSFProductos", "1", "0"}));
  EXPECT_EQ(ParseScriptLine("  clic\t LblGuardar  \r"), (Words{"clic", "LblGuardar"}));
  EXPECT_EQ(ParseScriptLine(""), Words{});
}

TEST(ScriptLine, ATextInQuotesIsOneWordAndMayBeEmpty) {
  EXPECT_EQ(ParseScriptLine("teclas \"dos palabras\""), (Words{"teclas", "dos palabras"}));
  EXPECT_EQ(ParseScriptLine("empleado X9 \"\""), (Words{"empleado", "X9", ""}));
}

TEST(ScriptLine, EscapesStandForQuotesBackslashesBreaksAndTabs) {
  EXPECT_EQ(ParseScriptLine(R"(teclas "a\"b\\c\nd\te\r")"), (Words{"teclas", "a\"b\\c\nd\te\r"}));
}

TEST(ScriptLine, ACommentBeginsOutsideQuotesOnly) {
  EXPECT_EQ(ParseScriptLine("# nothing else"), Words{});
  EXPECT_EQ(ParseScriptLine("clic LblGuardar# saves"), (Words{"clic", "LblGuardar"}));
  EXPECT_EQ(ParseScriptLine("sql \"#11/16/2026#\" # a day"), (Words{"sql", "#11/16/2026#"}));
}

TEST(ScriptLine, BlanksInsideParenthesesDoNotSeparate) {
  EXPECT_EQ(ParseScriptLine("mostrar MSFProductos.TextMatrix(3, 0)"),
            (Words{"mostrar", "MSFProductos.TextMatrix(3,0)"}));
}

TEST(ScriptLine, WhatIsLeftOpenOrUnknownIsToldInOneSentence) {
  EXPECT_EQ(StopOf("teclas \"abc"), "faltan las comillas que cierran el texto");
  EXPECT_EQ(StopOf("teclas \"abc\\"), "faltan las comillas que cierran el texto");
  EXPECT_EQ(StopOf("teclas \"a\\qb\""), "no existe el escape \\q");
  EXPECT_EQ(StopOf("teclas \"a\"b"), "falta un espacio antes o después de un texto entre comillas");
  EXPECT_EQ(StopOf("teclas a\"b\""), "falta un espacio antes o después de un texto entre comillas");
  EXPECT_EQ(StopOf("mostrar X.Y(3"), "falta el paréntesis que cierra X.Y(3");
}

}  // namespace
}  // namespace orvendal
