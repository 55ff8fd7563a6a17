#pragma once

#include <filesystem>

namespace orvendal {

/// The folder without symbolic links and ".."; empty if it is not there.
std::filesystem::path ResolvedFolder(const std::filesystem::path& folder);

/// Whether `folder` is `outer` or stands below it, both resolved. Nothing lies in an empty one.
bool LiesIn(const std::filesystem::path& folder, const std::filesystem::path& outer);

}  // namespace orvendal
