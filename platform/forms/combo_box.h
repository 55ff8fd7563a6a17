#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/forms/control.h"

namespace orvendal {

/// A list of which one entry shows (the style without typing). Entries are counted from 0.
/// Invariant: -1 <= ListIndex < ListCount; Text is the entry at ListIndex, or empty at -1.
class ComboBox final : public Control {
 public:
  ComboBox(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kComboBox; }

  const std::string& Text() const;
  /// Selects the first entry that is exactly this text; raises error 383 if there is none. In constant time.
  void Text(const std::string& text);
  int ListCount() const { return static_cast<int>(entries_.size()); }
  /// Raises error 381 outside the list.
  const std::string& List(int index) const;
  int ListIndex() const { return list_index_; }
  /// Choosing another entry, by user or code, raises OnClick. Raises error 380 outside -1..ListCount - 1.
  void ListIndex(int index);
  /// Appends at the end.
  void AddItem(const std::string& text);
  /// Whether an entry is that text, so that it can be chosen by it.
  bool Holds(const std::string& text) const { return first_index_.contains(text); }
  void Clear();

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  bool KeyDownDefault(int key_code, int shift) override;
  bool MouseWheel(WheelTurn turn) override;
  /// Click is the choice of another entry.
  bool RaisesClick(Point /*local*/) const override { return false; }
  void FocusChanged(bool has_focus) override;

 protected:
  ControlProperties DefaultProperties() const override;

 private:
  void Choose(int index);

  std::vector<std::string> entries_;
  std::unordered_map<std::string, int> first_index_;
  int list_index_ = -1;
};

}  // namespace orvendal
