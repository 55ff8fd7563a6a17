#include "host/store/private_file.h"

#include <filesystem>
#include <fstream>

#include "host/text/utf8_path.h"

namespace orvendal {
namespace {

namespace fs = std::filesystem;

// A folder that others use too, such as the current one, is not the program's to close.
bool IsOwnFolder(const fs::path& folder) {
  std::error_code ignored;
  return folder.is_absolute() && folder.filename() == "orvendal" &&
         fs::symlink_status(folder, ignored).type() == fs::file_type::directory;
}

}  // namespace

void MakePrivateFile(const std::string& path) {
  constexpr fs::perms kOfOwner = fs::perms::owner_read | fs::perms::owner_write;
  std::error_code ignored;
  const fs::path file = PathOf(path);
  const fs::path folder = file.parent_path();
  if (!folder.empty()) {
    const bool made = fs::create_directories(folder, ignored);
    if (made || IsOwnFolder(folder)) fs::permissions(folder, fs::perms::owner_all, ignored);
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
