#pragma once

#include <QPoint>
#include <QString>
#include <optional>

#include "platform/forms/edit_menu.h"

class QWidget;

namespace orvendal {

/// What the menu of a text box says.
struct QtEditCaptions {
  QString cut = QStringLiteral("Cortar");
  QString copy = QStringLiteral("Copiar");
  QString paste = QStringLiteral("Pegar");
  QString select_all = QStringLiteral("Seleccionar todo");
};

/// Shows the desktop's menu of a text box with its corner at `place` of the screen until something is chosen
/// or it is closed. The caller holds a ModalScope.
std::optional<EditCommand> RunEditMenu(QWidget* owner, QPoint place, const EditMenu& menu,
                                       const QtEditCaptions& captions);

}  // namespace orvendal
