#include "host/recording/record_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <system_error>

#include "host/text/utf8_path.h"

namespace orvendal {
namespace {

constexpr mode_t kOfOwner = S_IRUSR | S_IWUSR;

[[noreturn]] void RaiseSystemError() {
  throw std::system_error(errno, std::generic_category());
}

std::size_t CommonStart(std::string_view one, std::string_view other) {
  const std::size_t length = std::min(one.size(), other.size());
  return static_cast<std::size_t>(
      std::mismatch(one.begin(), one.begin() + static_cast<std::ptrdiff_t>(length), other.begin()).first -
      one.begin());
}

}  // namespace

std::unique_ptr<RecordFile> RecordFile::Make(const std::string& path) {
  const int file = open(PathOf(path).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kOfOwner);
  if (file < 0) RaiseSystemError();
  return std::unique_ptr<RecordFile>(new RecordFile(file));
}

std::unique_ptr<RecordFile> RecordFile::GoOn(int file) {
  const off_t end = lseek(file, 0, SEEK_END);
  if (end < 0) RaiseSystemError();
  std::unique_ptr<RecordFile> going_on(new RecordFile(file));
  going_on->size_ = going_on->on_disk_ = static_cast<std::size_t>(end);
  return going_on;
}

RecordFile::RecordFile(int file) : file_(file) {
  syncer_ = std::thread([this] { SyncAtQuietMoments(); });
}

RecordFile::~RecordFile() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  wake_.notify_one();
  syncer_.join();
  close(file_);
}

void RecordFile::Put(std::string_view entry, std::size_t replaced) {
  if (failed_) return;
  std::string before;
  std::size_t start = size_;
  if (replaced > 0) {
    start = last_[replaced - 1].start;
    for (std::size_t i = replaced; i > 0; --i) before += last_[i - 1].text;
  } else {
    last_[1] = std::move(last_[0]);
  }
  // One write for the new end, with empty lines over what it is shorter by: whenever the program ends, the
  // file is a script.
  const std::size_t common = CommonStart(before, entry);
  std::string bytes(entry.substr(common));
  size_ = start + entry.size();
  if (size_ < on_disk_) bytes.append(on_disk_ - size_, '\n');
  Write(bytes, start + common);
  Shorten();
  last_[0] = {start, std::string(entry)};
}

void RecordFile::BeginAnew(std::string_view lines) {
  if (failed_) return;
  size_ = 0;
  Shorten();
  Write(lines, 0);
  size_ = lines.size();
  last_[0] = last_[1] = {size_, ""};
}

void RecordFile::Write(std::string_view bytes, std::size_t place) {
  while (!bytes.empty() && !failed_) {
    const ssize_t written = pwrite(file_, bytes.data(), bytes.size(), static_cast<off_t>(place));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return Fail();
    bytes.remove_prefix(static_cast<std::size_t>(written));
    place += static_cast<std::size_t>(written);
    on_disk_ = std::max(on_disk_, place);
  }
  const std::lock_guard lock(mutex_);
  ++writes_;
  if (!dirty_) wake_.notify_one();
  dirty_ = true;
}

void RecordFile::Shorten() {
  if (failed_ || on_disk_ == size_) return;
  if (ftruncate(file_, static_cast<off_t>(size_)) != 0) return Fail();
  on_disk_ = size_;
}

void RecordFile::Fail() {
  const int error = errno;
  failed_ = true;
  // A line that is half there would be read as another one; the reader leaves a last one without its end out.
  if (on_failure) on_failure(std::generic_category().message(error));
}

void RecordFile::SyncAtQuietMoments() {
  using namespace std::chrono_literals;
  constexpr auto kQuiet = 1s;
  constexpr int kLongestWait = 10;  // seconds of work without a pause
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return dirty_ || ending_; });
    std::uint64_t seen = 0;
    for (int waited = 0; waited < kLongestWait && !ending_ && seen != writes_; ++waited) {
      seen = writes_;
      wake_.wait_for(lock, kQuiet, [this] { return ending_; });
    }
    if (dirty_) {
      dirty_ = false;
      lock.unlock();
      fdatasync(file_);
      lock.lock();
    }
    if (ending_ && !dirty_) return;
  }
}

}  // namespace orvendal
