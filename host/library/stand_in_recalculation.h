#pragma once

#include "host/host_context.h"
#include "platform/library/library.h"

namespace orvendal {

/// Stock after a count.
class StandInRecalculation final : public Recalculo {
 public:
  explicit StandInRecalculation(HostContext& context) : context_(context) {}

  /// Sets the stock of the product in the branch to the newest quantity counted there. A product without any
  /// count left keeps the stock that it has. Takes no longer when the history is long.
  void RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal, std::string& codigo,
                          std::string& texto) override;

 private:
  HostContext& context_;
};

}  // namespace orvendal
