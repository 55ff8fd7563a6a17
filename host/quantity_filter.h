#pragma once

#include <string>
#include <string_view>

#include "platform/base/region.h"
#include "platform/forms/text_box.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// Whether a text is a quantity, or the beginning of one: at most seven digits, and with `decimals` the
/// region's mark and at most three more. An empty text is one too.
bool IsQuantity(std::string_view text, const Region& region, bool decimals);

/// What `box` would hold if `typed` replaced its selection.
std::string TextWith(const TextBox& box, std::string_view typed);

/// The key to use for `key_ascii` in a box that takes quantities; 0 refuses it. The point of the number pad
/// becomes the mark of the host's region. Control keys stay as they are, but for a paste, which passes only
/// if a quantity comes of it; blanks around what the clipboard holds do not count.
int FilterQuantityKey(TextBox& box, int key_ascii, WindowHost& host, bool decimals);

}  // namespace orvendal
