#pragma once

#include <functional>
#include <string>

#include "host/host_context.h"
#include "host/recording/recorded_library.h"
#include "session/component_state.h"

namespace orvendal {

/// The lines of a kept script done again at the screen that is open, by what stands in for the user: its
/// dialogs are answered as they were, no message comes up, nothing is written to the store. The clock, the
/// display and what only looks are passed over.
struct WorkReplay {
  HostContext& context;
  ComponentState& state;
  RecordedLibrary& library;
  Library& stand_in;  // the library without the recorder
  /// Told the lines that put the screen into a state, which nobody who looks on at its input hears of.
  std::function<void(const std::string& line)> on_state = {};

  struct Result {
    bool whole = true;
    std::size_t done = 0;  // bytes of the script whose lines were done
    std::string why;       // the sentence of the line that could not be done
  };
  Result Run(const std::string& script);
};

}  // namespace orvendal
