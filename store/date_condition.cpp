#include "store/date_condition.h"

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

constexpr const char* kConvertMask = "yyyy-mm-dd";

std::string ConvertRange(const std::string& day) {
  return "BETWEEN CONVERT(DATETIME, '" + day + " 00:00:00', 102) AND CONVERT(DATETIME, '" + day +
         " 23:59:59', 102)";
}

// Month first between slashes, whatever separator the user's region has.
std::string LiteralDay(Date day) {
  return std::to_string(day.Month()) + "/" + std::to_string(day.Day()) + "/" + std::to_string(day.Year());
}

}  // namespace

bool SpeaksSqlServer(const ConnectionRef& connection) {
  if (!connection) throw RuntimeError(error_number::kObjectNotSet);
  return connection->Provider() == "SQLOLEDB.1";
}

std::string DateConditionOfLoad(const ConnectionRef& connection, Date day, const Region& region) {
  if (SpeaksSqlServer(connection)) return ConvertRange(region.Format(day, kConvertMask));
  const std::string literal = LiteralDay(day);
  return "BETWEEN #" + literal + " 00:00:00# AND #" + literal + " 23:59:59#";
}

std::string DateConditionOfSave(const ConnectionRef& connection, const std::string& day_text,
                                const Region& region) {
  if (SpeaksSqlServer(connection)) return ConvertRange(region.Format(day_text, kConvertMask));
  return "LIKE '" + day_text + "%'";
}

}  // namespace orvendal
