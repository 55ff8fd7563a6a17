// random_users SEED EVENTS [SEEDS]: random users at the screen, one seed after the other, each for so many
// events. The first one that finds something that does not hold ends it, and its script is printed.
// random_users SEED EVENTS guion: prints the script of that seed, whatever it finds.

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "tests/random/random_run.h"

int main(int count, char** words) {
  if (count < 3 || count > 4) {
    std::cerr << "usage: random_users SEED EVENTS [SEEDS | guion]\n";
    return 2;
  }
  const std::uint64_t first = std::strtoull(words[1], nullptr, 10);
  const int events = std::atoi(words[2]);
  const bool prints = count == 4 && std::string_view(words[3]) == "guion";
  const std::uint64_t seeds = count == 4 && !prints ? std::strtoull(words[3], nullptr, 10) : 1;
  std::map<std::string, int> done;
  std::map<std::string, int> errors;
  long all = 0;
  long loads = 0;
  long dialogs = 0;
  long messages = 0;
  int most_lines = 0;
  const auto start = std::chrono::steady_clock::now();
  for (std::uint64_t seed = first; seed < first + seeds; ++seed) {
    const orvendal::RandomRun run = orvendal::RunRandomUser(seed, events);
    all += run.events;
    loads += run.loads;
    dialogs += run.dialogs;
    messages += run.messages;
    most_lines = std::max(most_lines, run.most_lines);
    for (const auto& [name, times] : run.done) done[name] += times;
    for (const auto& [error, times] : run.errors) errors[error] += times;
    if (prints || !run.broken.empty()) std::cout << run.script;
    if (!run.broken.empty()) {
      std::cerr << "seed " << seed << ", event " << run.events << ": " << run.broken << '\n';
      return 1;
    }
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  std::cerr << all << " events in " << seconds.count() << " s; " << loads << " loads compared, " << dialogs
            << " dialogs, " << messages << " messages, at most " << most_lines << " lines\n";
  for (const auto& [name, times] : done) std::cerr << "  " << name << ' ' << times;
  std::cerr << '\n';
  for (const auto& [error, times] : errors) std::cerr << "  " << times << " x error " << error << '\n';
}
