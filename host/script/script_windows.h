#pragma once

#include <functional>
#include <memory>

#include "adapters/headless/form_input.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// The windows that a script's forms stand in, with the way by which its hands reach them.
class ScriptWindows {
 public:
  virtual ~ScriptWindows() = default;
  virtual WindowHost& Host() = 0;
  virtual FormInput& Input() = 0;
  /// The display, in pixels of 15 twips.
  virtual void SetScreen(int width, int height) = 0;
  /// Told of errors that no handler traps, in place of the user.
  virtual void OnReport(std::function<void(const RuntimeError&)> told) = 0;
  /// Closes the next dialog that is a form. An answer that no dialog has taken is replaced.
  virtual void AnswerNextDialog(std::function<void(Form&)> answer) = 0;
};

/// Region and clock outlive what is made.
using MakeScriptWindows = std::function<std::unique_ptr<ScriptWindows>(const Region& region, Clock& clock)>;

/// Windows that nobody sees, on a system without a display.
std::unique_ptr<ScriptWindows> MakeHeadlessWindows(const Region& region, Clock& clock);

}  // namespace orvendal
