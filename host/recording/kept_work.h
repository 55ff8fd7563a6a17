#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/sqlite/sqlite_store.h"
#include "host/recording/record_file.h"
#include "platform/base/date.h"

namespace orvendal {

/// What a script is kept of: one store, one branch, one day.
struct WorkPlace {
  std::string folder;  // of the kept scripts
  std::string store;   // its file
  std::string branch;
  Date day;
};

/// The folder in which the program keeps what its user types; empty if the user has none.
std::string FolderOfKeptWork();

/// A kept script in its file. It is locked for as long as the object lives, so that no other program takes it
/// for one whose writer has ended.
class KeptWork {
 public:
  KeptWork(std::string path, int file);
  KeptWork(KeptWork&& other) noexcept;
  KeptWork& operator=(KeptWork&& other) noexcept;
  ~KeptWork();

  const std::string& Path() const { return path_; }
  /// Its whole lines: one that the end of the program cut is left out.
  std::string Script() const;
  /// When it was written last, in local time.
  Date Written() const;
  /// Cuts it to so many bytes and hands the file over, which stays locked until the record ends. Raises
  /// std::system_error.
  std::unique_ptr<RecordFile> GoOn(std::size_t bytes);
  /// A place beside it for what its user does not want back, and the way there; it stays where it is if the
  /// system does not let it go.
  std::string AsidePath(Date now) const;
  void PutAside(const std::string& path);

 private:
  std::string path_;
  int file_;
};

/// Looks for the scripts of that place whose writers have ended, those that hold work first, the newest
/// first. Makes the folder.
std::vector<KeptWork> UnfinishedWork(const WorkPlace& place);

/// A new script of that place, empty and locked. Raises std::system_error.
struct NewWork {
  std::string path;
  std::unique_ptr<RecordFile> file;
};
NewWork MakeKeptWork(const WorkPlace& place);

/// Whether somebody typed or deleted something since the script began anew.
bool HoldsWork(const std::string& script);
/// The line after which it does.
inline constexpr const char* kWorkBeginsHere = "# Desde aquí, sin guardar.";

/// What the store holds of a branch and a day, in a few characters that change with it; and the line of a
/// script that says so.
std::string PrintOfDay(SqliteConnection& store, const std::string& branch, Date day);
std::string PrintLine(const std::string& branch, Date day, const std::string& print);
/// Whether the store holds something else by now than the script says.
bool HasChangedSince(SqliteConnection& store, const std::string& script);

}  // namespace orvendal
