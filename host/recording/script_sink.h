#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvendal {

/// Where a recorded script goes, in entries: what one event of the user makes, one line or a few, each with
/// its line break. Nothing is raised: a sink that cannot write any more keeps that to itself until it is
/// asked.
class ScriptSink {
 public:
  /// So many entries at the end can still be replaced.
  static constexpr std::size_t kReplaceable = 2;

  virtual ~ScriptSink() = default;
  /// Adds an entry in place of the last `replaced` ones: a press and its release become a click.
  virtual void Put(std::string_view entry, std::size_t replaced = 0) = 0;
  /// Begins again with these lines.
  virtual void BeginAnew(std::string_view lines) = 0;
};

/// A script that is kept in memory.
class ScriptText final : public ScriptSink {
 public:
  void Put(std::string_view entry, std::size_t replaced = 0) override;
  void BeginAnew(std::string_view lines) override;
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  std::size_t starts_[kReplaceable] = {};  // of the last entries, the newest first
};

}  // namespace orvendal
