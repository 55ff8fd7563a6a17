#pragma once

#include <cstddef>

struct sqlite3;

namespace orvendal::sqlite {

/// Whether a search of `needle` bytes in `text` bytes, at worst each against each, would hold up the
/// statement beyond its time: one call of a function is not interrupted.
bool TakesTooLong(std::size_t text, std::size_t needle);

/// Puts functions that answer the same in the place of the engine's instr, replace, trim, ltrim and rtrim,
/// whose one call takes minutes to hours on long texts: trimming does not depend on how many characters are
/// to go, and a search that TakesTooLong ends the statement as a value that is too long does.
void RegisterBoundedFunctions(sqlite3* database);

}  // namespace orvendal::sqlite
