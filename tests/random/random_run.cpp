#include "tests/random/random_run.h"

#include <exception>

#include "form/columns.h"
#include "host/command_line.h"
#include "tests/random/random_hands.h"
#include "tests/support/script_writer.h"

namespace orvendal {
namespace {

Options OptionsOf(SampleRandom& random, std::string& first_line) {
  std::vector<std::string> words;
  if (random.Chance(40)) words.insert(words.end(), {"--dialecto", "jet"});
  if (random.Chance(30)) words.insert(words.end(), {"--region", "en-US"});
  for (const std::string& word : words) first_line += " " + word;
  return ReadCommandLine(words, Language::kSpanish, {}).options;
}

// The lines of a script that make sure of what stands on the screen.
std::string WhatTheScreenShows(UserWorld& world) {
  const std::shared_ptr<FrmOrvendalciales> screen = world.Screen();
  if (!screen) return {};
  std::string lines;
  const auto expect = [&lines](const std::string& property, const std::string& value) {
    lines += "espera " + property + " " + Quoted(value) + "\n";
  };
  const MSFlexGrid& grid = screen->MSFProductos;
  for (int row = 1; row < grid.Rows(); ++row) {
    for (const int column : {column::kCode, column::kQuantity}) {
      expect("MSFProductos.TextMatrix(" + std::to_string(row) + "," + std::to_string(column) + ")",
             grid.TextMatrix(row, column));
    }
  }
  expect("MSFProductos.Row", std::to_string(grid.Row()));
  expect("MSFProductos.Col", std::to_string(grid.Col()));
  expect("TxtMSF.Visible", screen->TxtMSF.Visible() ? "True" : "False");
  expect("TxtMSF.Text", screen->TxtMSF.Text());
  return lines;
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
  if (run.broken.empty()) run.script += WhatTheScreenShows(world);
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
