#pragma once

#include <string>

#include "DllOrvendal.h"
#include "adapters/automation/dual_object.h"

struct _DatosClase;

namespace orvendal {

/// The component's one public class as COM sees it: callable by its vtable and by Invoke. It has no events,
/// so it answers for connection points that there are none. Its function answers RPC_E_WRONG_THREAD from
/// another thread than the one that made the object.
class ClassOrvendalObject final
    : public ClassObject<_ClassOrvendal, ::ClassOrvendal, IConnectionPointContainer> {
 public:
  // _ClassOrvendal
  HRESULT STDMETHODCALLTYPE Orvendal(_DatosClase** datos_clase, BSTR* suc, BSTR* puest, BSTR* turn,
                                     VARIANT_BOOL* result) noexcept override;

  // IConnectionPointContainer
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) noexcept override;

 private:
  // The module's description is not needed for its one function.
  HRESULT NumbersOf(LPOLESTR* names, UINT count, DISPID* ids) override;
  HRESULT Call(const DispatchCall& call) override;
  VARIANT_BOOL CallComponent(_DatosClase* host, const std::string& suc, const std::string& puest,
                             const std::string& turn);

  const DWORD home_ = GetCurrentThreadId();
};

}  // namespace orvendal
