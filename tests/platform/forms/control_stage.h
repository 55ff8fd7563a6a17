#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adapters/headless/headless_host.h"
#include "platform/base/text.h"
#include "platform/forms/form.h"
#include "tests/support/recording_canvas.h"

namespace orvendal::testing {

/// A form that owns whatever controls a test puts on it, in tab order.
class StageForm final : public Form {
 public:
  explicit StageForm(WindowHost& host) : Form(host, "FrmStage") {}

  template <typename Kind>
  Kind& Add(std::string_view name, const Rect& bounds, Control* container = nullptr) {
    auto control = std::make_unique<Kind>(*this, container, name);
    Kind& added = *control;
    owned_.push_back({std::move(control), bounds});
    return added;
  }

 protected:
  void ApplyDesign() override {
    Width(15000);
    Height(9000);
    int index = 0;
    for (auto& [control, bounds] : owned_) {
      control->Move(bounds.left, bounds.top, bounds.width, bounds.height);
      if (control->CanFocus()) control->TabIndex(index++);
    }
  }

 private:
  std::vector<std::pair<std::unique_ptr<Control>, Rect>> owned_;
};

/// A form on a host without a display, and hands to use it with. Add the controls, then Show, then give them
/// their properties: showing puts them to the values of new ones.
struct Stage {
  FixedClock clock{Date(2026, 11, 16, 9, 5, 0)};
  HeadlessHost host{Region::Spanish(), clock};
  std::shared_ptr<StageForm> form = std::make_shared<StageForm>(host);

  template <typename Kind>
  Kind& Add(std::string_view name, const Rect& bounds, Control* container = nullptr) {
    return form->Add<Kind>(name, bounds, container);
  }
  void Show() { form->Show(); }

  static Point At(const Control& control, Point local) {
    const Rect bounds = control.Bounds();
    return {bounds.left + local.x, bounds.top + local.y};
  }
  static Point MiddleOf(const Rect& place) {
    return {place.left + place.width / 2, place.top + place.height / 2};
  }

  void Press(const Control& control, Point local, int shift = 0, bool second = false) {
    form->MousePress(At(control, local), mouse_button::kLeft, shift, second);
  }
  void Drag(const Control& control, Point local) {
    form->MouseMove(At(control, local), mouse_button::kLeft, 0);
  }
  void Release(const Control& control, Point local) {
    form->MouseRelease(At(control, local), mouse_button::kLeft, 0);
  }
  void Click(const Control& control, Point local, int shift = 0) {
    Press(control, local, shift);
    Release(control, local);
  }
  void Click(const Control& control) { Click(control, MiddleOf(control.LocalBounds())); }
  void DoubleClick(const Control& control, Point local) {
    Click(control, local);
    Press(control, local, 0, true);
    Release(control, local);
  }

  /// One key, with the control character that it stands for.
  void Key(int key_code, int shift = 0) {
    form->KeyPress(key_code, shift);
    const bool control = (shift & shift_mask::kControl) != 0;
    if (key_code == key::kBack) {
      form->Character(control ? char32_t{127} : char32_t{8});
    } else if (key_code == key::kReturn || key_code == key::kEscape || key_code == key::kSpace) {
      form->Character(static_cast<char32_t>(key_code));
    } else if (control && key_code >= 'A' && key_code <= 'Z') {
      form->Character(static_cast<char32_t>(key_code - 'A' + 1));
    }
    form->KeyRelease(key_code, shift);
  }
  void Type(std::string_view text) {
    for (std::size_t offset = 0; offset < text.size();) {
      const char32_t character = NextCharacter(text, offset);
      form->KeyPress(0xE7, 0);
      form->Character(character);
      form->KeyRelease(0xE7, 0);
    }
  }

  RecordingCanvas Painted() {
    RecordingCanvas canvas;
    form->Paint(canvas, {0, 0, form->Width(), form->Height()});
    return canvas;
  }
};

/// The first operation of that kind; fails the test with an exception if there is none.
inline RecordingCanvas::Operation Find(const RecordingCanvas& canvas, std::string_view kind,
                                       std::string_view text = {}) {
  for (const auto& operation : canvas.Operations()) {
    if (operation.kind == kind && (text.empty() || operation.text == text)) return operation;
  }
  throw std::logic_error("nothing painted: " + std::string(kind) + " " + std::string(text));
}

inline std::size_t Count(const RecordingCanvas& canvas, std::string_view kind) {
  std::size_t count = 0;
  for (const auto& operation : canvas.Operations()) count += operation.kind == kind ? 1U : 0U;
  return count;
}

}  // namespace orvendal::testing
