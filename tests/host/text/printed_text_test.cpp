// What a value can do to the terminal or the line that it is printed in: nothing.

#include "host/text/printed_text.h"

#include <gtest/gtest.h>

namespace orvendal {
namespace {

TEST(PrintedText, LettersOfEveryLanguageStayAsTheyAre) {
  const std::string text = "Núñez 12,5 m² · l’ampolla «x» \\ \" 漢 🙂";
  EXPECT_EQ(PrintedText(text), text);
  EXPECT_EQ(PrintedText(""), "");
}

TEST(PrintedText, EveryControlCharacterIsWrittenOut) {
  for (int code = 0; code < 0x20; ++code) {
    const std::string printed = PrintedText(std::string(1, static_cast<char>(code)));
    EXPECT_EQ(printed.front(), '\\') << code;
    EXPECT_GE(printed.size(), 2U) << code;
  }
  EXPECT_EQ(PrintedText("a\r\n\tb\x1b[2J\x07\x7f"), "a\\r\\n\\tb\\x1b[2J\\x07\\x7f");
  EXPECT_EQ(PrintedText(std::string_view("\0", 1)), "\\x00");
}

TEST(PrintedText, TheUpperControlCharactersAreWrittenOutInEitherEncoding) {
  EXPECT_EQ(PrintedText("\xc2\x9b"
                        "31m"),
            "\\x9b31m");
  EXPECT_EQ(PrintedText("\x9b"
                        "31m"),
            "\\x9b31m");
}

TEST(PrintedText, BytesThatAreNoTextAreWrittenOut) {
  EXPECT_EQ(PrintedText("ni\xf1o"), "ni\\xf1o");
  EXPECT_EQ(PrintedText("\xc3"), "\\xc3");
  EXPECT_EQ(PrintedText("\xe0\x80\x9b"), "\\xe0\\x80\\x9b");  // a longer form of escape than there may be
}

TEST(PrintedText, WhatTurnsOrHidesTheTextAroundItIsWrittenOut) {
  EXPECT_EQ(PrintedText("-\u00ad-a\u202eb\u2066c\u200bd\u2028e\ufefff"),
            "-\\u{ad}-a\\u{202e}b\\u{2066}c\\u{200b}d\\u{2028}e\\u{feff}f");
}

TEST(QuotedText, QuotesAndBackslashesAreTold) {
  EXPECT_EQ(QuotedText("a \"b\" \\ \n\x1b"), "\"a \\\"b\\\" \\\\ \\n\\x1b\"");
  EXPECT_EQ(QuotedText(""), "\"\"");
}

}  // namespace
}  // namespace orvendal
