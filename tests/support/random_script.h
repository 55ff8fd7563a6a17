#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace orvendal {

/// What a random script is made of.
struct RandomScriptSettings {
  std::uint64_t seed = 1;
  int steps = 40;         // things that the user does, each of one to a few lines
  std::string store;      // a fresh copy of the sample chain, which the making changes; "" for one in memory
  bool pictures = false;  // looks at painted pictures too, which need Qt
};

/// A day of somebody who tries everything, in the language of scripts, with a close look at the screen after
/// each thing done.
struct RandomScript {
  std::vector<std::string> options;  // of the command line; the first line of the text names them, too
  std::string text;
  std::map<std::string, int> carried_out;  // lines that do something, by command
  int refused = 0;                         // that were thought of and that the screen offered no hold for
};

/// The same settings give the same script, as long as the screen behaves the same.
RandomScript MakeRandomScript(const RandomScriptSettings& settings);

}  // namespace orvendal
