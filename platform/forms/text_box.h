#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "platform/forms/control.h"

namespace orvendal {

/// A box for one line of text.
///
/// Positions count characters from 0. Invariant: 0 <= SelStart <= SelStart + SelLength <= length of Text.
/// Locked: the user cannot change the text, but can select and copy; code can still write it.
class TextBox final : public Control {
 public:
  TextBox(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kTextBox; }

  const std::string& Text() const { return text_; }
  /// Puts the caret to the start with nothing selected. Raises OnChange if the text differs.
  void Text(const std::string& text);
  int SelStart() const { return static_cast<int>(selection_start_); }
  /// Clears the selection. Past the end it stands at the end; a negative one raises error 380.
  void SelStart(int position);
  int SelLength() const { return static_cast<int>(selection_length_); }
  /// Cut at the end of the text; a negative one raises error 380.
  void SelLength(int length);
  std::string SelText() const;
  /// Replaces the selection and puts the caret behind it.
  void SelText(const std::string& text);
  bool Locked() const { return locked_; }
  void Locked(bool locked) { locked_ = locked; }
  HorizontalAlign Alignment() const { return alignment_; }
  void Alignment(HorizontalAlign alignment);
  /// 0: no limit.
  int MaxLength() const { return static_cast<int>(max_length_); }
  void MaxLength(int length) { max_length_ = static_cast<std::size_t>(length); }

  std::function<void()> OnChange;

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  void MousePressed(int button, int shift, Point local) override;
  void MouseMoved(int buttons, int shift, Point local) override;
  void MouseDoubleClicked(int button, int shift, Point local) override;
  bool KeyDownDefault(int key_code, int shift) override;
  void CharacterDefault(int key_ascii) override;
  void FocusChanged(bool has_focus) override;
  std::optional<Rect> CaretRectangle() const override;
  CursorShape Cursor(Point local) const override;
  /// The end of the selection that the keyboard moves.
  int CaretPosition() const { return static_cast<int>(caret_); }

 protected:
  ControlProperties DefaultProperties() const override;

 private:
  Rect TextArea() const;
  double OffsetOf(std::size_t position) const;  // twips from the start of the text
  double TextOrigin() const;                    // where the text starts, relative to the control
  std::size_t PositionAt(double x) const;
  void MoveCaret(std::size_t position, bool extend);
  void Select(std::size_t anchor, std::size_t caret);
  void ReplaceSelection(const std::string& text);
  void Edited();
  void ScrollToCaret();
  std::size_t WordLeft(std::size_t position) const;
  std::size_t WordRight(std::size_t position) const;
  void Copy() const;
  void Cut();
  void Paste();
  void Undo();

  std::string text_;
  std::size_t selection_start_ = 0;
  std::size_t selection_length_ = 0;
  std::size_t anchor_ = 0;
  std::size_t caret_ = 0;
  std::size_t press_position_ = 0;
  double scroll_ = 0;  // twips of the text that lie left of the box
  bool locked_ = false;
  HorizontalAlign alignment_ = HorizontalAlign::kLeft;
  std::size_t max_length_ = 0;
  std::string undo_text_;
  std::size_t undo_caret_ = 0;
};

}  // namespace orvendal
