#pragma once

#include <optional>
#include <string>

#include "adapters/sqlite/dialect.h"
#include "host/language.h"
#include "platform/base/region.h"

namespace orvendal {

struct PixelSize {
  int width = 0;
  int height = 0;
};

/// What the user asked for on the command line.
struct Options {
  std::string sucursal = "01";
  std::string puesto = "1";
  std::string turno = "1";
  Language language = Language::kSpanish;
  const Region* region = &Region::Spanish();
  int base_width = 15360;   // twips
  int base_height = 11520;  // twips
  std::optional<PixelSize> display;
  std::optional<std::string> store;
  bool create = false;  // the store named may be made
  Dialect dialect = Dialect::kSqlServer;
  std::string picture;  // empty: open a window
  std::string record;   // the file that the session is recorded into; empty: none
};

}  // namespace orvendal
