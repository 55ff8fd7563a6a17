#pragma once

#include <istream>
#include <ostream>
#include <string>

#include "host/guion_commands.h"

namespace orvendal {

/// Runs a script to its end or to the line that stops it. What it shows goes to `output`; why it stops, one
/// line with the number of the script's line, to `errors`. Gives the exit code: 0, ScriptStop::kDiffers or
/// ScriptStop::kCannotGoOn. The same script gives the same output, whenever and wherever it runs.
int RunScript(std::istream& script, const Options& options, const SavePicture& save_picture,
              std::ostream& output, std::ostream& errors);

/// The same for a file.
int RunScriptFile(const std::string& path, const Options& options, const SavePicture& save_picture,
                  std::ostream& output, std::ostream& errors);

}  // namespace orvendal
