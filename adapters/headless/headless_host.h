#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/forms/common_host.h"
#include "platform/forms/common_window.h"
#include "platform/forms/form.h"

namespace orvendal {

/// A clock that stands where it was set.
class FixedClock final : public Clock {
 public:
  explicit FixedClock(Date now) : now_(now) {}
  Date Now() override { return now_; }
  void Set(Date now) { now_ = now; }

 private:
  Date now_;
};

/// A modal dialog came up that nobody was prepared to answer.
class UnansweredDialog : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

class HeadlessWindow;

/// A whole system without a display: nothing is shown, texts measure the same on every machine (a whole
/// number of pixels high, as on a desktop), dialogs are answered by functions queued beforehand, timers run
/// when told to.
class HeadlessHost final : public CommonHost {
 public:
  HeadlessHost(const Region& region, Clock& clock) : region_(region), clock_(clock) {}

  /// Display in pixels of 15 twips.
  void SetScreen(int width_pixels, int height_pixels);
  void SetScreenTwips(double width, double height);
  /// Insets of the display, in pixels: what panels and the frames of windows take of it.
  void SetTakenByFrames(int width_pixels, int height_pixels);

  /// Runs when the next modal form is up; must leave it hidden or unloaded, else UnansweredDialog comes out.
  void QueueDialog(std::function<void(Form&)> answer) { dialogs_.push_back(std::move(answer)); }
  std::size_t QueuedDialogs() const { return dialogs_.size(); }
  /// Runs at the next DoEvents, in order.
  void QueueEvent(std::function<void()> event) { events_.push_back(std::move(event)); }
  /// Chooses from the menus of text boxes that come up; without it they are closed.
  std::function<std::optional<EditCommand>(const EditMenu&)> OnEditMenu;
  /// Lets that many milliseconds pass for the timers.
  void PassTime(int milliseconds);

  /// While it lives, texts are measured by somebody else: by the fonts that paint a picture.
  class MeasuredBy {
   public:
    MeasuredBy(HeadlessHost& host, TextMeasures& measures) : host_(host) { host_.measures_ = &measures; }
    ~MeasuredBy() { host_.measures_ = nullptr; }
    MeasuredBy(const MeasuredBy&) = delete;
    MeasuredBy& operator=(const MeasuredBy&) = delete;

   private:
    HeadlessHost& host_;
  };

  const std::vector<RuntimeError>& ReportedErrors() const { return errors_; }
  void ForgetErrors() { errors_.clear(); }
  int Beeps() const { return beeps_; }
  /// Called when an error is reported, before it is kept.
  std::function<void(const RuntimeError&)> OnReport;
  /// The window of a loaded form; nullptr without one.
  HeadlessWindow* WindowOf(const Form& form) const;

  const Region& UserRegion() override { return region_; }
  Clock& SystemClock() override { return clock_; }
  double ScreenWidth() override { return screen_width_; }
  double ScreenHeight() override { return screen_height_; }
  Rect RoomInFrame() override;
  double TextWidth(const FontSpec& font, std::string_view text) override;
  double LineHeight(const FontSpec& font) override;
  Rect TextInk(const FontSpec& font, std::string_view text) override;
  std::unique_ptr<FormWindow> CreateFormWindow(Form& form) override;
  void DoEvents() override;
  void Beep() override { ++beeps_; }
  std::string ClipboardText() override { return clipboard_; }
  void ClipboardText(const std::string& text) override { clipboard_ = text; }
  std::string SelectedText() override { return selected_; }
  void SelectedText(const std::string& text) override { selected_ = text; }
  std::optional<EditCommand> RunEditMenu(Form& form, Point place, const EditMenu& menu) override;

 protected:
  std::unique_ptr<ModalLoop> MakeModalLoop(const CommonWindow& window) override;
  /// Raises UnansweredDialog: message boxes have no queue of answers.
  int RunMessageBox(const std::string& text, int style, const std::string& title) override;
  void StartTimer(Timer& timer, int milliseconds) override;
  void StopTimer(Timer& timer) override;
  void TellError(const RuntimeError& error) override;
  /// Rethrows the exception: there is no log.
  void Log(const char* what_ended, const char* how) override;

 private:
  class QueuedAnswer;
  const Region& region_;
  Clock& clock_;
  double screen_width_ = 15360;
  double screen_height_ = 11520;
  double taken_width_ = 0;
  double taken_height_ = 0;
  std::deque<std::function<void(Form&)>> dialogs_;
  std::deque<std::function<void()>> events_;
  std::map<Timer*, int> timers_;  // milliseconds since each fired last
  std::vector<RuntimeError> errors_;
  std::string clipboard_;
  std::string selected_;
  TextMeasures* measures_ = nullptr;
  int beeps_ = 0;
};

/// The window of a form, whose state tests and scripts can read.
class HeadlessWindow final : public CommonWindow {
 public:
  using CommonWindow::CommonWindow;

  bool IsShown() const { return shown_; }
  int TimesRaised() const { return raised_; }
  int TimesPainted() const { return painted_; }
  CursorShape LastCursor() const { return cursor_; }
  const std::optional<Rect>& LastCaret() const { return caret_; }

  void Show() override { shown_ = true; }
  void Hide() override { shown_ = false; }
  void Raise() override { ++raised_; }
  void BoundsChanged() override {}
  void CaptionChanged() override {}
  void StateChanged(WindowState) override {}
  void RequestPaint(const Rect&) override {}
  void PaintNow() override { ++painted_; }
  void Cursor(CursorShape shape) override { cursor_ = shape; }
  void Caret(const std::optional<Rect>& caret) override { caret_ = caret; }

 private:
  bool shown_ = false;
  int raised_ = 0;
  int painted_ = 0;
  CursorShape cursor_ = CursorShape::kArrow;
  std::optional<Rect> caret_;
};

}  // namespace orvendal
