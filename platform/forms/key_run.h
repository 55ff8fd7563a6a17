#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvendal {

/// Tells what a bar-code reader types from what a hand does: a reader sends the characters of a code, and the
/// Enter behind them, with less than 50 milliseconds from one key to the next. No hand does that three times.
///
/// Times are milliseconds of whatever clock the keys come with. One that goes backwards ends the run.
/// Invariant: `text_` holds the first of the `length_` characters that came so close behind one another.
class KeyRun {
 public:
  static constexpr std::uint64_t kShortestPause = 50;
  static constexpr std::size_t kFewestOfReader = 3;

  /// A key came that stands for this character. A control character, Enter for instance, closes the run: the
  /// next printable one begins another.
  void Add(char32_t character, std::uint64_t time);

  /// Whether a key at that time comes so close behind the last one that the same hand must have sent it.
  bool GoesOn(std::uint64_t time) const {
    return length_ > 0 && time >= last_ && time - last_ < kShortestPause;
  }
  /// Whether a key at that time is a reader's. The first two characters of a code are not known for it yet.
  bool IsReaderAt(std::uint64_t time) const { return length_ >= kFewestOfReader && GoesOn(time); }

  /// Characters of the run so far, and what they say; a run longer than any code is cut.
  std::size_t Length() const { return length_; }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  std::size_t length_ = 0;
  std::uint64_t last_ = 0;
  bool closed_ = false;
};

}  // namespace orvendal
