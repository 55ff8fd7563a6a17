#pragma once

#include <string>

#include "adapters/automation/com_ptr.h"

namespace orvendal {

/// A property of an object by its name, as scripts reach it. Each raises error 91 without an object, 438 for
/// a property that it does not have, 13 for one of another type.
std::string TextProperty(IDispatch* object, const wchar_t* name);
LONG LongProperty(IDispatch* object, const wchar_t* name);
void SetTextProperty(IDispatch* object, const wchar_t* name, const std::string& text);
void SetLongProperty(IDispatch* object, const wchar_t* name, LONG number);

}  // namespace orvendal
