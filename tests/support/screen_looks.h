#pragma once

#include <string>

#include "tests/support/script_writer.h"

namespace orvendal {

/// What the looks after a step showed, for those who keep count of dialogs.
struct ScreenLook {
  std::string messages;
  std::string library_calls;
};

/// Looks at what a step leaves: messages, statements, calls, lines, cursor, focus, editor, header, buttons.
ScreenLook LookAtScreen(ScriptWriter& script);
/// Looks at every property of every control and at the colours of the first `rows` rows.
void InspectScreen(ScriptWriter& script, int rows);
/// Looks at the rows of the store that a count concerns.
void LookAtStore(ScriptWriter& script, const std::string& branch);
/// Looks at how many rows there are, of all branches.
void LookAtWholeStore(ScriptWriter& script);

}  // namespace orvendal
