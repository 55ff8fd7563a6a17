#include "host/sample/made_store.h"

#include "host/sample/chain.h"

namespace orvendal {

std::shared_ptr<SqliteConnection> OpenOrMakeStore(const StoreSettings& settings, Date today) {
  return OpenOrMake(settings, [today](SqliteConnection& store) { MakeSampleStore(store, today); });
}

}  // namespace orvendal
