#include "host/store/default_store.h"

#include <cstdlib>
#include <filesystem>

namespace orvendal {

std::string DefaultStore() {
  namespace fs = std::filesystem;
  const auto folder = [](const char* variable) {
    const char* value = std::getenv(variable);
    const fs::path path = value == nullptr ? fs::path() : fs::path(value);
    return path.is_absolute() ? path : fs::path();
  };
  fs::path data = folder("XDG_DATA_HOME");
  if (data.empty() && !folder("HOME").empty()) data = folder("HOME") / ".local" / "share";
  return data.empty() ? "cadena.db" : (data / "orvendal" / "cadena.db").string();
}

}  // namespace orvendal
