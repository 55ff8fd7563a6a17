#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/base/region.h"
#include "platform/forms/key_run.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// Whether a text is a quantity, or the beginning of one: at most seven digits, and with `decimals` the
/// region's mark and at most three more; `sign` allows a minus before them. An empty text is one too.
bool IsQuantity(std::string_view text, const Region& region, bool decimals, bool sign = false);

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
  /// What the whole box is to show in place of its text.
  std::optional<std::string> shown;
  bool select_all = false;
};

/// Lets a box hold nothing but a quantity, as far as its keys go.
///
/// Deleting goes past it, so that a lone sign or mark can be left over: at Enter that is put right, or Enter
/// is refused. A code that a bar-code reader types into the box gives back what the box showed before.
///
/// Invariant: while `refusing_`, what a reader is still sending is dropped.
class QuantityFilter {
 public:
  /// What becomes of `key_ascii` in a box that takes quantities; the key came at the host's InputTime. The
  /// point of the number pad becomes the mark of the host's region. A sign stays where the box held one.
  /// Other control keys stay as they are, but for a paste, which passes only if a quantity comes of it;
  /// blanks around what the clipboard holds do not count. Beeps where it takes back or refuses what stands in
  /// the box.
  QuantityKey Filter(const EditedText& box, int key_ascii, WindowHost& host, bool decimals);

 private:
  QuantityKey FilterCharacter(const EditedText& box, int key_ascii, WindowHost& host, bool decimals);
  QuantityKey FilterEnter(const EditedText& box, WindowHost& host, bool decimals);
  QuantityKey PutBack(WindowHost& host);

  KeyRun run_;
  std::string before_run_;  // what the box showed when the run began
  std::string expected_;    // what it shows if nobody but this filter's keys changed it
  bool refusing_ = false;
  bool has_letter_ = false;  // the run is a code rather than a number
};

}  // namespace orvendal
