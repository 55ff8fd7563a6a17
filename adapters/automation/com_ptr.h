#pragma once

#include <utility>

#include "adapters/automation/com_headers.h"

namespace orvendal {

/// One counted reference to a COM object, or none.
template <typename Interface>
class ComPtr {
 public:
  ComPtr() = default;
  /// Takes a reference of its own.
  explicit ComPtr(Interface* object) : object_(object) {
    if (object_) object_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPtr() { Reset(); }

  /// Takes over a reference that the caller owned.
  static ComPtr Adopt(Interface* object) {
    ComPtr adopted;
    adopted.object_ = object;
    return adopted;
  }

  Interface* Get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  /// Hands the reference to the caller.
  [[nodiscard]] Interface* Detach() { return std::exchange(object_, nullptr); }
  void Reset() {
    // Emptied first: the destructor of the object may use this pointer.
    if (Interface* object = Detach()) object->Release();
  }
  /// For calls that fill it; drops what it holds.
  Interface** Receive() {
    Reset();
    return &object_;
  }
  void** ReceiveVoid() { return reinterpret_cast<void**>(Receive()); }
  /// For in-out arguments: the other side may release what stands there and put another reference.
  Interface** InOut() { return &object_; }

  /// The object's other interface; empty if it does not answer to it.
  template <typename Other>
  ComPtr<Other> Query(REFIID iid) const {
    ComPtr<Other> other;
    if (object_ && FAILED(object_->QueryInterface(iid, other.ReceiveVoid()))) return {};
    return other;
  }

 private:
  Interface* object_ = nullptr;
};

}  // namespace orvendal
