#pragma once

#include <memory>
#include <string>

#include "host/options.h"
#include "host/store/host_store.h"

namespace orvendal {

inline constexpr const char* kStoreInMemory = ":memory:";

/// A store that somebody asked for.
struct ChosenStore {
  std::string path;       // absolute, or kStoreInMemory
  bool may_make = false;  // it is made with the sample chain if it is not there
};

/// The store of `options`, else `otherwise`, which is the one that may be made; any other only on the user's
/// word, since a mistyped name must not end in a made-up chain that somebody counts into. Raises
/// StoreUnavailable if the current folder, which a relative name counts from, is gone.
ChosenStore ChooseStore(const Options& options, const std::string& otherwise, const Words& words);

/// Raises StoreUnavailable if there is nothing to open and it may not be made.
void CheckChosenStore(const ChosenStore& chosen, const Words& words);

/// A store that is open, and what its user has to know of it.
struct OpenedStore {
  std::shared_ptr<SqliteConnection> connection;
  bool made = false;    // just now
  bool sample = false;  // the made-up chain
};

/// Opens what was chosen; `settings.path` is that of `chosen`. Raises StoreUnavailable.
OpenedStore OpenChosenStore(const ChosenStore& chosen, const StoreSettings& settings, Date today);

/// Which store is open, for the terminal: one line, or two for the made-up chain.
std::string StoreNotice(const OpenedStore& opened, const std::string& path, const Words& words);

}  // namespace orvendal
