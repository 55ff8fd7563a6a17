#include "host/store/host_store.h"

#include <filesystem>

#include "host/error_words.h"
#include "host/store/store_fit.h"
#include "host/text/utf8_path.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

namespace fs = std::filesystem;

constexpr const char* kInMemory = ":memory:";

// Why an opening failed with `error`. What the engine cannot know stands first.
StoreUnavailable Explain(const StoreSettings& settings, const RuntimeError& error, bool may_make) {
  const Words& words = settings.words;
  const fs::path file = PathOf(settings.path);
  std::error_code ignored;
  if (settings.path != kInMemory) {
    const fs::path folder = file.parent_path();
    if (!folder.empty() && !fs::is_directory(folder, ignored)) {
      return StoreUnavailable(Fill(words.folder_missing, {TextOf(folder)}));
    }
    if (fs::is_directory(file, ignored))
      return StoreUnavailable(Fill(words.store_is_folder, {settings.path}));
    if (!fs::exists(file, ignored)) {
      return StoreUnavailable(Fill(may_make ? words.store_refused : words.store_missing, {settings.path}));
    }
  }
  const std::string told = DescriptionInWords(words, error.Description(), settings.path);
  if (told != error.Description()) return StoreUnavailable(told);
  return StoreUnavailable(Fill(words.store_other, {settings.path, error.Description()}));
}

// A file that nobody has put anything into.
bool HoldsNothing(SqliteConnection& store) {
  SqliteStatement look(
      store,
      "SELECT 1 FROM sqlite_master UNION ALL SELECT 1 FROM pragma_user_version WHERE user_version <> 0");
  return !look.Step();
}

// Another copy of the program may be a moment ahead.
void MakeUnlessMade(SqliteConnection& store, const MakeStore& make) {
  try {
    make(store);
  } catch (const RuntimeError&) {
    if (HoldsNothing(store)) throw;
  }
}

void CheckFit(SqliteConnection& store, const StoreSettings& settings) {
  const std::string why = WhyUnfit(store, settings.path, settings.words);
  if (!why.empty()) throw StoreDoesNotFit(why);
}

}  // namespace

StoreUnavailable::StoreUnavailable(const std::string& description)
    : RuntimeError(ado_error::kUnspecified, description) {}

std::shared_ptr<SqliteConnection> OpenOrMake(const StoreSettings& settings, const MakeStore& make) {
  try {
    bool is_new = false;
    auto store = SqliteConnection::Open(settings.path, settings.dialect, settings.region, OpenMode::kCreate,
                                        [&](SqliteConnection& opened) {
                                          is_new = HoldsNothing(opened);
                                          if (!is_new) CheckFit(opened, settings);
                                        });
    if (!is_new) return store;
    MakeUnlessMade(*store, make);
    CheckFit(*store, settings);
    return store;
  } catch (const StoreUnavailable&) {
    throw;
  } catch (const RuntimeError& error) {
    throw Explain(settings, error, true);
  }
}

std::shared_ptr<SqliteConnection> OpenExistingStore(const StoreSettings& settings) {
  try {
    return SqliteConnection::Open(settings.path, settings.dialect, settings.region, OpenMode::kExisting,
                                  [&](SqliteConnection& opened) { CheckFit(opened, settings); });
  } catch (const StoreUnavailable&) {
    throw;
  } catch (const RuntimeError& error) {
    throw Explain(settings, error, false);
  }
}

SqliteConnection& EmbeddedStore(const ConnectionRef& connection) {
  auto* store = dynamic_cast<SqliteConnection*>(connection.get());
  if (store == nullptr) throw AdoError(ado_error::kInvalidConnection);
  return *store;
}

}  // namespace orvendal
