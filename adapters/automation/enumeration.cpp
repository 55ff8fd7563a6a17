#include "adapters/automation/enumeration.h"

#include <algorithm>

#include "adapters/automation/error_boundary.h"
#include "adapters/automation/variant.h"

namespace orvendal {

HRESULT Enumeration::Next(ULONG count, VARIANT* objects, ULONG* fetched) noexcept {
  if (fetched) *fetched = 0;
  // Where more than one is asked for and nobody would know how many came, none is given.
  if (!objects || (!fetched && count != 1)) return E_POINTER;
  const ComPtr<IUnknown> self(this);
  ULONG given = 0;
  const HRESULT result = Guarded(IID_IEnumVARIANT, [&] {
    for (; given < count && next_ < Size(); ++given, ++next_) {
      ComPtr<IDispatch> object = At(next_);
      VariantInit(&objects[given]);
      WriteObject(objects[given], std::move(object));
    }
  });
  if (fetched) *fetched = given;
  if (FAILED(result)) return result;
  return given == count ? S_OK : S_FALSE;
}

HRESULT Enumeration::Skip(ULONG count) noexcept {
  bool enough = false;
  const HRESULT result = Guarded(IID_IEnumVARIANT, [&] {
    const std::size_t left = Size() - std::min(next_, Size());
    next_ += std::min<std::size_t>(count, left);
    enough = count <= left;
  });
  return SUCCEEDED(result) && !enough ? S_FALSE : result;
}

HRESULT Enumeration::Reset() noexcept {
  next_ = 0;
  return S_OK;
}

HRESULT Enumeration::Clone(IEnumVARIANT** copy) noexcept {
  if (!copy) return E_POINTER;
  *copy = nullptr;
  return Guarded(IID_IEnumVARIANT, [&] {
    Enumeration* const made = Copy();
    made->next_ = next_;
    *copy = made;
  });
}

}  // namespace orvendal
