#include "host/script/picture_place.h"

#include <cstdio>
#include <system_error>

#include "host/script/script_folder.h"
#include "host/text/utf8_path.h"

namespace orvendal {
namespace {

namespace fs = std::filesystem;

fs::path CurrentFolder() {
  std::error_code error;
  const fs::path folder = fs::current_path(error);
  return error ? fs::path() : ResolvedFolder(folder);
}

// Whoever puts a file or a link there at this very moment is not overwritten either.
bool MakeNew(const fs::path& file) {
  std::FILE* const made = std::fopen(TextOf(file).c_str(), "wbx");
  return made != nullptr && std::fclose(made) == 0;
}

}  // namespace

PicturePlace::PicturePlace(const std::string& name, const fs::path& script_folder) {
  const fs::path given = PathOf(name);
  if (!name.ends_with(".png") || name.find('\0') != std::string::npos) {
    throw NoPlaceForPicture("una imagen se guarda en un fichero acabado en .png, y no en " + name);
  }
  const fs::path current = CurrentFolder();
  if (given.is_relative() && current.empty()) {
    throw NoPlaceForPicture("ya no existe la carpeta actual: no se puede guardar la imagen " + name);
  }
  const fs::path folder =
      ResolvedFolder(given.is_relative() ? current / given.parent_path() : given.parent_path());
  if (folder.empty()) throw NoPlaceForPicture("no existe la carpeta de la imagen " + name);
  if (!LiesIn(folder, current) && (script_folder.empty() || !LiesIn(folder, ResolvedFolder(script_folder)))) {
    throw NoPlaceForPicture("una imagen se guarda dentro de la carpeta del guion o de la actual, y no en " +
                            name);
  }
  const fs::path file = folder / given.filename();
  std::error_code error;
  const fs::file_type there = fs::symlink_status(file, error).type();
  if (there != fs::file_type::not_found) {
    throw NoPlaceForPicture("ya existe " + name + ": una imagen no sustituye a otro fichero");
  }
  if (!MakeNew(file)) throw NoPlaceForPicture("no se puede escribir la imagen " + name);
  path_ = TextOf(file);
}

PicturePlace::~PicturePlace() {
  if (kept_) return;
  std::error_code ignored;
  fs::remove(PathOf(path_), ignored);
}

}  // namespace orvendal
