#pragma once

namespace orvendal {

/// What a push button remembers of the hands that are on it: the mouse button that went down on it, and the
/// blank key. Each member that returns bool says whether the look changed, unless it says otherwise.
///
/// Invariant: it looks pushed only while armed by the mouse or held by the blank key.
class ButtonPress {
 public:
  bool LooksPushed() const { return pushed_; }

  bool MouseDown() {
    armed_ = true;
    return Look(true);
  }
  /// While the mouse button is down the look follows the pointer.
  bool MouseOver(bool inside) { return armed_ && Look(inside); }
  bool BlankDown() {
    blank_down_ = true;
    return Look(true);
  }
  /// Whether the blank key had gone down here: it is a click then.
  bool TakeBlank() {
    const bool down = blank_down_;
    blank_down_ = false;
    return down;
  }
  /// All hands off, with no click.
  bool Release() {
    armed_ = false;
    blank_down_ = false;
    return Look(false);
  }

 private:
  bool Look(bool pushed) {
    const bool changed = pushed != pushed_;
    pushed_ = pushed;
    return changed;
  }

  bool pushed_ = false;
  bool armed_ = false;
  bool blank_down_ = false;
};

}  // namespace orvendal
