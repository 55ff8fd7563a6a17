#include "host/library/branch_names.h"

#include "host/store/store_rows.h"

namespace orvendal {

std::vector<BranchName> ReadBranches(const HostContext& context, const ConnectionRef& connection) {
  const Region& region = context.window_host.UserRegion();
  const RecordsetRef rows =
      ReadRows(context.recordsets, connection, "SELECT Sucursal, Nombre FROM Sucursales ORDER BY Sucursal");
  std::vector<BranchName> branches;
  for (; !rows->AtEnd(); rows->MoveNext()) {
    branches.push_back({TextOf(*rows, "Sucursal", region), TextOf(*rows, "Nombre", region)});
  }
  return branches;
}

}  // namespace orvendal
