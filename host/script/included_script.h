#pragma once

#include <filesystem>
#include <string>

namespace orvendal {

/// The file that a script means by `name`, without symbolic links. A relative name counts from `folder`, that
/// of the script that includes it. Raises ScriptStop, with a sentence for its writer, if the name does not
/// end in ".guion", the file is not there or is none, or it lies outside `outermost`, the folder of the
/// script that was started (empty for none).
std::filesystem::path IncludedScript(const std::string& name, const std::filesystem::path& folder,
                                     const std::filesystem::path& outermost);

}  // namespace orvendal
