// Writes random scripts, and the store that they run on, into a folder.
//
//   random_scripts FOLDER FIRST_SEED COUNT
//
// Each script is FOLDER/SEED.guion; it runs on a copy of FOLDER/store.db, with the options of its first line.
// Every fourth script takes pictures, too.
// What the scripts are made of is counted on the standard output: command, a tab, how often.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "host/sample/made_store.h"
#include "tests/support/random_script.h"

namespace {

using namespace orvendal;

void WriteScripts(const std::filesystem::path& folder, std::uint64_t first, std::uint64_t count) {
  const std::filesystem::path store = folder / "store.db";
  OpenOrMakeStore({store.string(), Dialect::kSqlServer, Region::Spanish(), WordsOf(Language::kSpanish)},
                  Date(2026, 11, 16));
  const std::filesystem::path copy = folder / "copy.db";
  std::map<std::string, int> carried_out;
  int refused = 0;
  for (std::uint64_t seed = first; seed < first + count; ++seed) {
    std::filesystem::copy_file(store, copy, std::filesystem::copy_options::overwrite_existing);
    RandomScriptSettings settings;
    settings.seed = seed;
    settings.store = copy.string();
    settings.pictures = seed % 4 == 0;
    const RandomScript script = MakeRandomScript(settings);
    std::ofstream file(folder / (std::to_string(seed) + ".guion"), std::ios::binary);
    if (!(file << script.text).flush()) throw std::runtime_error("cannot write into " + folder.string());
    for (const auto& [command, times] : script.carried_out) carried_out[command] += times;
    refused += script.refused;
  }
  std::filesystem::remove(copy);
  for (const auto& [command, times] : carried_out) std::cout << command << '\t' << times << '\n';
  std::cout << "(refused)\t" << refused << '\n';
}

}  // namespace

int main(int argument_count, char** arguments) {
  std::vector<std::string> words(arguments + 1, arguments + argument_count);
  if (words.size() != 3) {
    std::cerr << "use: random_scripts FOLDER FIRST_SEED COUNT\n";
    return 2;
  }
  try {
    WriteScripts(words[0], std::stoull(words[1]), std::stoull(words[2]));
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "random_scripts: " << error.what() << '\n';
    return 2;
  }
}
