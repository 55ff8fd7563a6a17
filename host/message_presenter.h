#pragma once

#include <cstdint>
#include <string>

namespace orvendal {

/// Shows a message and waits for the answer: a box on a desktop, an answer prepared beforehand elsewhere.
class MessagePresenter {
 public:
  virtual ~MessagePresenter() = default;
  /// `style` is that of a message box (message::kStop and so on); an empty title is shown as the name of the
  /// program. The code of the button pressed; a message
  /// that was closed without a button gives message::kCancel, or message::kOk if that is its only button.
  virtual std::int32_t Present(const std::string& text, std::int32_t style, const std::string& title) = 0;
};

}  // namespace orvendal
