#pragma once

#include <string>
#include <string_view>

#include "platform/base/date.h"

namespace orvendal {

/// What the words of a script say. Each raises ScriptStop, with a sentence for its writer, for a word that
/// says nothing of the kind.

int WholeNumber(const std::string& text);
int PositiveNumber(const std::string& text);
/// With a point, in any region.
double DecimalNumber(const std::string& text);
/// "2026-11-16", "2026-11-16 10:30" or "2026-11-16 10:30:00".
Date MomentOf(const std::string& text);

/// The same the other way round: a word that means exactly that number, and a text as the one word that it is
/// in a line.
std::string NumberWord(double number);
std::string TextWord(std::string_view text);
/// A code, without quotes where it needs none.
std::string CodeWord(std::string_view code);

}  // namespace orvendal
