#pragma once

#include <string>
#include <string_view>

namespace orvendal {

/// A text as it goes to a terminal or into a line of a report: whatever could move the cursor, end the line,
/// turn the direction of writing or be read as a command is written out. Line breaks and tabs stand as \r, \n
/// and \t, other control characters and bytes that are not UTF-8 as \x1b, characters without a picture that
/// steer the text around them as \u{202e}. Everything else stays.
std::string PrintedText(std::string_view text);

/// The same in double quotes, with quotes and backslashes of the text written as \" and \\.
std::string QuotedText(std::string_view text);

}  // namespace orvendal
