#pragma once

#include <QIcon>

namespace orvendal {

/// The program's icon, drawn in all sizes that desktops ask for: a counting sheet with a tick.
QIcon ProgramIcon();

}  // namespace orvendal
