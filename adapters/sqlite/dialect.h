#pragma once

namespace orvendal {

/// Whose statements a connection to the embedded store understands, and whose manners it shows.
enum class Dialect { kSqlServer, kJet };

}  // namespace orvendal
