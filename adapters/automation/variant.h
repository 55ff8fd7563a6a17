#pragma once

#include <string>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/com_ptr.h"

namespace orvendal {

constexpr VARIANT_BOOL FlagOf(bool flag) {
  return flag ? VARIANT_TRUE : VARIANT_FALSE;
}

/// A VARIANT of its own, cleared when it goes.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&value_); }

  VARIANT* Address() { return &value_; }
  const VARIANT& Get() const { return value_; }

 private:
  VARIANT value_;
};

/// The value behind any number of references: by value, VT_BYREF, VT_BYREF | VT_VARIANT.
/// Each of the readers below follows them, converts as Automation does in the locale `lcid`, and answers
/// DISP_E_TYPEMISMATCH, also for a reference to nothing, DISP_E_OVERFLOW or E_OUTOFMEMORY where it cannot.

/// As it is, in a copy that is no reference any more. `direct` is empty before.
[[nodiscard]] HRESULT ReadDirect(const VARIANT& value, Variant& direct);
[[nodiscard]] HRESULT ReadText(const VARIANT& value, LCID lcid, std::string& text);
[[nodiscard]] HRESULT ReadNumber(const VARIANT& value, LCID lcid, double& number);
[[nodiscard]] HRESULT ReadLong(const VARIANT& value, LCID lcid, LONG& number);
[[nodiscard]] HRESULT ReadFlag(const VARIANT& value, LCID lcid, bool& flag);
/// Nothing gives an empty pointer; what is no object is a mismatch.
[[nodiscard]] HRESULT ReadObject(const VARIANT& value, ComPtr<IUnknown>& object);
/// Whether a value is a reference to nothing, or a ring of them.
bool LeadsNowhere(const VARIANT& value);
/// Whether the caller left the argument out.
bool IsOmitted(const VARIANT& value);

// Writers into an empty VARIANT that the caller owns.
void WriteText(VARIANT& value, const std::string& text);
void WriteNumber(VARIANT& value, double number);
void WriteLong(VARIANT& value, LONG number);
void WriteFlag(VARIANT& value, bool flag);
/// Hands over the reference.
void WriteObject(VARIANT& value, ComPtr<IDispatch> object);

}  // namespace orvendal
