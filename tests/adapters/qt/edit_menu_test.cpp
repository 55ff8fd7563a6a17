#include <QClipboard>
#include <QMenu>

#include "platform/forms/keys.h"
#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

class EditMenus : public QtFormTest {
 protected:
  /// Does something with the menu that the next right click opens.
  void InMenu(const std::function<void(QMenu&)>& action) {
    InNextDialog([action] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      action(*menu);
      menu->close();
    });
  }
  void Choose(const QString& caption) {
    InMenu([caption](QMenu& menu) {
      for (QAction* action : menu.actions()) {
        if (action->text() != caption) continue;
        menu.setActiveAction(action);
        QTest::keyClick(&menu, Qt::Key_Return);
        return;
      }
      ADD_FAILURE() << "the menu lacks " << caption.toStdString();
    });
  }
  void RightClick() { QTest::mouseClick(Window(), Qt::RightButton, {}, QPoint(60, 165)); }
};

TEST_F(EditMenus, ARightClickOnATextBoxShowsTheDesktopsMenuThere) {
  ShowForm();
  host.ClipboardText("x");
  form->box.Text("abc");
  std::vector<std::string> shown;
  QPoint place;
  InMenu([&](QMenu& menu) {
    place = Window()->mapFromGlobal(menu.pos());
    for (const QAction* action : menu.actions()) {
      if (!action->isSeparator())
        shown.push_back(action->text().toStdString() + (action->isEnabled() ? "" : " (no)"));
    }
  });
  RightClick();
  EXPECT_EQ(shown, (std::vector<std::string>{"Cortar (no)", "Copiar (no)", "Pegar", "Seleccionar todo"}));
  EXPECT_EQ(place, QPoint(60, 165));
  QTest::keyClicks(Window(), "z");
  EXPECT_EQ(form->box.Text(), "zabc");
}

TEST_F(EditMenus, WhatIsChosenIsDone) {
  ShowForm();
  form->box.Text("abc");
  Choose("Seleccionar todo");
  RightClick();
  EXPECT_EQ(form->box.SelText(), "abc");
  Choose("Cortar");
  RightClick();
  EXPECT_EQ(form->box.Text(), "");
  EXPECT_EQ(host.ClipboardText(), "abc");
  Choose("Pegar");
  RightClick();
  EXPECT_EQ(form->box.Text(), "abc");
}

TEST_F(EditMenus, ElsewhereThereIsNone) {
  ShowForm();
  QTest::mouseClick(Window(), Qt::RightButton, {}, QPoint(20, 20));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(EditMenus, WithoutASelectionOfTheDesktopTheMiddleButtonPastesNothing) {
  ShowForm();
  host.ClipboardText("x");
  QTest::mouseClick(Window(), Qt::MiddleButton, {}, QPoint(60, 165));
  const bool keeps_one = QGuiApplication::clipboard()->supportsSelection();
  EXPECT_EQ(form->box.Text(), "");
  QTest::keyClicks(Window(), "abc");
  QTest::keyClick(Window(), Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(host.SelectedText(), keeps_one ? "abc" : "");
}

}  // namespace
}  // namespace orvendal
