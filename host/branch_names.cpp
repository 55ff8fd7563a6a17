#include "host/branch_names.h"

#include "host/host_store.h"

namespace orvendal {

std::vector<BranchName> ReadBranches(const ConnectionRef& connection) {
  SqliteStatement rows(EmbeddedStore(connection),
                       "SELECT Sucursal, Nombre FROM Sucursales ORDER BY Sucursal");
  std::vector<BranchName> branches;
  while (rows.Step()) branches.push_back({rows.TextAt(0), rows.TextAt(1)});
  return branches;
}

}  // namespace orvendal
