#pragma once

#include <string>
#include <string_view>

namespace orvendal {

/// The keywords of a connection string that the embedded store reads; each is empty if it is not there.
struct ConnectionSettings {
  std::string provider;
  std::string data_source;
};

/// Reads "name=value;name=value": names without regard to case and blanks, of a name given twice the later
/// value, values in single or double quotes where they hold a semicolon. Other names are passed over. Raises
/// -2147217805 for a text that is none.
ConnectionSettings ReadConnectionString(std::string_view text);

}  // namespace orvendal
