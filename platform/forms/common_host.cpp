#include "platform/forms/common_host.h"

#include <algorithm>

#include "platform/forms/common_window.h"
#include "platform/forms/form.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

constexpr int kStopIcon = 16;

/// Runs `action` at the end of the scope, also when an exception leaves it.
template <typename Action>
class AtEnd {
 public:
  explicit AtEnd(Action action) : action_(std::move(action)) {}
  ~AtEnd() { action_(); }
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;

 private:
  Action action_;
};

}  // namespace

// Modal forms.

CommonWindow* CommonHost::WindowOf(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const CommonWindow* window) { return &window->TheForm() == &form; });
  return found == windows_.end() ? nullptr : *found;
}

void CommonHost::RunModal(Form& form) {
  const CommonWindow* window = WindowOf(form);
  if (window == nullptr || !form.Visible()) return;
  {
    const std::unique_ptr<ModalLoop> loop = MakeModalLoop(*window);
    modal_loops_.push_back(loop.get());
    const AtEnd leave([this] { modal_loops_.pop_back(); });
    loop->Run(form);
  }
  DialogOver();
}

void CommonHost::EndModal(const CommonWindow& window) {
  for (auto loop = modal_loops_.begin(); loop != modal_loops_.end(); ++loop) {
    if (&(*loop)->window_ != &window || (*loop)->ended_) continue;
    (*loop)->ended_ = true;
    const auto inner =
        std::find_if(loop + 1, modal_loops_.end(), [](const ModalLoop* other) { return !other->ended_; });
    (*loop)->End(inner == modal_loops_.end() ? nullptr : *inner);
  }
}

// Timers.

void CommonHost::TimerChanged(Timer& timer, bool alive) {
  StopTimer(timer);
  if (alive && timer.Enabled() && timer.Interval() > 0) StartTimer(timer, timer.Interval());
}

// Messages and errors.

int CommonHost::ShowMessage(std::string_view text, int style, std::string_view title) {
  const ModalScope scope(*this);
  const int answer =
      RunMessageBox(std::string(text), style, title.empty() ? ApplicationTitle() : std::string(title));
  DialogOver();
  return answer;
}

void CommonHost::ReportError(const RuntimeError& error) {
  errors_to_report_.push_back(error);
  if (reporting_) return;
  reporting_ = true;
  const AtEnd told([this] { reporting_ = false; });
  while (!errors_to_report_.empty()) {
    const RuntimeError next = errors_to_report_.front();
    errors_to_report_.pop_front();
    try {
      TellError(next);
    } catch (...) {
      LogCaught("A report of an error");
    }
  }
}

void CommonHost::TellError(const RuntimeError& error) {
  if (options_.on_error) {
    options_.on_error(error);
    return;
  }
  const std::string description =
      options_.describe_error ? options_.describe_error(error) : error.Description();
  ShowMessage(ErrorText(error.Number(), description), kStopIcon, "");
}

std::string CommonHost::ErrorText(std::int32_t number, const std::string& description) const {
  return "Error " + std::to_string(number) + ": " + description;
}

void CommonHost::ReportCaught() {
  try {
    throw;
  } catch (const RuntimeError& error) {
    ReportError(error);
  } catch (const std::exception& error) {
    LogCaught("An event");
    ReportError(RuntimeError(error_number::kInternal, error.what()));
  } catch (...) {
    LogCaught("An event");
    ReportError(RuntimeError(error_number::kInternal));
  }
}

void CommonHost::LogCaught(const char* what) {
  try {
    throw;
  } catch (const std::exception& error) {
    Log(what, error.what());
  } catch (...) {
    Log(what, "an unknown exception");
  }
}

}  // namespace orvendal
