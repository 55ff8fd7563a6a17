#include "host/recording/script_sink.h"

namespace orvendal {

void ScriptText::Put(std::string_view entry, std::size_t replaced) {
  if (replaced > 0) text_.resize(starts_[replaced - 1]);
  if (replaced == 0) starts_[1] = starts_[0];
  starts_[0] = text_.size();
  text_ += entry;
}

void ScriptText::BeginAnew(std::string_view lines) {
  text_ = lines;
  starts_[0] = starts_[1] = text_.size();
}

}  // namespace orvendal
