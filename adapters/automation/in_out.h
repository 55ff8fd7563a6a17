#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"

namespace orvendal {

// Marshalling of arguments by reference (in-out). Their value belongs to the caller; a callee that replaces
// it frees or releases the old value and hands the ownership of the new one over.
//
// The cells are for calls out of the module: a cell is a copy of the caller's variable, to which the
// reference points during the call. The call can come back into the module, directly or through a message
// loop, and assign the variable meanwhile. So a cell remembers the value that it sent, and TakeOver assigns
// the variable only if the callee replaced that value.

/// A number of the same meaning on both sides.
class LongCell {
 public:
  explicit LongCell(std::int32_t number) : sent_(number), cell_(number) {}
  LONG* InOut() { return &cell_; }
  void TakeOver(std::int32_t& number) const {
    if (cell_ != sent_) number = cell_;
  }

 private:
  LONG sent_;
  LONG cell_;
};

class TextCell {
 public:
  explicit TextCell(const std::string& text) : sent_(text), cell_(text) {}
  BSTR* InOut() { return cell_.InOut(); }
  void TakeOver(std::string& text) const {
    std::string now = cell_.Text();
    if (now != sent_) text = std::move(now);
  }

 private:
  std::string sent_;
  BstrCell cell_;
};

/// An object: the same pointer coming back is the same object.
class InterfaceCell {
 public:
  explicit InterfaceCell(ComPtr<IDispatch> object) : sent_(object), cell_(std::move(object)) {}
  IDispatch** InOut() { return cell_.InOut(); }
  bool WasReplaced() const { return cell_.Get() != sent_.Get(); }
  IDispatch* Get() const { return cell_.Get(); }

 private:
  ComPtr<IDispatch> sent_;
  ComPtr<IDispatch> cell_;
};

// For calls into the module: the argument is read when the call begins, and Give writes it back if it was
// changed since. Null references were refused before.

class TextInOut {
 public:
  explicit TextInOut(BSTR* place);
  void Give();

  std::string text;

 private:
  BSTR* place_;
  std::string was_;
};

/// Puts `object` in place of what a reference holds.
void Replace(IDispatch*& place, ComPtr<IDispatch> object);

}  // namespace orvendal
