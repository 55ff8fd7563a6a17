#include "host/script/script_options.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "host/text/utf8_path.h"

namespace orvendal {

std::vector<std::string> OptionsOfScript(const std::string& path) {
  static const std::set<std::string> harmless = {"--idioma", "--region", "--dialecto", "--base",
                                                 "--pantalla"};
  constexpr std::string_view kOptions = "# opciones:";
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(PathOf(path), ignored)) return {};
  std::ifstream script(PathOf(path), std::ios::binary);
  std::string line;
  if (!std::getline(script, line) || !line.starts_with(kOptions)) return {};
  std::istringstream words(line.substr(kOptions.size()));
  std::vector<std::string> options;
  std::string name;
  std::string value;
  while (words >> name && words >> value) {
    if (harmless.contains(name)) options.insert(options.end(), {name, value});
  }
  return options;
}

}  // namespace orvendal
