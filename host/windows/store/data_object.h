#pragma once

#include <algorithm>
#include <span>

#include "adapters/ado/ado_identity.h"
#include "adapters/automation/dual_object.h"
#include "data_objects.h"

namespace orvendal {

/// The identity of one kind of data object, as clients ask for it.
struct DataObjectKind {
  const wchar_t* source;              // of the errors that are ADO's own
  std::span<const GUID> identifiers;  // that it answers to, older and newer, its bases among them
};

/// What the error that is being handled names as its source: `source` if it is ADO's, "OrvendalStore" if it
/// is the store's own (a negative number).
const wchar_t* SourceOfDataError(const wchar_t* source) noexcept;
/// Counts that fit come back as VT_I4, which every script engine knows.
void NarrowCount(VARIANT* result) noexcept;
/// Calls the default property of another object with the arguments of `call`.
[[nodiscard]] HRESULT CallDefault(IDispatch& object, WORD flags, const DispatchCall& call) noexcept;
/// Error 3251.
[[noreturn]] void RaiseNotProvided();

/// What every data object does alike beyond what all objects do: it answers to several identifiers, names the
/// source of its errors, and answers 3251 for members that it does not provide.
template <typename Interface>
class DataObject : public DualObject<Interface> {
 protected:
  explicit DataObject(const DataObjectKind& kind) noexcept : kind_(kind) {}

  bool AnswersTo(REFIID iid) const noexcept override {
    return std::ranges::find(kind_.identifiers, iid) != kind_.identifiers.end();
  }
  const wchar_t* SourceOfCurrentError() const noexcept override { return SourceOfDataError(kind_.source); }
  HRESULT Call(const DispatchCall& call) override {
    const HRESULT called = DualObject<Interface>::Call(call);
    if (SUCCEEDED(called)) NarrowCount(call.result);
    return called;
  }

  /// For the members that keep their places and do nothing.
  HRESULT NotProvided() noexcept { return this->Do(RaiseNotProvided); }
  template <typename Result>
  HRESULT Refuse(Result* result) noexcept {
    return this->Give(result, []() -> Result { RaiseNotProvided(); });
  }

 private:
  const DataObjectKind& kind_;
};

}  // namespace orvendal
