#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "fuzz/fuzzed_input.h"

// Where there is no fuzzer, its inputs are tried again one by one, and each with parts of it missing.
int main(int argument_count, char** arguments) {
  std::vector<std::filesystem::path> files;
  for (int i = 1; i < argument_count; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  std::size_t tried = 0;
  for (const auto& path : files) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
    const auto* const first = reinterpret_cast<const std::uint8_t*>(bytes.data());
    LLVMFuzzerTestOneInput(first, bytes.size());
    for (std::size_t part = 1; part < 8; ++part) {
      LLVMFuzzerTestOneInput(first, bytes.size() * part / 8);
      ++tried;
    }
    ++tried;
  }
  std::printf("%zu inputs\n", tried);
  return files.empty() ? 1 : 0;
}
