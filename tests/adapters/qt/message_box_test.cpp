#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

class BeepingHost final : public QtWindowHost {
 public:
  explicit BeepingHost(Clock& clock) : QtWindowHost(Region::Spanish(), clock) {}
  void Beep() override { ++beeps; }
  int beeps = 0;
};

class MessageBoxes : public QtFormTest {
 protected:
  // Shows a box, has `act` do something to it, and gives the answer.
  int Answer(int style, const std::function<void(QMessageBox&)>& act, const std::string& text = "¿Guardar?",
             const std::string& title = "Atención") {
    InNextDialog([&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      ASSERT_TRUE(QTest::qWaitForWindowActive(box));
      act(*box);
      // A button that the keyboard presses is seen going down before it answers.
      if (!QTest::qWaitFor([&] { return !box->isVisible(); }, 2000)) {
        ADD_FAILURE() << "the box is still up";
        box->reject();
      }
    });
    return desktop->ShowMessage(text, style, title);
  }
  static std::function<void(QMessageBox&)> Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    return [=](QMessageBox& box) {
      QWidget* focused = box.focusWidget() != nullptr ? box.focusWidget() : &box;
      QTest::keyClick(focused, key, modifiers);
    };
  }
  static void Send(QMessageBox& box, QEvent::Type type, int key, const QString& text, quint64 time) {
    QKeyEvent event(type, key, {}, text);
    event.setTimestamp(time);
    QApplication::sendEvent(box.focusWidget() != nullptr ? box.focusWidget() : &box, &event);
  }
  // A code and its Enter, ten milliseconds from key to key, as a reader sends them.
  static void Scan(QMessageBox& box, const QString& code, quint64 time) {
    for (const QChar character : code + "\r") {
      const int key = character == '\r' ? int(Qt::Key_Return) : int(character.toUpper().unicode());
      Send(box, QEvent::KeyPress, key, character, time);
      Send(box, QEvent::KeyRelease, key, character, time + 2);
      time += 10;
    }
  }
  static std::function<void(QMessageBox&)> Press(const QString& caption) {
    return [=](QMessageBox& box) {
      for (QAbstractButton* button : box.buttons()) {
        if (button->text().remove('&') == caption) QTest::mouseClick(button, Qt::LeftButton);
      }
    };
  }

  QtWindowHost* desktop = &host;
};

TEST_F(MessageBoxes, EachButtonAnswersWithItsCode) {
  EXPECT_EQ(Answer(16, Press("Aceptar")), 1);
  EXPECT_EQ(Answer(35, Press(QString::fromUtf8("Sí"))), 6);
  EXPECT_EQ(Answer(35, Press("No")), 7);
  EXPECT_EQ(Answer(35, Press("Cancelar")), 2);
  EXPECT_EQ(Answer(33, Press("Aceptar")), 1);
  EXPECT_EQ(Answer(33, Press("Cancelar")), 2);
  EXPECT_EQ(Answer(36, Press(QString::fromUtf8("Sí"))), 6);
  EXPECT_EQ(Answer(36, Press("No")), 7);
}

TEST_F(MessageBoxes, EnterTakesTheDefaultAndEscCancels) {
  EXPECT_EQ(Answer(64, Key(Qt::Key_Return)), 1);
  EXPECT_EQ(Answer(64, Key(Qt::Key_Escape)), 1);
  EXPECT_EQ(Answer(35, Key(Qt::Key_Return)), 6);
  EXPECT_EQ(Answer(35, Key(Qt::Key_Enter)), 6);
  EXPECT_EQ(Answer(35, Key(Qt::Key_Escape)), 2);
  EXPECT_EQ(Answer(33, Key(Qt::Key_Escape)), 2);
  EXPECT_EQ(Answer(35 + 256, Key(Qt::Key_Return)), 7);
  EXPECT_EQ(Answer(35 + 512, Key(Qt::Key_Return)), 2);
}

TEST_F(MessageBoxes, TheDefaultHasTheKeyboardAlthoughTheTextCanBeSelected) {
  Answer(35 + 256, [](QMessageBox& box) {
    const auto* focused = qobject_cast<QPushButton*>(box.focusWidget());
    ASSERT_NE(focused, nullptr);
    EXPECT_EQ(focused->text(), "&No");
    QTest::keyClick(box.focusWidget(), Qt::Key_Escape);
  });
}

TEST_F(MessageBoxes, TheLetterOfAButtonPressesItWithAlt) {
  EXPECT_EQ(Answer(35, Key(Qt::Key_S, Qt::AltModifier)), 6);
  EXPECT_EQ(Answer(35, Key(Qt::Key_N, Qt::AltModifier)), 7);
  EXPECT_EQ(Answer(35, Key(Qt::Key_C, Qt::AltModifier)), 2);
}

TEST_F(MessageBoxes, ALetterAloneIsNoAnswer) {
  const auto nothing_is_pressed = [](QMessageBox& box) {
    QApplication::processEvents();
    EXPECT_TRUE(box.isVisible());
    for (const QAbstractButton* button : box.buttons()) EXPECT_FALSE(button->isDown());
  };
  for (const Qt::Key letter : {Qt::Key_N, Qt::Key_S, Qt::Key_C}) {
    EXPECT_EQ(Answer(35,
                     [=](QMessageBox& box) {
                       QTest::keyClick(box.focusWidget(), letter);
                       nothing_is_pressed(box);
                       QTest::keyClick(&box, letter);
                       nothing_is_pressed(box);
                       box.reject();
                     }),
              2);
  }
}

TEST_F(MessageBoxes, AScannedCodeAnswersNothingAndBeeps) {
  BeepingHost desktop(clock);
  for (const int style : {16, 35, 36, 64}) {
    desktop.beeps = 0;
    InNextDialog([&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      Scan(*box, "N0123S4C", 1000);
      QApplication::processEvents();
      EXPECT_TRUE(box->isVisible()) << style;
      EXPECT_EQ(desktop.beeps, 1);
      box->reject();
    });
    desktop.ShowMessage("Atención", style, "");
  }
}

TEST_F(MessageBoxes, AfterAScanTheEnterOfAHandAnswers) {
  EXPECT_EQ(Answer(35,
                   [](QMessageBox& box) {
                     Scan(box, "8412345678905", 1000);
                     EXPECT_TRUE(box.isVisible());
                     Send(box, QEvent::KeyPress, Qt::Key_Return, "\r", 2000);
                   }),
            6);
}

TEST_F(MessageBoxes, AnEnterAfterTwoQuickCharactersIsAHands) {
  EXPECT_EQ(Answer(35, [](QMessageBox& box) { Scan(box, "12", 1000); }), 6);
}

TEST_F(MessageBoxes, AScanThatBeganBeforeTheBoxCameUpAnswersNothing) {
  ShowForm();
  int answer = 0;
  form->box.OnKeyPress = [&](int&) {
    form->box.OnKeyPress = nullptr;
    answer = Answer(35, [](QMessageBox& box) {
      Send(box, QEvent::KeyPress, Qt::Key_2, "2", 1010);
      Send(box, QEvent::KeyPress, Qt::Key_3, "3", 1020);
      Send(box, QEvent::KeyPress, Qt::Key_Return, "\r", 1030);
      QApplication::processEvents();
      EXPECT_TRUE(box.isVisible());
      box.reject();
    });
  };
  QKeyEvent first(QEvent::KeyPress, Qt::Key_1, {}, "1");
  first.setTimestamp(1000);
  QApplication::sendEvent(Window(), &first);
  EXPECT_EQ(answer, 2);
}

TEST_F(MessageBoxes, ABlankInACodePressesNoButtonAndALoneOneDoes) {
  EXPECT_EQ(Answer(35,
                   [](QMessageBox& box) {
                     Scan(box, " 12 34", 1000);
                     QTest::qWait(120);  // longer than it is held back
                     EXPECT_TRUE(box.isVisible());
                     box.reject();
                   }),
            2);
  EXPECT_EQ(Answer(35, Key(Qt::Key_Space)), 6);
}

TEST_F(MessageBoxes, ClosingTheBoxCancels) {
  EXPECT_EQ(Answer(35, [](QMessageBox& box) { box.close(); }), 2);
}

TEST_F(MessageBoxes, TheTextIsShownAsItIsAndCanBeSelected) {
  Answer(
      16,
      [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Sin guardar,\n<b>texto</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByMouse);
        EXPECT_EQ(box.windowTitle(), QString::fromUtf8("Atención"));
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        box.accept();
      },
      "Sin guardar,\r\n<b>texto</b>");
}

TEST_F(MessageBoxes, TheStyleChoosesTheIcon) {
  const std::pair<int, QMessageBox::Icon> expected[] = {{0, QMessageBox::NoIcon},
                                                        {16, QMessageBox::Critical},
                                                        {35, QMessageBox::Question},
                                                        {48, QMessageBox::Warning},
                                                        {64, QMessageBox::Information}};
  for (const auto& [style, icon] : expected) {
    const QMessageBox::Icon wanted = icon;
    Answer(style, [=](QMessageBox& box) {
      EXPECT_EQ(box.icon(), wanted);
      box.reject();
    });
  }
}

TEST_F(MessageBoxes, ABoxWithoutTitleBearsTheApplications) {
  Answer(
      64,
      [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Recuento");
        box.accept();
      },
      "Hecho", "");
}

TEST_F(MessageBoxes, ButtonsSpeakTheUsersLanguageInTheOrderOfTheAnswers) {
  QtHostOptions options;
  options.captions.yes = "&Yes";
  options.captions.no = "&No";
  options.captions.cancel = "&Cancel";
  QtWindowHost translated(Region::Spanish(), clock, options);
  desktop = &translated;
  Answer(35, [](QMessageBox& box) {
    std::map<int, QString> by_place;
    for (QAbstractButton* button : box.buttons()) by_place[button->x()] = button->text();
    std::vector<QString> order;
    for (const auto& [place, caption] : by_place) order.push_back(caption);
    EXPECT_EQ(order, (std::vector<QString>{"&Yes", "&No", "&Cancel"}));
    box.reject();
  });
}

TEST_F(MessageBoxes, TheFormTakesNoInputWhileABoxIsUpAndTheKeyboardAfterIt) {
  ShowForm();
  Answer(35, [this](QMessageBox& box) {
    EXPECT_FALSE(host.TakesInput(*form));
    form->KeyPress('A', 0);
    form->Character('a');
    box.reject();
  });
  EXPECT_EQ(form->box.Text(), "");
  EXPECT_TRUE(host.TakesInput(*form));
  EXPECT_TRUE(QTest::qWaitForWindowActive(Window()));
}

TEST_F(MessageBoxes, AnErrorIsToldWithNumberAndDescription) {
  QtWindowHost plain(Region::Spanish(), clock);
  InNextDialog([] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), "Error -2147217887: Too %1 long");
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    box->accept();
  });
  plain.ReportError(RuntimeError(-2147217887, "Too %1 long"));
}

TEST_F(MessageBoxes, AnErrorThatComesWhileOneIsToldWaitsForItsTurn) {
  QtWindowHost plain(Region::Spanish(), clock);
  std::vector<QString> told;
  const std::function<void()> read = [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    told.push_back(box->text());
    if (told.size() == 1) {
      plain.ReportError(RuntimeError(6, "Overflow"));
      InNextDialog(read);
    }
    box->accept();
  };
  InNextDialog(read);
  plain.ReportError(RuntimeError(5, "Invalid"));
  EXPECT_EQ(told, (std::vector<QString>{"Error 5: Invalid", "Error 6: Overflow"}));
}

TEST_F(MessageBoxes, AnErrorThatCannotBeToldSilencesNoneAfterIt) {
  bool has_words = false;
  QtHostOptions options;
  options.describe_error = [&](const RuntimeError& error) {
    if (!std::exchange(has_words, true)) throw std::runtime_error("no words");
    return error.Description();
  };
  QtWindowHost speechless(Region::Spanish(), clock, options);
  const CriticalMessages messages;
  EXPECT_NO_THROW(speechless.Guard([] { throw RuntimeError(5, "Invalid"); }));
  EXPECT_EQ(messages.All(), (std::vector<std::string>{"A report of an error ended with: no words"}));
  QString told;
  InNextDialog([&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      told = box->text();
      box->accept();
    }
  });
  speechless.ReportError(RuntimeError(6, "Overflow"));
  QApplication::processEvents();
  EXPECT_EQ(told, "Error 6: Overflow");
}

}  // namespace
}  // namespace orvendal
