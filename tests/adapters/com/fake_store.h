#pragma once

#include <map>

#include "adapters/com/store_bridge.h"
#include "platform/base/runtime_error.h"
#include "tests/adapters/com/fake_object.h"

namespace orvendal {

/// {17836896-B542-420A-8B97-68324DB01409}
inline constexpr GUID kStoreHandle = {
    0x17836896, 0xB542, 0x420A, {0x8B, 0x97, 0x68, 0x32, 0x4D, 0xB0, 0x14, 0x09}};

/// A connection or a recordset of the core as it stands outside in these tests: an object that carries it.
class StoreHandle final : public FakeObject<IDispatch> {
 public:
  explicit StoreHandle(ConnectionRef connection) : connection(std::move(connection)) {}
  explicit StoreHandle(RecordsetRef recordset) : recordset(std::move(recordset)) {}

  const ConnectionRef connection;
  const RecordsetRef recordset;

 protected:
  void* Find(REFIID iid) override { return iid == kStoreHandle ? this : FakeObject::Find(iid); }
};

/// Takes the handles off and puts them on again. A reference that came in keeps its handle alive.
class FakeStoreBridge final : public StoreBridge {
 public:
  ConnectionRef ConnectionOf(IDispatch* object) override {
    return Inner<Connection>(object, [](const StoreHandle& handle) { return handle.connection; });
  }
  RecordsetRef RecordsetOf(IDispatch* object) override {
    return Inner<Recordset>(object, [](const StoreHandle& handle) { return handle.recordset; });
  }
  ComPtr<IDispatch> ObjectOf(const ConnectionRef& connection) override { return Outer(connection); }
  ComPtr<IDispatch> ObjectOf(const RecordsetRef& recordset) override { return Outer(recordset); }

 private:
  struct Carried {
    ComPtr<StoreHandle> handle;
    std::map<const void*, StoreHandle*>& known;
    const void* inner;
    ~Carried() { known.erase(inner); }
  };

  template <typename Type, typename Pick>
  std::shared_ptr<Type> Inner(IDispatch* object, Pick pick) {
    if (!object) return nullptr;
    const auto handle = ComPtr<IDispatch>(object).Query<StoreHandle>(kStoreHandle);
    if (!handle || !pick(*handle.Get())) throw RuntimeError(error_number::kTypeMismatch);
    const std::shared_ptr<Type> inner = pick(*handle.Get());
    known_[inner.get()] = handle.Get();
    return std::shared_ptr<Type>(std::make_shared<Carried>(handle, known_, inner.get()), inner.get());
  }
  template <typename Type>
  ComPtr<IDispatch> Outer(const std::shared_ptr<Type>& inner) {
    if (!inner) return {};
    const auto known = known_.find(inner.get());
    if (known != known_.end()) return ComPtr<IDispatch>(known->second);
    return ComPtr<IDispatch>::Adopt(new StoreHandle(inner));
  }

  std::map<const void*, StoreHandle*> known_;
};

}  // namespace orvendal
