#pragma once

#include <string>
#include <vector>

#include "host/host_context.h"

namespace orvendal {

struct BranchName {
  std::string key;
  std::string name;
};

/// The branches of the store by their keys. Raises the store's error.
std::vector<BranchName> ReadBranches(const HostContext& context, const ConnectionRef& connection);

}  // namespace orvendal
