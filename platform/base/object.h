#pragma once

#include <memory>

namespace orvendal {

/// Anything that is handed around by reference without the receiver knowing its type: a form, an object of
/// the host. Always owned by a shared_ptr.
class Object : public std::enable_shared_from_this<Object> {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;
};

using ObjectRef = std::shared_ptr<Object>;

}  // namespace orvendal
