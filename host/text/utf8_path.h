#pragma once

#include <filesystem>
#include <string>

namespace orvendal {

// Names of files are UTF-8 on every system.

inline std::filesystem::path PathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

inline std::string TextOf(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace orvendal
