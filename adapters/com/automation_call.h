#pragma once

#include <string>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/dispatch_rules.h"
#include "platform/forms/named_property.h"

namespace orvendal {

/// One call of a member of an automation object: its arguments by place, from 0, and its result.
class AutomationCall {
 public:
  /// What is called outlives it.
  explicit AutomationCall(const DispatchCall& call)
      : given_(call.arguments), lcid_(call.lcid), result_(call.Puts() ? nullptr : call.result) {}

  UINT Count() const { return given_.cArgs; }
  /// Whether the argument is there and was not left out.
  bool Has(UINT place) const;
  /// Throws ArgumentError DISP_E_BADPARAMCOUNT unless there are that many.
  void Expect(UINT fewest, UINT most) const;

  // Each throws ArgumentError for an argument that is not there or does not convert.
  std::string Text(UINT place) const;
  double Number(UINT place) const;
  LONG Long(UINT place) const;
  bool Flag(UINT place) const;
  bool IsText(UINT place) const;
  /// The first argument, as a property of that type is put.
  Value As(PropertyType type) const;

  void Give(const std::string& text) const;
  void Give(double number) const;
  void GiveLong(LONG number) const;
  void GiveFlag(bool flag) const;
  /// What was read of a property of that type.
  void Give(const Value& value, PropertyType type) const;
  void Give(ComPtr<IDispatch> object) const;
  void Give(ComPtr<IUnknown> object) const;

 private:
  const VARIANT& At(UINT place) const;
  UINT IndexOf(UINT place) const { return given_.cArgs - 1 - place; }

  const DISPPARAMS& given_;
  LCID lcid_;
  VARIANT* result_;
};

}  // namespace orvendal
