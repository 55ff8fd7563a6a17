#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/sample/random.h"

namespace orvendal {

struct SampleBranch {
  std::string key;
  std::string name;
};

struct SampleEmployee {
  std::string code;
  std::string name;
  std::size_t branch = 0;  // index of the branch
};

/// Twelve branches with the keys 01 to 12.
std::vector<SampleBranch> MakeSampleBranches();

/// `count` employees with different names, spread evenly over the branches.
std::vector<SampleEmployee> MakeSampleEmployees(SampleRandom& random, std::size_t count,
                                                std::size_t branch_count);

}  // namespace orvendal
