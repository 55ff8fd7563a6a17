#pragma once

#include <string>
#include <vector>

namespace orvendal {

/// The options with which a script in a file wants to be run, as its first line says them: "# opciones:" and
/// the words of a command line. Only those that say how things look and are written, never which file is
/// opened or made. Empty without such a line.
std::vector<std::string> OptionsOfScript(const std::string& path);

}  // namespace orvendal
