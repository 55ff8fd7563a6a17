#include "adapters/headless/headless_host.h"

#include <cmath>

#include "adapters/headless/font_tables.h"
#include "platform/base/text.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr int kLightestBold = 600;

const FontTable& TableOf(const FontSpec& font) {
  const bool is_bookman = font.name.find("Bookman") != std::string::npos;
  if (is_bookman) return font.italic ? kBookmanDemiItalic : kBookmanDemi;
  return font.weight >= kLightestBold ? kSansBold : kSans;
}

std::uint16_t WidthOf(const FontTable& table, char32_t character) {
  if (character >= 32 && character <= 126) return table.widths[character - 32];
  if (character >= 160 && character <= 255) return table.widths[character - 160 + 95];
  if (character == U'’') return table.apostrophe;
  return table.widths['n' - 32];
}

double PixelsOf(const FontSpec& font) {
  return std::max(1.0, std::floor(font.size * kPixelsPerPoint + 0.5));
}

// Letters are as wide as whole 64ths of a pixel.
double WidthInPixels(double pixels, double thousandths) {
  constexpr double kParts = 64.0;
  return std::floor(pixels * thousandths / 1000.0 * kParts) / kParts;
}

double Share(double pixels, double thousandths) {
  return pixels * thousandths / 1000.0;
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
  if (measures_ != nullptr) return measures_->TextWidth(font, text);
  const FontTable& table = TableOf(font);
  const double pixels = PixelsOf(font);
  double width = 0;
  for (std::size_t offset = 0; offset < text.size();)
    width += WidthInPixels(pixels, WidthOf(table, NextCharacter(text, offset)));
  return width * kTwipsPerPixel;
}

double HeadlessHost::LineHeight(const FontSpec& font) {
  if (measures_ != nullptr) return measures_->LineHeight(font);
  const FontTable& table = TableOf(font);
  const double pixels = PixelsOf(font);
  return (std::ceil(Share(pixels, table.ascent)) + std::ceil(Share(pixels, table.descent))) * kTwipsPerPixel;
}

// From the accents of capitals to the tails, and as far to the side as letters lean.
Rect HeadlessHost::TextInk(const FontSpec& font, std::string_view text) {
  if (measures_ != nullptr) return measures_->TextInk(font, text);
  constexpr double kAccents = 900;
  constexpr double kTails = 210;
  constexpr double kLeaning = 2;  // pixels
  const double pixels = PixelsOf(font);
  const double base = std::ceil(Share(pixels, TableOf(font).ascent));
  const double top = base - std::ceil(Share(pixels, kAccents));
  const double bottom = base + std::ceil(Share(pixels, kTails));
  const std::size_t end = text.find_last_not_of(' ');
  if (end == std::string_view::npos) return {0, base * kTwipsPerPixel, 0, 0};
  const double width = std::ceil(TextWidth(font, text.substr(0, end + 1)) / kTwipsPerPixel) + kLeaning;
  return {0, top * kTwipsPerPixel, width * kTwipsPerPixel, (bottom - top) * kTwipsPerPixel};
}

std::optional<EditCommand> HeadlessHost::RunEditMenu(Form&, Point, const EditMenu& menu) {
  return OnEditMenu ? OnEditMenu(menu) : std::nullopt;
}

std::unique_ptr<FormWindow> HeadlessHost::CreateFormWindow(Form& form) {
  return std::make_unique<HeadlessWindow>(*this, form);
}

HeadlessWindow* HeadlessHost::WindowOf(const Form& form) const {
  return static_cast<HeadlessWindow*>(CommonHost::WindowOf(form));
}

class HeadlessHost::QueuedAnswer final : public ModalLoop {
 public:
  QueuedAnswer(HeadlessHost& host, const CommonWindow& window) : ModalLoop(window), host_(host) {}

  void Run(Form& form) override {
    std::deque<std::function<void(Form&)>>& dialogs = host_.dialogs_;
    if (dialogs.empty()) throw UnansweredDialog("no answer is queued for the dialog " + form.Name());
    const std::function<void(Form&)> answer = std::move(dialogs.front());
    dialogs.pop_front();
    answer(form);
    if (form.Visible()) throw UnansweredDialog("the answer left the dialog " + form.Name() + " open");
  }

 protected:
  void End(ModalLoop*) override {}

 private:
  HeadlessHost& host_;
};

std::unique_ptr<CommonHost::ModalLoop> HeadlessHost::MakeModalLoop(const CommonWindow& window) {
  return std::make_unique<QueuedAnswer>(*this, window);
}

int HeadlessHost::RunMessageBox(const std::string& text, int, const std::string&) {
  throw UnansweredDialog("no answer is queued for the message " + text);
}

void HeadlessHost::DoEvents() {
  while (!events_.empty()) {
    const std::function<void()> event = std::move(events_.front());
    events_.pop_front();
    event();
  }
}

void HeadlessHost::StartTimer(Timer& timer, int) {
  timers_[&timer] = 0;
}

void HeadlessHost::StopTimer(Timer& timer) {
  timers_.erase(&timer);
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

void HeadlessHost::TellError(const RuntimeError& error) {
  if (OnReport) OnReport(error);
  errors_.push_back(error);
}

void HeadlessHost::Log(const char*, const char*) {
  throw;  // cppcheck-suppress rethrowNoCurrentException
}

}  // namespace orvendal
