#pragma once

#include <string>

#include "platform/forms/common_host.h"

namespace orvendal {

/// The window of one form, as the windows of all systems are: known to its host from construction to
/// destruction.
class CommonWindow : public FormWindow {
 public:
  CommonWindow(CommonHost& host, Form& form);
  /// A modal loop of this window is over, at the latest.
  ~CommonWindow() override;
  CommonWindow(const CommonWindow&) = delete;
  CommonWindow& operator=(const CommonWindow&) = delete;

  Form& TheForm() const { return form_; }

 protected:
  /// Whether the system's frame goes around the form.
  bool IsFramed() const;
  /// The form's caption, the application's title without one.
  const std::string& Title() const;
  /// Whether the window is put somewhere when it appears and is the user's from then on. Any other stands
  /// where its form says.
  bool IsPlacedOnce() const;
  struct Size {
    double width;
    double height;
  };
  /// Where such a window appears: `size` in the middle of `owner`, if the design wants it there and it is not
  /// empty, else of `screen`; and `whole`, which is with the frame, within `screen` as far as it fits. All in
  /// the system's own pixels.
  Point FirstPlace(Size size, Size whole, const Rect& screen, const Rect& owner) const;

 private:
  CommonHost& host_;
  Form& form_;
};

}  // namespace orvendal
