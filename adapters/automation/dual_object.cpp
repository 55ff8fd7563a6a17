#include "adapters/automation/dual_object.h"

#include <optional>

namespace orvendal {
namespace {

struct ArgumentCounts {
  UINT fewest = 0;
  UINT most = 0;
};

ComPtr<ITypeInfo> Referred(ITypeInfo& info, int index) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> other;
  if (SUCCEEDED(info.GetRefTypeOfImplType(static_cast<UINT>(index), &reference))) {
    info.GetRefTypeInfo(reference, other.Receive());
  }
  return other;
}

ArgumentCounts CountsOf(const FUNCDESC& function) {
  constexpr USHORT kMayBeLeftOut = PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT;
  ArgumentCounts counts;
  for (SHORT index = 0; index < function.cParams; ++index) {
    const USHORT flags = function.lprgelemdescParam[index].paramdesc.wParamFlags;
    if (flags & PARAMFLAG_FRETVAL) continue;
    ++counts.most;
    if (!(flags & kMayBeLeftOut)) ++counts.fewest;
  }
  return counts;
}

/// How many arguments the member takes; nothing where it is not described. The system's own Invoke passes
/// over those that are too many.
std::optional<ArgumentCounts> ArgumentsOf(ITypeInfo& description, const DispatchCall& call) {
  // Behind the description of the names stands that of the vtable, and those that it is derived from.
  for (ComPtr<ITypeInfo> info = Referred(description, -1); info; info = Referred(*info.Get(), 0)) {
    const auto functions = info.Query<ITypeInfo2>(IID_ITypeInfo2);
    UINT index = 0;
    FUNCDESC* function = nullptr;
    if (!functions ||
        FAILED(functions->GetFuncIndexOfMemId(call.member, static_cast<INVOKEKIND>(call.flags), &index)) ||
        FAILED(functions->GetFuncDesc(index, &function))) {
      continue;
    }
    const ArgumentCounts counts = CountsOf(*function);
    functions->ReleaseFuncDesc(function);
    return counts;
  }
  return std::nullopt;
}

}  // namespace

HRESULT NumbersByDescription(REFIID iid, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
  ComPtr<ITypeInfo> description;
  const HRESULT described = OwnTypeInfo(iid, description);
  return FAILED(described) ? described : description->GetIDsOfNames(names, count, ids);
}

HRESULT CallByDescription(REFIID iid, void* object, const DispatchCall& call) noexcept {
  ComPtr<ITypeInfo> description;
  const HRESULT described = OwnTypeInfo(iid, description);
  return FAILED(described) ? described : CallByDescription(*description.Get(), object, call);
}

HRESULT CallByDescription(ITypeInfo& description, void* object, const DispatchCall& call) noexcept {
  const UINT given = call.arguments.cArgs;
  const std::optional<ArgumentCounts> counts = ArgumentsOf(description, call);
  if (counts && (given < counts->fewest || given > counts->most)) return DISP_E_BADPARAMCOUNT;
  return description.Invoke(object, call.member, call.flags, &call.arguments, call.result, call.exception,
                            call.wrong);
}

HRESULT GiveDescription(REFIID iid, UINT index, ITypeInfo** info) noexcept {
  if (index != 0) return DISP_E_BADINDEX;
  ComPtr<ITypeInfo> own;
  const HRESULT result = OwnTypeInfo(iid, own);
  *info = own.Detach();
  return result;
}

}  // namespace orvendal
