#include "host/script/script_folder.h"

#include <algorithm>
#include <system_error>

namespace orvendal {

std::filesystem::path ResolvedFolder(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::path resolved = std::filesystem::canonical(folder, error);
  return error || !std::filesystem::is_directory(resolved, error) ? std::filesystem::path() : resolved;
}

bool LiesIn(const std::filesystem::path& folder, const std::filesystem::path& outer) {
  if (outer.empty()) return false;
  return std::mismatch(outer.begin(), outer.end(), folder.begin(), folder.end()).first == outer.end();
}

}  // namespace orvendal
