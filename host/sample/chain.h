#pragma once

#include <cstdint>

#include "adapters/sqlite/sqlite_store.h"
#include "platform/base/date.h"

namespace orvendal {

inline constexpr std::uint64_t kSampleSeed = 20261116;

/// Fills the empty tables of `store` with a chain of hairdressing branches: 12 branches, 80 employees, 2,500
/// products with their references, stock per branch, and 90 days of counts that end at `today`. Some branches
/// have counted today already, the first among them. The same seed and day make the same chain, whatever the
/// machine. It does not commit: whoever calls it has begun a transaction. Raises the store's error.
void FillSampleChain(SqliteConnection& store, Date today, std::uint64_t seed = kSampleSeed);

/// The tables, the journal of the stand-in library, the sample chain and its mark in a store that has no
/// table yet, all or nothing. Raises the store's error.
void MakeSampleStore(SqliteConnection& store, Date today, std::uint64_t seed = kSampleSeed);

}  // namespace orvendal
