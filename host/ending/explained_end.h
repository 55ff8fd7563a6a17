#pragma once

#include <functional>
#include <string>

#include "host/words.h"

namespace orvendal {

/// Runs the whole program, or a part that must not take the rest with it. An exception of any kind that comes
/// out is told to `tell` in one sentence, and `exit_code` is the result.
int RunExplained(const std::function<int()>& body, const Words& words, int exit_code,
                 const std::function<void(const std::string& sentence)>& tell);

/// What an exception says, in a sentence for the user. To be called while it is handled.
std::string SentenceForException(const Words& words);

}  // namespace orvendal
