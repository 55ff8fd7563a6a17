#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orvendal::testing_support {

/// What happened, in its order. Whoever records writes here, so that different recorders share one order.
class EventLog {
 public:
  /// Gives what another recorder has kept since it was last asked; it comes before the next entry.
  std::function<std::vector<std::string>()> drain_first;

  void Add(const std::string& entry) {
    Drain();
    entries_.push_back(entry);
  }
  std::vector<std::string> Take() {
    Drain();
    return std::exchange(entries_, {});
  }

 private:
  void Drain() {
    if (!drain_first) return;
    for (std::string& entry : drain_first()) entries_.push_back(std::move(entry));
  }

  std::vector<std::string> entries_;
};

}  // namespace orvendal::testing_support
