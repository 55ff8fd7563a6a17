#include "adapters/qt/qt_edit_menu.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>

namespace orvendal {

std::optional<EditCommand> RunEditMenu(QWidget* owner, QPoint place, const EditMenu& menu,
                                       const QtEditCaptions& captions) {
  QMenu shown(owner);
  const auto offer = [&shown](EditCommand command, const QString& caption, QKeySequence::StandardKey keys,
                              bool available) {
    QAction* action = shown.addAction(caption);
    action->setShortcut(keys);
    action->setData(static_cast<int>(command));
    action->setEnabled(available);
  };
  offer(EditCommand::kCut, captions.cut, QKeySequence::Cut, menu.cut);
  offer(EditCommand::kCopy, captions.copy, QKeySequence::Copy, menu.copy);
  offer(EditCommand::kPaste, captions.paste, QKeySequence::Paste, menu.paste);
  shown.addSeparator();
  offer(EditCommand::kSelectAll, captions.select_all, QKeySequence::SelectAll, menu.select_all);
  const QAction* chosen = shown.exec(place);
  if (chosen == nullptr) return std::nullopt;
  return static_cast<EditCommand>(chosen->data().toInt());
}

}  // namespace orvendal
