#pragma once

#include <string>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"
#include "platform/data/recordset.h"

namespace orvendal {

// Arguments by reference, as the contract has them: what a reference holds at the call is the caller's, and
// an operation that replaces it frees or releases the old and gives the new one away. Each of these reads its
// argument when it is made; Give puts back what has changed since.

class TextInOut {
 public:
  /// Raises error 5 for no reference at all, as the others do.
  explicit TextInOut(BSTR* place);
  void Give();

  std::string text;

 private:
  BSTR* place_;
  std::string was_;
};

class ConnectionInOut {
 public:
  explicit ConnectionInOut(IDispatch** place);
  void Give();

  ConnectionRef connection;

 private:
  IDispatch** place_;
  ConnectionRef was_;
};

/// Puts `object` in place of what a reference holds.
void Replace(IDispatch*& place, ComPtr<IDispatch> object);
/// A result for the caller to free; `place` is checked as above.
void GiveText(BSTR* place, const std::string& text);
/// Raises error 5 where the caller gave no reference.
void RequireReference(const void* place);

}  // namespace orvendal
