#pragma once

#include <string>
#include <vector>

namespace orvendal {

/// Hands for a screen of another thread or process. The commands, in their order:
///   window TITLE    waits for a window of the screen or its library that takes input, and turns to it
///   gone TITLE      waits until there is none
///   click X Y, double X Y
///                   in the window, as if it were 1024 x 768 pixels large
///   type TEXT       characters
///   key NAME        return or escape
///   close           as the title bar's button does
/// What could not be done, and nothing after it was; empty if all was.
std::wstring UseScreen(const std::vector<std::wstring>& commands);

}  // namespace orvendal
