#include "host/private_file.h"

#include <filesystem>
#include <fstream>

namespace orvendal {

void MakePrivateFile(const std::string& path) {
  namespace fs = std::filesystem;
  constexpr fs::perms kOfOwner = fs::perms::owner_read | fs::perms::owner_write;
  std::error_code ignored;
  const fs::path file = std::u8string(path.begin(), path.end());
  const fs::path folder = file.parent_path();
  if (!folder.empty()) {
    fs::create_directories(folder, ignored);
    fs::permissions(folder, fs::perms::owner_all, ignored);
  }
  if (!fs::exists(file, ignored)) std::ofstream(file, std::ios::app).flush();
  // The engine gives files that it makes beside this one the same permissions.
  for (const char* ending : {"", "-wal", "-shm", "-journal"}) {
    fs::path each = file;
    each += ending;
    if (fs::is_regular_file(each, ignored)) fs::permissions(each, kOfOwner, ignored);
  }
}

}  // namespace orvendal
