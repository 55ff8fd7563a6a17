#include "host/script/included_script.h"

#include <system_error>

#include "host/script/parser.h"
#include "host/script/script_folder.h"
#include "host/text/utf8_path.h"

namespace orvendal {

std::filesystem::path IncludedScript(const std::string& name, const std::filesystem::path& folder,
                                     const std::filesystem::path& outermost) {
  if (!name.ends_with(".guion") || name.find('\0') != std::string::npos) {
    throw ScriptStop("se incluye un fichero acabado en .guion, y no " + name);
  }
  if (outermost.empty()) {
    throw ScriptStop("un guion que no está en un fichero no puede incluir " + name);
  }
  std::error_code error;
  const std::filesystem::path file = std::filesystem::canonical(folder / PathOf(name), error);
  if (error) throw ScriptStop("no existe el guion " + name + ", que se quiere incluir");
  if (!LiesIn(file.parent_path(), ResolvedFolder(outermost))) {
    throw ScriptStop("un guion incluye otros de su carpeta o de las que hay dentro de ella, y no " + name);
  }
  // Anything else than a file could keep the script waiting.
  if (!std::filesystem::is_regular_file(file, error)) throw ScriptStop("no se puede leer el guion " + name);
  return file;
}

}  // namespace orvendal
