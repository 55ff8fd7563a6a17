#pragma once

#include <memory>
#include <string>

#include "adapters/automation/com_headers.h"
#include "platform/library/library.h"

struct _DatosClase;

namespace orvendal {

/// The component's state in this process, made by the first call of Orvendal and kept until nothing needs the
/// module any more. It belongs to the thread that made it; when that has ended, the next one has its own.
class ComponentModule {
 public:
  static ComponentModule& Instance() noexcept;
  constexpr ComponentModule() = default;
  ComponentModule(const ComponentModule&) = delete;
  ComponentModule& operator=(const ComponentModule&) = delete;

  /// Calls the component's function for a host object, which may be empty. Raises what the function raises,
  /// and RPC_E_WRONG_THREAD from another thread than that of the first call.
  bool Orvendal(_DatosClase* datos_clase, const std::string& suc, const std::string& puest,
                const std::string& turn);

  /// Whether the module can go: no object, lock or call keeps it and no form is loaded. Then the state is
  /// dropped, with every reference that the session holds.
  bool LetGoIfUnused() noexcept;

 private:
  struct Loaded;
  Loaded& LoadedState();
  bool HasState() const noexcept;
  bool IsFree() const noexcept;

  // A plain pointer: nothing may run when the process unmaps the module.
  Loaded* loaded_ = nullptr;
  bool (*still_in_use_)() = nullptr;  // what the last state's windows left
};

}  // namespace orvendal
