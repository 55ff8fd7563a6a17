#pragma once

namespace orvendal {

/// What the desktop's menu of a text box offers.
enum class EditCommand { kCut, kCopy, kPaste, kSelectAll };

/// What of it would do something just now.
struct EditMenu {
  bool cut = false;
  bool copy = false;
  bool paste = false;
  bool select_all = false;
};

}  // namespace orvendal
