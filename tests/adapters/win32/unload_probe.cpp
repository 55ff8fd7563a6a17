// A module of its own with a window in it, as a component that a host loads and unloads again.

#include "tests/adapters/win32/unload_probe.h"
#include "adapters/automation/module_lifetime.h"
#include "adapters/win32/module_use.h"
#include "platform/forms/label.h"
#include "platform/forms/timer.h"
#include "tests/adapters/win32/win32_fixture.h"

#include <oleacc.h>

namespace orvendal {
namespace {

class EverythingForm final : public Form {
 public:
  explicit EverythingForm(WindowHost& host) : Form(host, "Everything") {}
  TextBox box{*this, nullptr, "Box"};
  Label label{*this, nullptr, "Label"};
  Timer timer{*this, nullptr, "Clock"};

 protected:
  void ApplyDesign() override {
    Width(6000);
    Height(3000);
    box.Move(150, 150, 3000, 400);
    box.TabIndex(0);
    label.Move(150, 900, 3000, 400);
    label.Caption("Existencias");
    label.Font().Spec({"Bookman Old Style", 14.25, 600, true});
  }
};

struct Component {
  Win32WindowHost host;
  std::shared_ptr<EverythingForm> form = std::make_shared<EverythingForm>(host);
  IAccessible* reader = nullptr;
};
Component* component = nullptr;

}  // namespace
}  // namespace orvendal

using orvendal::component;

void ProbeOpen() {
  component = new orvendal::Component;
  component->form->timer.OnTimer = [] { component->form->box.Text("tic"); };
  component->form->Show();
  component->form->timer.Interval(10);
  component->form->timer.Enabled(true);
  component->host.ClipboardText("texto");
  const HWND window = component->host.HandleOf(*component->form);
  AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                             reinterpret_cast<void**>(&component->reader));
}

HWND ProbeWindow() {
  return component->host.HandleOf(*component->form);
}

bool ProbeHasTicked() {
  return component->form->box.Text() == "tic";
}

void ProbeClose() {
  component->form->Unload();
  if (component->reader != nullptr) component->reader->Release();
  delete component;
  component = nullptr;
}

bool ProbeIsInUse() {
  return orvendal::ModuleIsInUse() || !orvendal::module_lifetime::IsFree();
}
