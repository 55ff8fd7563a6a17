#pragma once

#include <filesystem>
#include <string>

namespace orvendal::bench {

/// The day of everything that is measured.
inline constexpr const char* kDay = "2026-11-16";

/// One branch for each day that is measured, so that they all lie in one file.
struct Day {
  const char* branch;
  int lines;
};
inline constexpr Day kLoad3000{"01", 3'000};
inline constexpr Day kLoad10000{"02", 10'000};
inline constexpr Day kLoad100000{"03", 100'000};
inline constexpr Day kSave3000{"04", 3'000};
inline constexpr Day kSave30000{"05", 30'000};
inline constexpr Day kSave100{"06", 100};
inline constexpr Day kEmpty{"07", 0};
inline constexpr Day kScan100{"08", 100};
inline constexpr Day kScan30000{"09", 30'000};

inline constexpr int kProducts = 50'000;

/// The code of a product by its place among all of them. Neighbours in a count lie far from each other in the
/// table, as goods on a shelf do.
std::string CodeOf(int place);

/// A store in a file, in a folder that goes with the program: the days above, and rows of other days.
class BenchStore {
 public:
  explicit BenchStore(int rows_of_history);
  ~BenchStore();
  BenchStore(const BenchStore&) = delete;
  BenchStore& operator=(const BenchStore&) = delete;

  std::string Path() const { return (folder_ / "chain.db").string(); }

  /// Made when somebody first asks.
  static const BenchStore& WithLongHistory();   // 1,000,000 rows
  static const BenchStore& WithShortHistory();  // 1,000 rows

 private:
  void Fill(int rows_of_history) const;

  std::filesystem::path folder_;
};

}  // namespace orvendal::bench
