#pragma once

#include "tests/support/form_driver.h"

namespace orvendal::testing_support {

inline void ClickTitleBarPart(FormDriver& screen, const Rect& part) {
  const Rect bar = screen.form().Barra1.Bounds();
  screen.robot().ClickAt({bar.left + part.left + part.width / 2, bar.top + part.top + part.height / 2});
}
inline void ClickMinimize(FormDriver& screen) {
  ClickTitleBarPart(screen, screen.form().Barra1.MinimizeButton());
}
/// The form may be gone afterwards.
inline void ClickClose(FormDriver& screen) {
  ClickTitleBarPart(screen, screen.form().Barra1.CloseButton());
}

}  // namespace orvendal::testing_support
