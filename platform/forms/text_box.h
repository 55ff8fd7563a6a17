#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/forms/control.h"

namespace orvendal {

/// A box for one line of text.
///
/// Positions count characters from 0. Invariant: 0 <= SelStart <= SelStart + SelLength <= length of Text.
/// Locked: the user cannot change the text, but can select and copy; code can still write it.
/// A paste, by keys, by the desktop's menu or by its middle button, is the character of Ctrl+V to handlers.
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
  Rect OpaqueArea() const override { return LocalBounds(); }
  void MousePressed(int button, int shift, Point local) override;
  void MouseMoved(int buttons, int shift, Point local) override;
  void MouseDoubleClicked(int button, int shift, Point local) override;
  void PressEnded(int button, Point local) override;
  bool KeyDownDefault(int key_code, int shift) override;
  void CharacterDefault(int key_ascii) override;
  void FocusChanged(bool has_focus) override;
  std::optional<Rect> CaretRectangle() const override;
  CursorShape Cursor(Point local) const override;
  /// The end of the selection that the keyboard moves.
  int CaretPosition() const { return static_cast<int>(caret_); }
  /// The position that a press at `local` means, and a place whose press means it, as the text stands now.
  int PositionOf(Point local) const { return static_cast<int>(PositionAt(local.x, TextOrigin())); }
  Point PlaceOf(int position) const;

 protected:
  ControlProperties DefaultProperties() const override;
  void FontChanged() override;
  void SizeChanged() override;

 private:
  struct Snapshot {
    std::string text;
    std::size_t caret = 0;
  };
  struct Drag {
    std::size_t anchor = 0;    // the end of the selection that stays
    std::size_t position = 0;  // where the pointer was last
    double origin = 0;         // TextOrigin at the press
    bool moving = false;
  };

  // Text metrics, in twips.
  Rect TextArea() const;
  double OffsetOf(std::size_t position) const;  // from the start of the text
  double TextOrigin() const;                    // where the text starts, relative to the control
  std::size_t PositionAt(double x, double origin) const;
  std::size_t CharacterAt(double x) const;

  // Changes (text_box.cpp).
  void Select(std::size_t anchor, std::size_t caret);
  void ScrollToCaret();
  void Replace(std::size_t from, std::size_t to, std::string_view text, bool typing = false);

  // Input (text_box_input.cpp).
  void MoveCaret(std::size_t position, bool extend);
  bool MoveByKey(int key_code, int shift);
  std::size_t WordLeft(std::size_t position) const;
  std::size_t WordRight(std::size_t position) const;
  void Remember(bool typing);
  void Type(char32_t character);
  void Erase(std::size_t from, std::size_t to);
  void Backspace(std::size_t unselected_from);
  void Copy() const;
  void Cut();
  void Paste();
  void Undo();
  /// The desktop keeps what the user selected, for its middle button.
  void OfferSelection() const;
  void PasteSelectionAt(Point local);
  void OpenMenu(Point local);

  std::string text_;
  std::size_t length_ = 0;  // characters of text_
  std::size_t selection_start_ = 0;
  std::size_t selection_length_ = 0;
  std::size_t anchor_ = 0;
  std::size_t caret_ = 0;
  Drag drag_;
  double scroll_ = 0;  // twips of the text that lie left of the box
  bool locked_ = false;
  HorizontalAlign alignment_ = HorizontalAlign::kLeft;
  std::size_t max_length_ = 0;
  std::optional<Snapshot> undo_;
  bool typing_ = false;  // characters typed one after the other are undone together
};

}  // namespace orvendal
