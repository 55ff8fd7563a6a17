#pragma once

#include <string>

#include "DllOrvendal.h"
#include "adapters/automation/counted.h"

struct _DatosClase;

namespace orvendal {

/// The component's one public class as COM sees it: callable by its vtable and by Invoke. It has no events,
/// so it answers for connection points that there are none. Its function answers RPC_E_WRONG_THREAD from
/// another thread than the one that made the object.
class ClassOrvendalObject final
    : public Counted<_ClassOrvendal, ISupportErrorInfo, IProvideClassInfo, IConnectionPointContainer> {
 public:
  // IUnknown
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;

  // IDispatch
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) noexcept override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid,
                                          DISPID* ids) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* exception, UINT* wrong) noexcept override;

  // _ClassOrvendal
  HRESULT STDMETHODCALLTYPE Orvendal(_DatosClase** datos_clase, BSTR* suc, BSTR* puest, BSTR* turn,
                                     VARIANT_BOOL* result) noexcept override;

  // ISupportErrorInfo
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override;

  // IProvideClassInfo
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override;

  // IConnectionPointContainer
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) noexcept override;

 private:
  VARIANT_BOOL CallComponent(_DatosClase* host, const std::string& suc, const std::string& puest,
                             const std::string& turn);

  const DWORD home_ = GetCurrentThreadId();
};

}  // namespace orvendal
