// Random users, recorded and replayed: whoever replays a record sees what the user saw. For more seeds than
// the few that run each time, name the first one and how many: ORVENDAL_RECORDED_SEEDS="1 1000".

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "host/command_line.h"
#include "host/sample/made_store.h"
#include "tests/recording/recorded_run.h"
#include "tests/support/random_script.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

using namespace testing_support;

struct Seeds {
  std::uint64_t first = 1;
  std::uint64_t count = 5;
};

Seeds SeedsAskedFor() {
  Seeds seeds;
  if (const char* asked = std::getenv("ORVENDAL_RECORDED_SEEDS")) {
    std::istringstream numbers(asked);
    numbers >> seeds.first >> seeds.count;
  }
  return seeds;
}

class RecordedSeeds : public testing::Test {
 protected:
  RecordedSeeds() {
    OpenOrMakeStore({store_, Dialect::kSqlServer, Region::Spanish(), WordsOf(Language::kSpanish)},
                    Date(2026, 11, 16));
  }

  std::string FreshCopy(const char* name) {
    const std::string copy = folder_ / name;
    for (const char* ending : {"", "-wal", "-shm"}) std::filesystem::remove(copy + ending);
    std::filesystem::copy_file(store_, copy);
    return copy;
  }

  TemporaryFolder folder_;
  std::string store_ = folder_ / "store.db";
};

// The lines of the script that a hand could do, until one ends it.
void Work(RecordedRun& run, const std::string& script, std::string& ended) {
  std::istringstream lines(script);
  std::string line;
  while (ended.empty() && std::getline(lines, line)) {
    try {
      run.Do(line);
    } catch (const std::exception& error) {
      ended = error.what();
    }
  }
}

TEST_F(RecordedSeeds, AReplayedRecordShowsWhatTheUserSaw) {
  const Seeds seeds = SeedsAskedFor();
  for (std::uint64_t seed = seeds.first; seed < seeds.first + seeds.count; ++seed) {
    RandomScriptSettings settings;
    settings.seed = seed;
    settings.store = FreshCopy("made.db");
    const RandomScript script = MakeRandomScript(settings);
    const Options options = ReadCommandLine(script.options, Language::kSpanish, {}).options;

    const std::string worked_on = FreshCopy("worked.db");
    std::string ended;
    std::string seen;
    std::string record;
    {
      RecordedRun run(options, worked_on);
      Work(run, script.text, ended);
      seen = run.Seen();
      record = run.Record().Text();
    }
    const std::string rows = StoredIn(worked_on);

    const std::string replayed_on = FreshCopy("replayed.db");
    const Replayed replayed = Replay(record, options, replayed_on);
    EXPECT_EQ(replayed.errors.empty(), ended.empty()) << "seed " << seed << ": " << replayed.errors << ended;
    EXPECT_EQ(replayed.seen, seen) << "seed " << seed << "\n" << record;
    EXPECT_EQ(StoredIn(replayed_on), rows) << "seed " << seed << "\n" << record;
    if (seeds.count > 100 && seed % 50 == 0) std::cout << "seed " << seed << std::endl;
    if (HasFailure()) {
      std::ofstream(std::filesystem::temp_directory_path() / "recorded_seed.guion") << record;
      return;
    }
  }
}

}  // namespace
}  // namespace orvendal
