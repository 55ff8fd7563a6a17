#pragma once

#include <string>

#include "tests/support/form_driver.h"

namespace orvendal::testing_support {

/// Codes of the stored counts for which the SQL condition holds, in the order in which they were added,
/// separated by blanks.
inline std::string StoredCodes(FormDriver& screen, const std::string& condition = "1 = 1") {
  return screen.Sql(
      "SELECT COALESCE(GROUP_CONCAT(IdProducto, ' '), '') FROM (SELECT IdProducto FROM HistOrvendalcial "
      "WHERE " +
      condition + " ORDER BY rowid)");
}
/// Those of a day ("2026-11-16"); those of a branch.
inline std::string StoredCodesOn(FormDriver& screen, const std::string& day) {
  return StoredCodes(screen, "Fecha LIKE '" + day + "%'");
}
inline std::string StoredCodesIn(FormDriver& screen, const std::string& branch) {
  return StoredCodes(screen, "IdSucursal = '" + branch + "'");
}

}  // namespace orvendal::testing_support
