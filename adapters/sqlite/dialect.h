#pragma once

namespace orvendal {

/// The SQL dialect that a connection to the embedded store understands, with the behaviour of its provider.
enum class Dialect { kSqlServer, kJet };

}  // namespace orvendal
