#include "host/script/script_windows.h"

#include "adapters/headless/headless_host.h"

namespace orvendal {
namespace {

class HeadlessWindows final : public ScriptWindows {
 public:
  HeadlessWindows(const Region& region, Clock& clock) : host_(region, clock) {}

  WindowHost& Host() override { return host_; }
  FormInput& Input() override { return DirectInput(); }
  void SetScreen(int width, int height) override { host_.SetScreen(width, height); }
  void OnReport(std::function<void(const RuntimeError&)> told) override { host_.OnReport = std::move(told); }
  void AnswerNextDialog(std::function<void(Form&)> answer) override {
    answer_ = std::move(answer);
    if (host_.QueuedDialogs() == 0) {
      host_.QueueDialog([this](Form& dialog) { answer_(dialog); });
    }
  }

 private:
  HeadlessHost host_;
  std::function<void(Form&)> answer_;
};

}  // namespace

std::unique_ptr<ScriptWindows> MakeHeadlessWindows(const Region& region, Clock& clock) {
  return std::make_unique<HeadlessWindows>(region, clock);
}

}  // namespace orvendal
