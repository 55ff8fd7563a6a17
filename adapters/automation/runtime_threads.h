#pragma once

namespace orvendal {

/// Gives back what the C++ runtime keeps for each thread that was ever in this module. The last act of a
/// module that is unloaded: nothing of it may raise or catch an error afterwards.
void ReleaseThreadValues() noexcept;

}  // namespace orvendal
