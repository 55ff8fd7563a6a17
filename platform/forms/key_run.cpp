#include "platform/forms/key_run.h"

#include "platform/base/text.h"

namespace orvendal {
namespace {

// Longer than any code that is printed; a key that is held down makes endless runs.
constexpr std::size_t kMostKept = 500;
constexpr char32_t kFirstPrintable = 32;
constexpr char32_t kDeleteWord = 127;

}  // namespace

void KeyRun::Add(char32_t character, std::uint64_t time) {
  const bool is_control = character < kFirstPrintable || character == kDeleteWord;
  if (!GoesOn(time) || (closed_ && !is_control)) {
    text_.clear();
    length_ = 0;
  }
  closed_ = is_control;
  last_ = time;
  if (is_control) return;
  if (++length_ <= kMostKept) AppendCharacter(text_, character);
}

}  // namespace orvendal
