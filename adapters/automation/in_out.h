#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"

namespace orvendal {

// Arguments by reference, as every interface of ours has them. What a reference holds at the call is the
// caller's; who is called and replaces it frees or releases the old and gives the new one away.
//
// A cell is what a caller sends. The other side may call the module again before it returns, or pump messages
// that do, so the variable behind it may hold something newer by then: each cell keeps what it sent, and only
// what the other side replaced is taken over.

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

// What is called reads its arguments when it begins, and gives back what has changed since. That each
// reference is there was seen before.

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
