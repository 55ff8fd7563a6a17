#pragma once

#include "adapters/com/boundary.h"
#include "platform/library/library.h"

struct _DatosClase;

namespace orvendal {

/// The host's session object behind its interface. Holds one reference to it.
class ComSession final : public DatosClase {
 public:
  /// `boundary` outlives the object; `host` is not empty.
  ComSession(Boundary& boundary, _DatosClase* host);

  void RellenarSesion(const SessionArguments& session) override;
  _DatosClase* Host() const { return host_.Get(); }

 private:
  Boundary& boundary_;
  ComPtr<_DatosClase> host_;
};

}  // namespace orvendal
