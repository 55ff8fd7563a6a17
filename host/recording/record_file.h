#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "host/recording/script_sink.h"

namespace orvendal {

/// A recorded script in a file of its owner alone. Each entry is handed to the system before Put returns, so
/// that the end of the program, whatever its kind, loses none; at quiet moments the disk is told to keep it,
/// beside the program's work, so that the end of the machine loses what was done since the last of them.
///
/// A file that takes no more (a full disk) ends at its last whole entry.
class RecordFile final : public ScriptSink {
 public:
  /// A file that is not there yet. Raises std::system_error.
  static std::unique_ptr<RecordFile> Make(const std::string& path);
  /// Takes over an open file that is to go on at its end. Raises std::system_error.
  static std::unique_ptr<RecordFile> GoOn(int file);
  ~RecordFile() override;

  void Put(std::string_view entry, std::size_t replaced = 0) override;
  void BeginAnew(std::string_view lines) override;
  bool IsEmpty() const { return size_ == 0; }

  /// Called once if the file takes no more, with what the system says; on the thread that writes.
  std::function<void(const std::string& reason)> on_failure;

 private:
  explicit RecordFile(int file);
  void Write(std::string_view bytes, std::size_t place);
  void Shorten();
  void Fail();
  void SyncAtQuietMoments();

  const int file_;
  std::size_t size_ = 0;     // of the script
  std::size_t on_disk_ = 0;  // of the file
  bool failed_ = false;
  struct Entry {
    std::size_t start = 0;
    std::string text;
  };
  Entry last_[kReplaceable];  // the newest first

  std::mutex mutex_;  // of what the thread below shares
  std::condition_variable wake_;
  bool dirty_ = false;
  bool ending_ = false;
  std::uint64_t writes_ = 0;
  std::thread syncer_;
};

}  // namespace orvendal
