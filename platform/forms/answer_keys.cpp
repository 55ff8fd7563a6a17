#include "platform/forms/answer_keys.h"

namespace orvendal {

AnswerKeys::Verdict AnswerKeys::Take(std::optional<char32_t> character, std::uint64_t time) {
  const bool goes_on = keys_.GoesOn(time);
  const bool is_reader = keys_.IsReaderAt(time);
  if (!goes_on) warned_ = false;
  keys_.Add(character.value_or(U'\r'), time);
  if (keys_.IsReaderAt(time) && !warned_) {
    warned_ = true;
    beep_();
  }
  return {character.has_value() || is_reader, character == U' ' && !goes_on};
}

}  // namespace orvendal
