#include <algorithm>
#include <utility>

#include "platform/base/text.h"
#include "platform/forms/form.h"
#include "platform/forms/text_box.h"
#include "platform/forms/window_host.h"

namespace orvendal {
namespace {

constexpr int kDeleteWord = 127;  // Ctrl+Backspace

// What of a pasted text fits a box of one line.
std::string_view FirstLine(std::string_view text) {
  return text.substr(0, text.find_first_of("\r\n"));
}

}  // namespace

void TextBox::MoveCaret(std::size_t position, bool extend) {
  Select(extend ? anchor_ : position, position);
}

void TextBox::MousePressed(int button, int shift, Point local) {
  if (button != mouse_button::kLeft) return;
  const double origin = TextOrigin();
  const std::size_t position = PositionAt(local.x, origin);
  MoveCaret(position, (shift & shift_mask::kShift) != 0);
  drag_ = {anchor_, position, origin, false};
}

void TextBox::MouseMoved(int buttons, int, Point local) {
  if ((buttons & mouse_button::kLeft) == 0) return;
  // Until the pointer leaves the character that was pressed, the text counts as standing where it stood then:
  // a handler of GotFocus may have selected, and so scrolled, it.
  const std::size_t position = PositionAt(local.x, drag_.moving ? TextOrigin() : drag_.origin);
  if (position == drag_.position) return;
  drag_.moving = true;
  drag_.position = position;
  Select(std::min(drag_.anchor, length_), position);
}

void TextBox::MouseDoubleClicked(int button, int, Point local) {
  if (button != mouse_button::kLeft) return;
  std::size_t start = CharacterAt(local.x);
  if (start == length_ && start > 0) --start;
  std::size_t byte = ByteOffset(text_, start);
  const auto is_blank = [this](std::size_t offset) { return text_[offset] == ' '; };
  std::size_t end = start;
  if (byte < text_.size()) {
    const bool blanks = is_blank(byte);
    std::size_t first = byte;
    while (first > 0 && is_blank(first - 1) == blanks) --first;
    while (byte < text_.size() && is_blank(byte) == blanks) NextCharacter(text_, byte);
    start = Len(std::string_view(text_).substr(0, first));
    end = start + Len(std::string_view(text_).substr(first, byte - first));
  }
  const double origin = TextOrigin();
  Select(start, end);
  drag_ = {start, PositionAt(local.x, origin), origin, false};
}

void TextBox::PressEnded(int button, Point local) {
  if (button == mouse_button::kLeft) OfferSelection();
  if (!HasFocus() || !LocalBounds().Contains(local)) return;
  if (button == mouse_button::kRight) OpenMenu(local);
  if (button == mouse_button::kMiddle) PasteSelectionAt(local);
}

bool TextBox::MoveByKey(int key_code, int shift) {
  const bool extend = (shift & shift_mask::kShift) != 0;
  const bool by_word = (shift & shift_mask::kControl) != 0;
  const bool collapses = selection_length_ > 0 && !extend && !by_word;
  switch (key_code) {
    case key::kLeft:
    case key::kUp:
      if (collapses) {
        MoveCaret(selection_start_, false);
      } else {
        MoveCaret(by_word ? WordLeft(caret_) : caret_ - std::min<std::size_t>(caret_, 1), extend);
      }
      return true;
    case key::kRight:
    case key::kDown:
      if (collapses) {
        MoveCaret(selection_start_ + selection_length_, false);
      } else {
        MoveCaret(by_word ? WordRight(caret_) : std::min(caret_ + 1, length_), extend);
      }
      return true;
    case key::kHome:
      MoveCaret(0, extend);
      return true;
    case key::kEnd:
      MoveCaret(length_, extend);
      return true;
    default:
      return false;
  }
}

bool TextBox::KeyDownDefault(int key_code, int shift) {
  if (key_code == key::kMenu || (key_code == key::kF10 && shift == shift_mask::kShift)) {
    const std::optional<Rect> caret = CaretRectangle();
    if (caret) OpenMenu({caret->left, caret->Bottom()});
    return true;
  }
  if ((shift & shift_mask::kAlt) != 0) return false;
  if (MoveByKey(key_code, shift)) {
    OfferSelection();
    return false;
  }
  // With Shift the key is the clipboard's, and comes as the character of Cut.
  if (key_code != key::kDelete || (shift & shift_mask::kShift) != 0) return false;
  if (selection_length_ > 0) {
    Erase(selection_start_, selection_start_ + selection_length_);
  } else {
    const bool by_word = (shift & shift_mask::kControl) != 0;
    Erase(caret_, by_word ? WordRight(caret_) : std::min(caret_ + 1, length_));
  }
  return false;
}

void TextBox::CharacterDefault(int key_ascii) {
  switch (key_ascii) {
    case character::kSelectAll:
      Select(0, length_);
      OfferSelection();
      return;
    case character::kCopy:
      Copy();
      return;
    case character::kCut:
      Cut();
      return;
    case character::kPaste:
      Paste();
      return;
    case character::kUndo:
      Undo();
      return;
    case character::kBackspace:
      Backspace(caret_ - std::min<std::size_t>(caret_, 1));
      return;
    case kDeleteWord:
      Backspace(WordLeft(caret_));
      return;
    default:
      if (key_ascii >= 32) Type(static_cast<char32_t>(key_ascii));
  }
}

std::size_t TextBox::WordLeft(std::size_t position) const {
  std::size_t byte = ByteOffset(text_, position);
  while (byte > 0 && text_[byte - 1] == ' ') --byte;
  while (byte > 0 && text_[byte - 1] != ' ') --byte;
  return Len(std::string_view(text_).substr(0, byte));
}

std::size_t TextBox::WordRight(std::size_t position) const {
  std::size_t byte = ByteOffset(text_, position);
  while (byte < text_.size() && text_[byte] != ' ') ++byte;
  while (byte < text_.size() && text_[byte] == ' ') ++byte;
  return Len(std::string_view(text_).substr(0, byte));
}

void TextBox::Remember(bool typing) {
  if (!(typing && typing_)) undo_ = Snapshot{text_, caret_};
}

void TextBox::Type(char32_t character) {
  if (locked_) return;
  Remember(selection_length_ == 0);
  Replace(selection_start_, selection_start_ + selection_length_, FromCharacter(character), true);
}

void TextBox::Erase(std::size_t from, std::size_t to) {
  if (locked_ || from == to) return;
  Remember(false);
  Replace(from, to, {});
}

void TextBox::Backspace(std::size_t unselected_from) {
  if (selection_length_ > 0) {
    Erase(selection_start_, selection_start_ + selection_length_);
  } else {
    Erase(unselected_from, caret_);
  }
}

void TextBox::Copy() const {
  if (selection_length_ > 0) Host().ClipboardText(SelText());
}

void TextBox::Cut() {
  if (locked_ || selection_length_ == 0) return;
  Copy();
  Erase(selection_start_, selection_start_ + selection_length_);
}

void TextBox::Paste() {
  if (locked_) return;
  const std::string clipboard = Host().PastedText();
  const std::string_view pasted = FirstLine(clipboard);
  if (pasted.empty()) return;
  Remember(false);
  Replace(selection_start_, selection_start_ + selection_length_, pasted);
}

void TextBox::Undo() {
  if (locked_ || !undo_) return;
  Snapshot now{text_, caret_};
  const Snapshot before = std::exchange(*undo_, std::move(now));
  const bool changes = before.text != text_;
  text_ = before.text;
  length_ = Len(text_);
  Select(before.caret, before.caret);
  if (!changes) return;
  Invalidate();
  if (OnChange) OnChange();
}

void TextBox::OfferSelection() const {
  if (selection_length_ > 0) Host().SelectedText(SelText());
}

void TextBox::PasteSelectionAt(Point local) {
  if (locked_) return;
  MoveCaret(PositionAt(local.x, TextOrigin()), false);
  const SelectionPaste paste(Host());
  Parent().SendCharacter(*this, character::kPaste);
}

// What changes the text passes the handlers of KeyPress, as the keys for it do; the rest does not, as in the
// platform's own boxes.
void TextBox::OpenMenu(Point local) {
  const bool can_change = !locked_;
  const EditMenu menu{can_change && selection_length_ > 0, selection_length_ > 0,
                      can_change && !Host().ClipboardText().empty(), selection_length_ < length_};
  const Rect bounds = Bounds();
  const ObjectRef alive = Parent().shared_from_this();
  std::optional<EditCommand> chosen;
  {
    const ModalScope menu_is_up(Host());
    chosen = Host().ChooseFromEditMenu(Parent(), {bounds.left + local.x, bounds.top + local.y}, menu);
  }
  if (!chosen || !Parent().IsLoaded() || !HasFocus()) return;
  switch (*chosen) {
    case EditCommand::kCut:
      Parent().SendCharacter(*this, character::kCut);
      return;
    case EditCommand::kCopy:
      Copy();
      return;
    case EditCommand::kPaste:
      Parent().SendCharacter(*this, character::kPaste);
      return;
    case EditCommand::kSelectAll:
      Select(0, length_);
      OfferSelection();
      return;
  }
}

}  // namespace orvendal
