#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "adapters/win32/windows_api.h"

namespace orvendal {

class AccessibleObject;

/// One node of the accessible tree: its properties and its children. Children have numbers from 1
/// that stay the same while the form lives; 0 is the object itself. Everything is asked while the form is
/// loaded, for a child that HasChild, and may throw.
class AccessibleNode {
 public:
  static constexpr LONG kSelf = 0;

  virtual ~AccessibleNode() = default;

  virtual bool HasChild(LONG child) const = 0;
  /// Those that are listed, in order; a child that is not among them can be reached all the same.
  virtual std::vector<LONG> Children() const = 0;
  /// The object that a child is; nullptr if it has no children of its own.
  virtual AccessibleObject* ObjectOf(LONG /*child*/) { return nullptr; }
  /// The object around this one, and the number that this one has there; nullptr for the outermost.
  virtual AccessibleObject* Parent() { return nullptr; }
  virtual LONG NumberInParent() const { return kSelf; }

  virtual std::wstring Name(LONG child) const = 0;
  virtual std::optional<std::wstring> Value(LONG child) const = 0;
  virtual LONG Role(LONG child) const = 0;
  virtual LONG State(LONG child) const = 0;
  /// In pixels of the window's inside; empty if it does not show.
  virtual RECT Place(LONG child) const = 0;
  /// The child with the focus, or the object itself.
  virtual std::optional<LONG> Focus() const = 0;
  virtual std::vector<LONG> Selection() const { return {}; }
  virtual LONG ChildAt(POINT inside) const = 0;
  /// The neighbour in a direction; nothing at the edge.
  virtual std::optional<LONG> Neighbour(LONG /*child*/, LONG /*direction*/) const { return std::nullopt; }

  /// What its default action is called; empty if it has none.
  virtual std::wstring ActionName(LONG child) const = 0;
  /// What to do for it, at the next turn of the message loop; empty if it cannot be done now.
  virtual std::function<void()> Action(LONG child) = 0;
  /// The same for giving it the focus.
  virtual std::function<void()> FocusAction(LONG child) = 0;
};

}  // namespace orvendal
