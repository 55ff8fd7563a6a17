#include "host/windows/store/data_object.h"

#include <cstring>
#include <map>
#include <mutex>

#include "adapters/automation/bstr.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/type_information.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

constexpr wchar_t kStoreSource[] = L"OrvendalStore";

bool IsLess(REFGUID left, REFGUID right) {
  return std::memcmp(&left, &right, sizeof left) < 0;
}

/// Reading a type library anew for every field that a script touches would cost far more than the field.
class TypeDescriptions {
 public:
  void Keep() noexcept {
    const std::lock_guard lock(mutex_);
    ++users_;
  }
  void LetGo() noexcept {
    std::map<GUID, ComPtr<ITypeInfo>, decltype(&IsLess)> dropped(IsLess);
    const std::lock_guard lock(mutex_);
    if (--users_ == 0) dropped.swap(known_);
  }
  ComPtr<ITypeInfo> Find(REFIID iid) {
    const std::lock_guard lock(mutex_);
    ComPtr<ITypeInfo>& known = known_[iid];
    if (!known) Check(OwnTypeInfo(iid, known));
    return known;
  }

 private:
  std::mutex mutex_;
  int users_ = 0;
  std::map<GUID, ComPtr<ITypeInfo>, decltype(&IsLess)> known_{IsLess};
};

TypeDescriptions& Descriptions() {
  static TypeDescriptions descriptions;
  return descriptions;
}

/// The error information that ReportCurrentException left, under another source.
void RenameSource(const wchar_t* source) {
  ComPtr<IErrorInfo> left;
  if (GetErrorInfo(0, left.Receive()) != S_OK) return;
  if (const auto made = left.Query<ICreateErrorInfo>(IID_ICreateErrorInfo)) {
    made->SetSource(const_cast<LPOLESTR>(source));
  }
  SetErrorInfo(0, left.Get());
}

void NarrowCount(VARIANT* result) {
  if (!result || V_VT(result) != VT_I8) return;
  const LONGLONG count = V_I8(result);
  if (count < LONG_MIN || count > LONG_MAX) return;
  V_VT(result) = VT_I4;
  V_I4(result) = static_cast<LONG>(count);
}

}  // namespace

TypeDescriptionsHold::TypeDescriptionsHold() noexcept {
  Descriptions().Keep();
}

TypeDescriptionsHold::~TypeDescriptionsHold() {
  Descriptions().LetGo();
}

HRESULT DescribeInterface(REFIID iid, ComPtr<ITypeInfo>& description) noexcept {
  return Guarded(iid, [&] { description = Descriptions().Find(iid); });
}

HRESULT InvokeDescribed(REFIID iid, void* object, DISPID member, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrong) noexcept {
  ComPtr<ITypeInfo> description;
  const HRESULT described = DescribeInterface(iid, description);
  if (FAILED(described)) return described;
  // A failing call leaves error information, one of an earlier call must not be taken for it.
  ForgetErrorInformation();
  const HRESULT invoked = description->Invoke(object, member, flags, arguments, result, exception, wrong);
  if (SUCCEEDED(invoked)) NarrowCount(result);
  return invoked;
}

HRESULT ReportDataError(const wchar_t* source, REFIID iid) noexcept {
  const HRESULT result = ReportCurrentException(iid);
  RenameSource(NumberOfHresult(result) > 0 ? source : kStoreSource);
  return result;
}

HRESULT AsInvokeFailure(HRESULT result, EXCEPINFO* exception) noexcept {
  if (!exception) return DISP_E_EXCEPTION;
  *exception = {};
  exception->scode = result;
  ComPtr<IErrorInfo> info;
  if (GetErrorInfo(0, info.Receive()) == S_OK) {
    info->GetSource(&exception->bstrSource);
    info->GetDescription(&exception->bstrDescription);
  }
  return DISP_E_EXCEPTION;
}

void RaiseNotProvided() {
  throw RuntimeError(ado_error::kFeatureNotAvailable,
                     "Object or provider is not capable of performing requested operation.");
}

}  // namespace orvendal
