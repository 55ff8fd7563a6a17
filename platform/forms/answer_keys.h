#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

#include "platform/forms/key_run.h"

namespace orvendal {

/// Decides which keys a message box gets, so that what a bar-code reader types answers nothing: no character
/// is an answer by itself, the reader's other keys, Enter for instance, are dropped with one `beep` a code,
/// and a blank presses a button only when no other key has come close behind it.
///
/// `keys` are those that came before, and take the box's own; it outlives the object.
class AnswerKeys {
 public:
  AnswerKeys(KeyRun& keys, std::function<void()> beep) : keys_(keys), beep_(std::move(beep)) {}

  struct Verdict {
    bool taken = false;  // the box does not get the key
    /// The button that has the focus now is to be pressed after KeyRun::kShortestPause, unless another key
    /// comes before. A blank that an earlier key asked for is off.
    bool holds_blank = false;
  };
  /// A key of the box at that time of the keys' clock, with the character that it stands for, if any. Not for
  /// keys that only modify others, nor for those with Alt.
  Verdict Take(std::optional<char32_t> character, std::uint64_t time);

 private:
  KeyRun& keys_;
  std::function<void()> beep_;
  bool warned_ = false;  // of this code
};

}  // namespace orvendal
