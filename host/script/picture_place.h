#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace orvendal {

/// Why a script's picture has no place: one sentence for its writer.
class NoPlaceForPicture : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A new, empty file for a picture of a script, which comes from elsewhere and must not harm what is there.
/// It goes away again unless it is kept.
class PicturePlace {
 public:
  /// Makes the file. `name` counts from the current folder, ends in ".png" and lies, links and ".." resolved,
  /// below the current folder or below `script_folder` (empty for none). Raises NoPlaceForPicture otherwise,
  /// and for a file or a link that is there already.
  PicturePlace(const std::string& name, const std::filesystem::path& script_folder);
  PicturePlace(const PicturePlace&) = delete;
  PicturePlace& operator=(const PicturePlace&) = delete;
  ~PicturePlace();

  /// Absolute, without links.
  const std::string& Path() const { return path_; }
  void Keep() { kept_ = true; }

 private:
  std::string path_;
  bool kept_ = false;
};

}  // namespace orvendal
