#pragma once

namespace orvendal {

/// Runs the loop of this thread for so long. Ends at once where the program quits, which its own loop then
/// learns too.
void PumpMessages(long milliseconds);

/// Whether a screen of another module stands on this thread, in whatever state.
bool HasScreen();

}  // namespace orvendal
