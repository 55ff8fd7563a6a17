#include "store/date_condition.h"

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

std::string ConvertRange(const std::string& day_text, const Region& region) {
  const std::string day = region.Format(day_text, "yyyy-mm-dd");
  return "BETWEEN CONVERT(DATETIME, '" + day + " 00:00:00', 102) AND CONVERT(DATETIME, '" + day +
         " 23:59:59', 102)";
}

}  // namespace

bool SpeaksSqlServer(const ConnectionRef& connection) {
  if (!connection) throw RuntimeError(error_number::kObjectNotSet);
  return connection->Provider() == "SQLOLEDB.1";
}

std::string DateConditionOfLoad(const ConnectionRef& connection, Date day, const Region& region) {
  const std::string day_text = region.ToText(day);
  if (SpeaksSqlServer(connection)) return ConvertRange(day_text, region);
  const std::string literal = region.Format(day_text, "m/d/yyyy");
  return "BETWEEN #" + literal + " 00:00:00# AND #" + literal + " 23:59:59#";
}

std::string DateConditionOfSave(const ConnectionRef& connection, const std::string& day_text,
                                const Region& region) {
  if (SpeaksSqlServer(connection)) return ConvertRange(day_text, region);
  return "LIKE '" + day_text + "%'";
}

}  // namespace orvendal
