#pragma once

#include <filesystem>
#include <istream>
#include <ostream>
#include <string>

#include "host/script/commands.h"

namespace orvendal {

/// Runs a script to its end or to the line that stops it. What it shows goes to `output`; why it stops, one
/// line with the number of the script's line, to `errors`. Gives the exit code: 0, ScriptStop::kDiffers or
/// ScriptStop::kCannotGoOn, which is that of every exception that nobody expected, too. The same script gives
/// the same output, whenever and wherever it runs. Its pictures go below the current folder or below
/// `folder`, which is the script's own (empty for none), and what it includes stands there, too; a stop
/// inside such a script names it with its line.
int RunScript(std::istream& script, const Options& options, const SavePicture& save_picture,
              std::ostream& output, std::ostream& errors, const std::filesystem::path& folder = {});

/// The same for a file, in windows of one's own.
int RunScriptFile(const std::string& path, const Options& options, const SavePicture& save_picture,
                  std::ostream& output, std::ostream& errors,
                  const MakeScriptWindows& make_windows = MakeHeadlessWindows);

}  // namespace orvendal
