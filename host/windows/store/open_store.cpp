#include "host/windows/store/open_store.h"

#include <optional>

#include "adapters/win32/user_region.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr std::int32_t kProviderNotFound = 3706;

/// The region lives as long as the connection that reads texts by it.
struct StoreOfUser {
  Region region = UserRegionOfSystem();
  std::shared_ptr<SqliteConnection> connection;
};

Dialect DialectOf(const std::string& provider) {
  for (const char* name : {"SQLOLEDB", "SQLOLEDB.1"}) {
    if (EqualsIgnoringCase(provider, name)) return Dialect::kSqlServer;
  }
  if (EqualsIgnoringCase(provider, "Microsoft.Jet.OLEDB.4.0")) return Dialect::kJet;
  throw RuntimeError(kProviderNotFound,
                     "Provider cannot be found. The embedded store answers as SQLOLEDB.1 and as "
                     "Microsoft.Jet.OLEDB.4.0.");
}

}  // namespace

std::shared_ptr<SqliteConnection> OpenStore(const ConnectionSettings& settings) {
  const Dialect dialect = DialectOf(settings.provider);
  const auto store = std::make_shared<StoreOfUser>();
  store->connection =
      SqliteConnection::Open(settings.data_source, dialect, store->region, OpenMode::kExisting);
  // The engine's own cache makes large joins several times slower here.
  store->connection->Execute("PRAGMA cache_size = -65536");
  return {store, store->connection.get()};
}

}  // namespace orvendal
