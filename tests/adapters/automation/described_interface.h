#pragma once

#include <string>
#include <vector>

#include "adapters/automation/com_headers.h"

namespace orvendal {

/// A function of a dual interface, as its type library describes it.
struct DescribedFunction {
  struct Parameter {
    bool by_reference;
    bool optional;
    VARTYPE type;
  };
  std::string name;
  short offset;  // in the table of functions, in bytes
  std::vector<Parameter> parameters;
};

/// All functions of the object's own interface that stand after those of IDispatch; none where nothing
/// describes it.
std::vector<DescribedFunction> FunctionsOf(IDispatch* object);

/// Calls it at its place with nothing in the place of one reference; the other references lead somewhere,
/// what goes by value is empty.
HRESULT CallWithout(IUnknown* object, const DescribedFunction& function, std::size_t place);

/// Error information as an earlier failure leaves it.
void LeaveStaleError();

}  // namespace orvendal
