#include "adapters/qt/qt_text_images.h"

namespace orvendal {
namespace {

constexpr qsizetype kMostBytes = qsizetype{4} << 20;
constexpr qsizetype kMostAskedFor = 2000;

}  // namespace

const QtTextImages::Picture* QtTextImages::Of(const Key& key, const std::function<Picture()>& draw) {
  const auto found = pictures_.constFind(key);
  if (found != pictures_.constEnd()) return &*found;
  const size_t number = qHash(key);
  if (!asked_for_.remove(number)) {
    if (asked_for_.size() >= kMostAskedFor) asked_for_.clear();
    asked_for_.insert(number);
    return nullptr;
  }
  Picture made = draw();
  if (bytes_ + made.image.sizeInBytes() > kMostBytes) {
    pictures_.clear();
    bytes_ = 0;
  }
  bytes_ += made.image.sizeInBytes();
  return &*pictures_.insert(key, std::move(made));
}

}  // namespace orvendal
