#include "tests/random/random_run.h"

#include <exception>

#include "host/command_line.h"
#include "tests/random/random_hands.h"

namespace orvendal {
namespace {

Options OptionsOf(SampleRandom& random, std::string& first_line) {
  std::vector<std::string> words;
  if (random.Chance(40)) words.insert(words.end(), {"--dialecto", "jet"});
  if (random.Chance(30)) words.insert(words.end(), {"--region", "en-US"});
  for (const std::string& word : words) first_line += " " + word;
  return ReadCommandLine(words, Language::kSpanish, {}).options;
}

}  // namespace

RandomRun RunRandomUser(std::uint64_t seed, int events) {
  SampleRandom random(seed);
  InputScript script;
  std::string first_line = "# opciones:";
  const Options options = OptionsOf(random, first_line);
  script.Begin(first_line);
  RandomRun run;
  UserWorld world(options, script);
  ScreenWatch watch(world);
  RandomHands hands(world, script, watch, random);
  try {
    hands.Work(events);
  } catch (const std::exception& error) {
    run.broken = error.what();
  }
  run.script = script.Text();
  run.events = hands.Events();
  run.loads = watch.loads_compared;
  run.pictures = watch.pictures_compared;
  run.dialogs = world.dialogs;
  run.messages = world.messages;
  run.most_lines = watch.most_lines;
  run.done = hands.Done();
  for (const RuntimeError& error : world.host.ReportedErrors()) {
    ++run.errors[std::to_string(error.Number()) + ": " + error.Description()];
  }
  return run;
}

}  // namespace orvendal
