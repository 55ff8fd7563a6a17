#pragma once

#include "host/host_context.h"
#include "platform/library/library.h"

namespace orvendal {

/// The sample host's session object: it fills the session from the context. It leaves the branch code as the
/// caller gave it.
class SampleSession final : public DatosClase {
 public:
  explicit SampleSession(HostContext& context) : context_(context) {}

  void RellenarSesion(const SessionArguments& session) override;

 private:
  HostContext& context_;
};

}  // namespace orvendal
