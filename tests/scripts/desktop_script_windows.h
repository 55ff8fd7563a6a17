#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include "adapters/headless/headless_host.h"
#include "host/script/script_windows.h"
#include "platform/forms/common_window.h"

namespace orvendal {

/// A desktop that measures as the host without a display does, so that everything stands where a script's
/// output says. Its dialogs are answered inside their own event loop.
template <typename Desktop>
class MeasuredDesktop : public Desktop {
 public:
  template <typename... Arguments>
  MeasuredDesktop(const Region& region, Clock& clock, Arguments&&... arguments)
      : Desktop(std::forward<Arguments>(arguments)...), measures_(region, clock) {}

  void SetScreen(int width, int height) { measures_.SetScreen(width, height); }
  void AnswerNextDialog(std::function<void(Form&)> answer) { answer_ = std::move(answer); }

  double ScreenWidth() override { return measures_.ScreenWidth(); }
  double ScreenHeight() override { return measures_.ScreenHeight(); }
  Rect RoomInFrame() override { return measures_.RoomInFrame(); }
  double TextWidth(const FontSpec& font, std::string_view text) override {
    return measures_.TextWidth(font, text);
  }
  double LineHeight(const FontSpec& font) override { return measures_.LineHeight(font); }
  Rect TextInk(const FontSpec& font, std::string_view text) override { return measures_.TextInk(font, text); }

 protected:
  /// Runs `action`, which throws nothing, at a turn of the innermost event loop.
  virtual void AtNextTurn(std::function<void()> action) = 0;

  // No exception may leave the dialog's loop: it waits until that is over.
  std::unique_ptr<CommonHost::ModalLoop> MakeModalLoop(const CommonWindow& window) override {
    Form& form = window.TheForm();
    if (!answer_) throw UnansweredDialog("no answer is queued for the dialog " + form.Name());
    AtNextTurn([this, &form, answer = std::exchange(answer_, nullptr)] {
      try {
        answer(form);
        if (form.Visible()) throw UnansweredDialog("the answer left the dialog " + form.Name() + " open");
      } catch (...) {
        failure_ = std::current_exception();
        form.Unload();
      }
    });
    return Desktop::MakeModalLoop(window);
  }

  void DialogOver() override {
    Desktop::DialogOver();
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
  }

 private:
  HeadlessHost measures_;
  std::function<void(Form&)> answer_;
  std::exception_ptr failure_;
};

/// A script's windows on a desktop. `DesktopHost` is made with region, clock and what is to be told of
/// errors; `DesktopInput` with the host.
template <typename DesktopHost, typename DesktopInput>
class DesktopScriptWindows final : public ScriptWindows {
 public:
  DesktopScriptWindows(const Region& region, Clock& clock)
      : host_(region, clock, [this](const RuntimeError& error) { told_(error); }) {}

  WindowHost& Host() override { return host_; }
  FormInput& Input() override { return input_; }
  void SetScreen(int width, int height) override { host_.SetScreen(width, height); }
  void OnReport(std::function<void(const RuntimeError&)> told) override { told_ = std::move(told); }
  void AnswerNextDialog(std::function<void(Form&)> answer) override {
    host_.AnswerNextDialog(std::move(answer));
  }

 private:
  std::function<void(const RuntimeError&)> told_;
  DesktopHost host_;
  DesktopInput input_{host_};
};

}  // namespace orvendal
