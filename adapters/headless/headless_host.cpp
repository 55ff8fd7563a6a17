#include "adapters/headless/headless_host.h"

#include "adapters/headless/font_widths.h"
#include "platform/base/text.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

constexpr double kTwipsPerPoint = 20.0;
constexpr double kLineHeightToSize = 1.2;

std::uint16_t WidthOf(const CharacterWidths& widths, char32_t character) {
  if (character >= 32 && character <= 126) return widths[character - 32];
  if (character >= 160 && character <= 255) return widths[character - 160 + 95];
  return widths['n' - 32];
}

}  // namespace

void HeadlessHost::SetScreen(int width_pixels, int height_pixels) {
  SetScreenTwips(width_pixels * kTwipsPerPixel, height_pixels * kTwipsPerPixel);
}

void HeadlessHost::SetScreenTwips(double width, double height) {
  screen_width_ = width;
  screen_height_ = height;
}

void HeadlessHost::SetTakenByFrames(int width_pixels, int height_pixels) {
  taken_width_ = width_pixels * kTwipsPerPixel;
  taken_height_ = height_pixels * kTwipsPerPixel;
}

Rect HeadlessHost::RoomInFrame() {
  return {0, 0, screen_width_ - taken_width_, screen_height_ - taken_height_};
}

double HeadlessHost::TextWidth(const FontSpec& font, std::string_view text) {
  const bool is_bookman = font.name.find("Bookman") != std::string::npos;
  const CharacterWidths& widths = is_bookman ? kBookmanDemiWidths : kSansWidths;
  double thousandths = 0;
  for (std::size_t offset = 0; offset < text.size();)
    thousandths += WidthOf(widths, NextCharacter(text, offset));
  return thousandths * font.size * kTwipsPerPoint / 1000.0;
}

double HeadlessHost::LineHeight(const FontSpec& font) {
  return font.size * kTwipsPerPoint * kLineHeightToSize;
}

std::unique_ptr<FormWindow> HeadlessHost::CreateFormWindow(Form& form) {
  return std::make_unique<HeadlessWindow>(*this, form);
}

HeadlessWindow* HeadlessHost::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second;
}

void HeadlessHost::RunModal(Form& form) {
  if (dialogs_.empty()) throw UnansweredDialog("no answer is queued for the dialog " + form.Name());
  const std::function<void(Form&)> answer = std::move(dialogs_.front());
  dialogs_.pop_front();
  answer(form);
  if (form.Visible()) throw UnansweredDialog("the answer left the dialog " + form.Name() + " open");
}

void HeadlessHost::DoEvents() {
  while (!events_.empty()) {
    const std::function<void()> event = std::move(events_.front());
    events_.pop_front();
    event();
  }
}

void HeadlessHost::TimerChanged(Timer& timer, bool alive) {
  if (alive && timer.Enabled() && timer.Interval() > 0) {
    timers_.try_emplace(&timer, 0);
  } else {
    timers_.erase(&timer);
  }
}

void HeadlessHost::PassTime(int milliseconds) {
  for (int passed = 0; passed < milliseconds; ++passed) {
    std::vector<Timer*> due;
    for (auto& [timer, elapsed] : timers_) {
      if (++elapsed >= timer->Interval()) {
        elapsed = 0;
        due.push_back(timer);
      }
    }
    for (Timer* timer : due) {
      // One that fired before may have closed the form.
      if (timers_.count(timer) != 0) timer->Parent().TimerElapsed(*timer);
    }
  }
}

void HeadlessHost::ReportError(const RuntimeError& error) {
  if (OnReport) OnReport(error);
  errors_.push_back(error);
}

HeadlessWindow::HeadlessWindow(HeadlessHost& host, Form& form) : host_(host), form_(form) {
  host_.windows_[&form_] = this;
}

HeadlessWindow::~HeadlessWindow() {
  host_.windows_.erase(&form_);
}

}  // namespace orvendal
