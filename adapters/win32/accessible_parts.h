#pragma once

#include "adapters/win32/accessible_node.h"
#include "platform/forms/geometry.h"

namespace orvendal {

class Barra;
class FormAccessible;
class MSFlexGrid;

/// A grid. Its children are its cells, numbered row by row from 1, titles included; the titles and the rows
/// that show are listed, every other cell answers to its number.
class GridAccessible final : public AccessibleNode {
 public:
  GridAccessible(FormAccessible& tree, MSFlexGrid& grid) : tree_(tree), grid_(grid) {}

  static LONG NumberOf(const MSFlexGrid& grid, int row, int column);

  bool HasChild(LONG child) const override;
  std::vector<LONG> Children() const override;
  AccessibleObject* Parent() override;
  LONG NumberInParent() const override;
  /// The title of its column; a title's own text.
  std::wstring Name(LONG child) const override;
  std::optional<std::wstring> Value(LONG child) const override;
  LONG Role(LONG child) const override;
  LONG State(LONG child) const override;
  RECT Place(LONG child) const override;
  std::optional<LONG> Focus() const override;
  std::vector<LONG> Selection() const override;
  LONG ChildAt(POINT inside) const override;
  std::optional<LONG> Neighbour(LONG child, LONG direction) const override;
  std::wstring ActionName(LONG child) const override;
  std::function<void()> Action(LONG child) override;
  std::function<void()> FocusAction(LONG child) override;

 private:
  int RowOf(LONG child) const;
  int ColumnOf(LONG child) const;
  bool IsTitle(LONG child) const;
  /// The cursor stands on a cell only if there is one that is no title.
  bool HasCursor() const;
  void ClickCell(LONG child, bool twice);

  FormAccessible& tree_;
  MSFlexGrid& grid_;
};

/// The title bar that a form draws by itself, with its two buttons.
class TitleBarAccessible final : public AccessibleNode {
 public:
  static constexpr LONG kMinimize = 1;
  static constexpr LONG kClose = 2;

  TitleBarAccessible(FormAccessible& tree, Barra& bar) : tree_(tree), bar_(bar) {}

  bool HasChild(LONG child) const override { return child >= kSelf && child <= kClose; }
  std::vector<LONG> Children() const override { return {kMinimize, kClose}; }
  AccessibleObject* Parent() override;
  LONG NumberInParent() const override;
  std::wstring Name(LONG child) const override;
  std::optional<std::wstring> Value(LONG) const override { return std::nullopt; }
  LONG Role(LONG child) const override;
  LONG State(LONG child) const override;
  RECT Place(LONG child) const override;
  std::optional<LONG> Focus() const override { return std::nullopt; }
  LONG ChildAt(POINT inside) const override;
  std::wstring ActionName(LONG child) const override;
  std::function<void()> Action(LONG child) override;
  std::function<void()> FocusAction(LONG) override { return {}; }

 private:
  Rect PlaceOnForm(LONG child) const;

  FormAccessible& tree_;
  Barra& bar_;
};

}  // namespace orvendal
