#pragma once

#include <functional>
#include <memory>
#include <string>

#include "adapters/sqlite/sqlite_store.h"
#include "host/words.h"
#include "platform/base/region.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

/// A store that cannot be used. The description says why in the words of the user's language.
class StoreUnavailable : public RuntimeError {
 public:
  explicit StoreUnavailable(const std::string& description);
};

/// The database can be opened, and is not what the program counts into: fields or tables are missing, say.
class StoreDoesNotFit final : public StoreUnavailable {
 public:
  using StoreUnavailable::StoreUnavailable;
};

/// Where the host's store is and how it is to answer. `region` and `words` outlive it.
struct StoreSettings {
  std::string path;  // ":memory:" for one that is gone with its connection
  Dialect dialect = Dialect::kSqlServer;
  const Region& region;
  const Words& words;
};

/// Puts the tables into a store that has none yet, all or nothing.
using MakeStore = std::function<void(SqliteConnection& store)>;

/// Opens the store. One that does not exist yet, or has no table at all, is made by `make`. Raises
/// StoreUnavailable: the folder is missing, another program has it locked, it is no database, it does not fit
/// (WhyUnfit). Into one that does not fit nothing is written.
std::shared_ptr<SqliteConnection> OpenOrMake(const StoreSettings& settings, const MakeStore& make);

/// Opens a store that has to be there, and to fit. Raises StoreUnavailable.
std::shared_ptr<SqliteConnection> OpenExistingStore(const StoreSettings& settings);

/// The connection as one to the embedded store, for the host's own statements. Raises 3709 for any other.
SqliteConnection& EmbeddedStore(const ConnectionRef& connection);

}  // namespace orvendal
