#include "tests/adapters/automation/described_interface.h"

#include <gtest/gtest.h>

#include <array>
#include <deque>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"

namespace orvendal {
namespace {

constexpr int kOfDispatch = 7;

/// What a reference leads to: nothing, in whatever width.
using Emptiness = std::array<char, 64>;

ComPtr<ITypeInfo> Referred(const ComPtr<ITypeInfo>& info, int index) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> other;
  if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(index), &reference))) {
    info->GetRefTypeInfo(reference, other.Receive());
  }
  return other;
}

void AddFunctions(const ComPtr<ITypeInfo>& info, std::vector<DescribedFunction>& functions) {
  TYPEATTR* type = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&type), S_OK);
  if (type->guid == IID_IDispatch || type->guid == IID_IUnknown) return info->ReleaseTypeAttr(type);
  if (type->cImplTypes > 0) AddFunctions(Referred(info, 0), functions);
  for (UINT index = 0; index < type->cFuncs; ++index) {
    FUNCDESC* described = nullptr;
    ASSERT_EQ(info->GetFuncDesc(index, &described), S_OK);
    BstrCell name;
    info->GetDocumentation(described->memid, name.InOut(), nullptr, nullptr, nullptr);
    DescribedFunction function{name.Text(), described->oVft, {}};
    for (SHORT place = 0; place < described->cParams; ++place) {
      const ELEMDESC& parameter = described->lprgelemdescParam[place];
      const bool optional = (parameter.paramdesc.wParamFlags & PARAMFLAG_FOPT) != 0;
      function.parameters.push_back({parameter.tdesc.vt == VT_PTR, optional, parameter.tdesc.vt});
    }
    functions.push_back(std::move(function));
    info->ReleaseFuncDesc(described);
  }
  info->ReleaseTypeAttr(type);
}

}  // namespace

std::vector<DescribedFunction> FunctionsOf(IDispatch* object) {
  std::vector<DescribedFunction> functions;
  ComPtr<ITypeInfo> by_name;
  if (FAILED(object->GetTypeInfo(0, 0, by_name.Receive()))) return functions;
  // Behind the description of the names stands that of the table of functions.
  AddFunctions(Referred(by_name, -1), functions);
  for (const DescribedFunction& function : functions) {
    EXPECT_GE(function.offset, kOfDispatch * static_cast<int>(sizeof(void*))) << function.name;
  }
  return functions;
}

HRESULT CallWithout(IUnknown* object, const DescribedFunction& function, std::size_t place) {
  std::deque<Emptiness> behind;
  std::vector<VARIANT> values(function.parameters.size());
  std::vector<VARIANT*> addresses;
  std::vector<VARTYPE> types;
  for (std::size_t index = 0; index < values.size(); ++index) {
    VariantInit(&values[index]);
    addresses.push_back(&values[index]);
    const DescribedFunction::Parameter& parameter = function.parameters[index];
    types.push_back(parameter.by_reference ? VARTYPE{VT_BYREF | VT_I4} : parameter.type);
    V_VT(&values[index]) = types.back() == VT_VARIANT ? VARTYPE{VT_EMPTY} : types.back();
    if (parameter.by_reference && index != place) V_BYREF(&values[index]) = behind.emplace_back().data();
  }
  VARIANT result;
  VariantInit(&result);
  const HRESULT called =
      DispCallFunc(object, static_cast<ULONG_PTR>(function.offset), CC_STDCALL, VT_ERROR,
                   static_cast<UINT>(values.size()), types.data(), addresses.data(), &result);
  EXPECT_EQ(called, S_OK) << function.name;
  return V_ERROR(&result);
}

void LeaveStaleError() {
  ComPtr<ICreateErrorInfo> made;
  ASSERT_EQ(CreateErrorInfo(made.Receive()), S_OK);
  SetErrorInfo(0, made.Query<IErrorInfo>(IID_IErrorInfo).Get());
}

}  // namespace orvendal
