#include "screen/proportional_layout.h"

#include <cmath>

#include "platform/forms/line.h"

namespace orvendal {
namespace {

constexpr std::int32_t kDivisionByZero = 11;
constexpr double kTextBoxHeightStep = 30;

struct Ratio {
  std::int32_t to;
  std::int32_t from;

  double Of(double value) const { return std::trunc(value * to / from); }
};

void ScaleGeometry(Control& control, Ratio across, Ratio down) {
  switch (control.Kind()) {
    case ControlKind::kComboBox:  // takes its height from its font
      control.Move(across.Of(control.Left()), down.Of(control.Top()), across.Of(control.Width()));
      break;
    case ControlKind::kLine: {
      auto& line = static_cast<Line&>(control);
      line.X1(across.Of(line.X1()));
      line.X2(across.Of(line.X2()));
      line.Y1(down.Of(line.Y1()));
      line.Y2(down.Of(line.Y2()));
      break;
    }
    default:
      control.Move(across.Of(control.Left()), down.Of(control.Top()), across.Of(control.Width()),
                   down.Of(control.Height()));
  }
}

// The same step for every ratio: a larger display gets smaller type too.
void StepFont(Control& control) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
    case ControlKind::kOptionButton:
    case ControlKind::kBoton:
      control.Font().Size(control.Font().Size() - 2);
      break;
    case ControlKind::kTextBox:
      control.Font().Size(control.Font().Size() - 1);
      control.Height(control.Height() - kTextBoxHeightStep);
      break;
    case ControlKind::kComboBox:
      control.Font().Size(control.Font().Size() - 1);
      break;
    default:
      break;
  }
}

}  // namespace

void EscalarControles(Form& form, std::int32_t nuevo_ancho, std::int32_t nuevo_alto,
                      std::int32_t ancho_origen, std::int32_t alto_origen) {
  if (ancho_origen == 0 || alto_origen == 0) throw RuntimeError(kDivisionByZero, "Division by zero");
  for (Control* control : form.Controls()) {
    const bool skipped = control->Kind() == ControlKind::kTimer || control->Name() == "PicCalendario" ||
                         control->Name() == "Barra1";
    if (skipped) continue;
    ScaleGeometry(*control, {nuevo_ancho, ancho_origen}, {nuevo_alto, alto_origen});
    StepFont(*control);
  }
}

}  // namespace orvendal
