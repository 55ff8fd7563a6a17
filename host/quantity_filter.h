#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/base/region.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// Whether a text is a quantity, or the beginning of one: at most seven digits, and with `decimals` the
/// region's mark and at most three more. An empty text is one too.
bool IsQuantity(std::string_view text, const Region& region, bool decimals);

/// A text box as far as a filter needs it; positions count characters.
struct EditedText {
  std::string text;
  int sel_start = 0;
  int sel_length = 0;
};

struct QuantityKey {
  int key = 0;  // the key to use; 0 refuses it
  /// What is to replace the selection in place of the key.
  std::optional<std::string> instead;
};

/// What becomes of `key_ascii` in a box that takes quantities. The point of the number pad becomes the mark
/// of the host's region. Control keys stay as they are, but for a paste, which passes only if a quantity
/// comes of it; blanks around what the clipboard holds do not count.
QuantityKey FilterQuantityKey(const EditedText& box, int key_ascii, WindowHost& host, bool decimals);

}  // namespace orvendal
