// Random scripts are of use only if they can be made again, and run to the same end each time.

#include "tests/support/random_script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "host/command_line.h"
#include "host/sample/made_store.h"
#include "host/script/runner.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

struct Shown {
  int exit_code;
  std::string output;
  std::string errors;
  bool operator==(const Shown&) const = default;
};

// Scripts and runs begin on the same store each time.
class RandomScripts : public testing::Test {
 protected:
  RandomScripts() {
    OpenOrMakeStore({store_, Dialect::kSqlServer, Region::Spanish(), WordsOf(Language::kSpanish)},
                    Date(2026, 11, 16));
  }

  RandomScript ShortScript(std::uint64_t seed) {
    RandomScriptSettings settings;
    settings.seed = seed;
    settings.steps = 12;
    settings.store = FreshCopy();
    return MakeRandomScript(settings);
  }

  Shown WhatShows(const RandomScript& script) {
    Options options = ReadCommandLine(script.options, Language::kSpanish, {}).options;
    options.store = FreshCopy();
    std::istringstream lines(script.text);
    std::ostringstream output;
    std::ostringstream errors;
    const int exit_code = RunScript(lines, options, nullptr, output, errors);
    return {exit_code, output.str(), errors.str()};
  }

 private:
  std::string FreshCopy() {
    const std::string copy = folder_ / "copy.db";
    std::filesystem::copy_file(store_, copy, std::filesystem::copy_options::overwrite_existing);
    return copy;
  }

  TemporaryFolder folder_;
  std::string store_ = folder_ / "store.db";
};

TEST_F(RandomScripts, ASeedAlwaysMakesTheSameScript) {
  const std::string first = ShortScript(7).text;
  EXPECT_EQ(ShortScript(7).text, first);
  EXPECT_NE(ShortScript(8).text, first);
}

TEST_F(RandomScripts, AScriptShowsTheSameEachTime) {
  for (const std::uint64_t seed : {1U, 2U, 3U}) {
    const RandomScript script = ShortScript(seed);
    EXPECT_EQ(WhatShows(script), WhatShows(script)) << "seed " << seed;
  }
}

// Every line was tried out when it was chosen, so only the last one may be one that cannot be done.
TEST_F(RandomScripts, AScriptRunsToItsLastLine) {
  for (const std::uint64_t seed : {4U, 5U, 6U}) {
    const RandomScript script = ShortScript(seed);
    const auto lines = std::count(script.text.begin(), script.text.end(), '\n');
    const Shown shown = WhatShows(script);
    if (shown.exit_code == 0) continue;
    EXPECT_TRUE(shown.errors.starts_with("línea " + std::to_string(lines) + ":"))
        << "seed " << seed << " of " << lines << " lines: " << shown.errors;
  }
}

}  // namespace
}  // namespace orvendal
