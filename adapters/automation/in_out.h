#pragma once

#include <cstdint>
#include <cstring>
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

/// A number of the same meaning on both sides. Its bytes are compared, since not every eight of them are a
/// number.
template <typename Number>
class NumberCell {
 public:
  explicit NumberCell(Number number) : sent_(number), cell_(number) {}
  Number* InOut() { return &cell_; }
  template <typename Variable>
  void TakeOver(Variable& variable) const {
    if (std::memcmp(&cell_, &sent_, sizeof(cell_)) != 0) variable = Variable(cell_);
  }

 private:
  Number sent_;
  Number cell_;
};
using LongCell = NumberCell<LONG>;

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

template <typename Value, typename Place, auto Read, auto Put>
class InOut {
 public:
  explicit InOut(Place* place) : value(Read(*place)), place_(place), was_(value) {}
  void Give() {
    if (value != was_) Put(*place_, value);
  }

  Value value;

 private:
  Place* place_;
  Value was_;
};

/// Puts a text in place of what a reference holds.
void ReplaceText(BSTR& place, const std::string& text);
using TextInOut = InOut<std::string, BSTR, TextOfBstr, ReplaceText>;

/// Puts `object` in place of what a reference holds.
void Replace(IDispatch*& place, ComPtr<IDispatch> object);

}  // namespace orvendal
