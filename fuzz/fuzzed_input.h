#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "platform/base/region.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

/// Bytes that nobody chose, taken from the front as choices and texts. Past their end there are zeros.
class FuzzedInput {
 public:
  FuzzedInput(const std::uint8_t* bytes, std::size_t size)
      : rest_(reinterpret_cast<const char*>(bytes), size) {}

  std::uint8_t Byte() {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return byte;
  }
  bool Bool() { return Byte() % 2 != 0; }
  const Region& AnyRegion() {
    const Region* const regions[] = {&Region::Spanish(), &Region::Catalan(), &Region::English()};
    return *regions[Byte() % 3];
  }
  /// Up to the next line break, which is taken as well.
  std::string Line() {
    const std::size_t end = rest_.find('\n');
    std::string line(rest_.substr(0, end));
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return line;
  }
  std::string Rest() { return std::string(std::exchange(rest_, {})); }
  bool IsEmpty() const { return rest_.empty(); }

 private:
  std::string_view rest_;
};

/// Ends the process, so that the fuzzer keeps the input.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

/// Whether `action` came to its end. An error with a number that its interface does not name ends the
/// process.
template <typename Action>
bool Succeeds(const std::set<std::int32_t>& expected_errors, const Action& action) {
  try {
    action();
    return true;
  } catch (const RuntimeError& error) {
    if (!expected_errors.contains(error.Number())) {
      std::fprintf(stderr, "error %d: %s\n", error.Number(), error.what());
      Require(false, "errors are those that the interface names");
    }
    return false;
  }
}

}  // namespace orvendal

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);
