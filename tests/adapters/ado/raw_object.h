#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <utility>
#include <vector>

#include "adapters/automation/com_headers.h"

namespace orvendal::ado_testing {

/// A COM object as it lies in memory: a pointer to a table of functions. The places in it are numbered here,
/// so that the tests do not share the declarations of what they test. Born with one reference.
struct RawObject {
  explicit RawObject(const void* const* table) : slots(table) { ++alive; }
  RawObject(const RawObject&) = delete;
  RawObject& operator=(const RawObject&) = delete;
  ~RawObject() { --alive; }

  const void* const* slots;
  ULONG references = 1;
  /// What it answers to, besides IUnknown.
  std::vector<GUID> answers;
  /// Says yes to everything it is asked for, with a null pointer.
  bool lies = false;

  IUnknown* Unknown() { return reinterpret_cast<IUnknown*>(this); }

  static inline int alive = 0;
};

template <typename Object>
HRESULT STDMETHODCALLTYPE QuerySlot(Object* self, const GUID& iid, void** result) {
  *result = nullptr;
  if (self->lies) return S_OK;
  bool known = iid == IID_IUnknown;
  for (const GUID& answer : self->answers) known = known || answer == iid;
  if (!known) return E_NOINTERFACE;
  ++self->references;
  *result = self;
  return S_OK;
}
template <typename Object>
ULONG STDMETHODCALLTYPE AddRefSlot(Object* self) {
  return ++self->references;
}
template <typename Object>
ULONG STDMETHODCALLTYPE ReleaseSlot(Object* self) {
  const ULONG left = --self->references;
  if (left == 0) delete self;
  return left;
}

/// Whoever calls this place ends the test: on 32 bits there is no way back, as its arguments are not known.
template <std::size_t place>
HRESULT STDMETHODCALLTYPE ForbiddenSlot(void*) {
  std::fprintf(stderr, "Place %zu was called\n", place);
  std::_Exit(1);
}

template <typename Function>
const void* Slot(Function* function) {
  return reinterpret_cast<const void*>(function);
}

/// The table of an object with `count` places, of which only IUnknown's and `allowed` may be called.
template <typename Object, std::size_t count>
std::array<const void*, count> MakeTable(std::initializer_list<std::pair<std::size_t, const void*>> allowed) {
  std::array<const void*, count> table;
  [&table]<std::size_t... place>(std::index_sequence<place...>) {
    ((table[place] = Slot(ForbiddenSlot<place>)), ...);
  }
  (std::make_index_sequence<count>());
  table[0] = Slot(QuerySlot<Object>);
  table[1] = Slot(AddRefSlot<Object>);
  table[2] = Slot(ReleaseSlot<Object>);
  for (const auto& [place, function] : allowed) table[place] = function;
  return table;
}

}  // namespace orvendal::ado_testing
