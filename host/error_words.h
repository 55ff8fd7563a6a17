#pragma once

#include <string>
#include <string_view>

#include "host/words.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

/// Translation of the descriptions with which stores and the runtime raise their errors, for the user:
/// those are in English, since programs compare them, and name no file. The same sentence is told whether the
/// trouble is met at the start or while one works.

/// `description` in the words of the language, with what to do next; unchanged if it is none of those known.
/// `store` is the store as it is named to the user, for descriptions that do not name it.
std::string DescriptionInWords(const Words& words, const std::string& description, std::string_view store);

/// An error as the host reports it: its number, and the description in words.
std::string ErrorInWords(const Words& words, const RuntimeError& error, std::string_view store);

/// A message of more than one line, each of which is told as a description is.
std::string MessageInWords(const Words& words, const std::string& message, std::string_view store);

}  // namespace orvendal
