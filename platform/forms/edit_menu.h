#pragma once

namespace orvendal {

/// The commands of a text box's context menu.
enum class EditCommand { kCut, kCopy, kPaste, kSelectAll };

/// What of it would do something just now.
struct EditMenu {
  bool cut = false;
  bool copy = false;
  bool paste = false;
  bool select_all = false;
};

}  // namespace orvendal
