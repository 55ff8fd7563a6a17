#pragma once

#include <string>

#include "form/frm_orvendalciales.h"

namespace orvendal {

/// What came out of the employee picker.
struct FrmOrvendalciales::Pick {
  bool accepted = false;
  std::string name;
  std::string code;
};

}  // namespace orvendal
