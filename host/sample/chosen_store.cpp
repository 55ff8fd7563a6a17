#include "host/sample/chosen_store.h"

#include <filesystem>

#include "host/sample/made_store.h"
#include "host/store/sample_mark.h"
#include "host/text/printed_text.h"
#include "host/text/utf8_path.h"

namespace orvendal {
namespace {

namespace fs = std::filesystem;

bool IsThere(const std::string& path) {
  std::error_code error;
  return fs::exists(PathOf(path), error) || error;
}

bool IsEmpty(const std::string& path) {
  std::error_code error;
  return fs::is_regular_file(PathOf(path), error) && fs::file_size(PathOf(path), error) == 0;
}

bool FolderIsThere(const std::string& path) {
  std::error_code ignored;
  return fs::is_directory(PathOf(path).parent_path(), ignored);
}

}  // namespace

ChosenStore ChooseStore(const Options& options, const std::string& otherwise, const Words& words) {
  const std::string name = options.store.value_or(otherwise);
  const bool may_make = options.create || name == otherwise;
  if (name == kStoreInMemory) return {name, may_make};
  std::error_code error;
  const fs::path path = fs::absolute(PathOf(name), error);
  if (error) throw StoreUnavailable(Fill(words.current_folder_gone, {name}));
  return {TextOf(path), may_make};
}

void CheckChosenStore(const ChosenStore& chosen, const Words& words) {
  if (chosen.may_make) return;
  const bool in_memory = chosen.path == kStoreInMemory;
  if (in_memory || (!IsThere(chosen.path) && FolderIsThere(chosen.path))) {
    throw StoreUnavailable(Fill(words.store_not_there, {chosen.path}));
  }
  if (IsEmpty(chosen.path)) throw StoreUnavailable(Fill(words.store_empty, {chosen.path}));
}

OpenedStore OpenChosenStore(const ChosenStore& chosen, const StoreSettings& settings, Date today) {
  CheckChosenStore(chosen, settings.words);
  OpenedStore opened;
  opened.made = chosen.path == kStoreInMemory || !IsThere(chosen.path) || IsEmpty(chosen.path);
  opened.connection = chosen.may_make ? OpenOrMakeStore(settings, today) : OpenExistingStore(settings);
  SqliteRecordsetFactory recordsets;
  opened.sample = SaysItIsMadeUp(recordsets, opened.connection);
  return opened;
}

std::string StoreNotice(const OpenedStore& opened, const std::string& path, const Words& words) {
  const std::string_view which = opened.made ? words.store_just_made : words.store_in_use;
  std::string notice = Fill(which, {PrintedText(path)}) + "\n";
  if (opened.sample) notice += std::string(words.sample_chain) + "\n";
  return notice;
}

}  // namespace orvendal
