#pragma once

#include <string>

#include "adapters/qt/qt_message_box.h"
#include "host/words.h"

namespace orvendal {

/// The captions of message boxes in the user's language.
QtCaptions CaptionsOf(const Words& words);

/// Whether there is somewhere to show a window.
bool HasDisplay();

/// Tells why the program ends: `line` goes to standard error, and into a box where nobody would see that,
/// because the program was started from an icon. The box needs a display; a Qt application is made for it
/// unless there is one. If the display named does not answer, the program ends here with `exit_code`.
void TellWhyItEnds(const std::string& line, const Words& words, const char* program_name, int exit_code);

/// The line for a sentence: with the program's name before it, and nothing in it that a terminal would obey.
std::string ErrorLine(const std::string& sentence);

}  // namespace orvendal
