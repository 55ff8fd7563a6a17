#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace orvendal {

/// What came of a random user's day.
struct RandomRun {
  std::string broken;  // what holds no longer; "" if all is well
  std::string script;  // what was done until then; at the end of a day, what the screen shows
  int events = 0;
  int loads = 0;     // that were compared with the store
  int pictures = 0;  // that were compared with the one before
  int dialogs = 0;
  int messages = 0;
  int most_lines = 0;
  std::map<std::string, int> done;    // things done, by name
  std::map<std::string, int> errors;  // that the user was told, by number and description
};

/// The same seed does the same, as long as the screen behaves the same.
RandomRun RunRandomUser(std::uint64_t seed, int events);

}  // namespace orvendal
