#include <csignal>

#include "adapters/qt/qt_close_requests.h"
#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

using Log = std::vector<std::string>;
using Wait = QtWindowHost::IfDialogIsUp;
using FormState = enum WindowState;

class CloseRequests : public QtFormTest {
 protected:
  /// A question as the screen asks it; `yes` closes the form.
  void Ask(bool yes, const std::function<void()>& meanwhile = {}) {
    form->OnCloseRequest = [this, yes, meanwhile] {
      form->Note("asked");
      {
        const ModalScope question(host);
        if (meanwhile) meanwhile();
      }
      if (yes) form->Unload();
    };
  }
  /// Runs until the form was asked, or for a while.
  void Signal(int number) {
    std::raise(number);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form->log.empty() || !form->IsLoaded(); }, 2000));
  }
};

struct FakeManager {
  bool allows = true;
  Log log;
  bool allowsInteraction() const { return allows; }
  void release() { log.push_back("release"); }
  void cancel() { log.push_back("cancel"); }
};

TEST_F(CloseRequests, ASignalToEndAsksAsTheCloseButtonDoes) {
  ShowForm();
  const QtCloseRequests requests(host);
  for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
    form->log.clear();
    Ask(false);
    Signal(number);
    EXPECT_EQ(form->log, Log{"asked"}) << number;
    EXPECT_TRUE(form->IsLoaded());
  }
  Ask(true);
  form->log.clear();
  Signal(SIGTERM);
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(CloseRequests, WhileTheQuestionIsUpAnotherSignalAsksNothing) {
  ShowForm();
  const QtCloseRequests requests(host);
  Ask(false, [] {
    std::raise(SIGTERM);
    QTest::qWait(20);
  });
  Signal(SIGTERM);
  QTest::qWait(20);
  EXPECT_EQ(form->log, Log{"asked"});
  EXPECT_TRUE(form->IsLoaded());
}

TEST_F(CloseRequests, ADialogThatIsUpIsWaitedFor) {
  ShowForm();
  const QtCloseRequests requests(host);
  Ask(false);
  const auto dialog = std::make_shared<ProbeForm>(host);
  dialog->border_style = 3;
  InNextDialog([&] {
    std::raise(SIGTERM);
    QTest::qWait(20);
    EXPECT_TRUE(form->log.empty());
    EXPECT_TRUE(dialog->IsLoaded());
    dialog->Unload();
  });
  dialog->Show(ShowMode::kModal);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !form->log.empty(); }, 2000));
  EXPECT_EQ(form->log, Log{"asked"});
  QTest::qWait(20);
  EXPECT_EQ(form->log, Log{"asked"});
}

TEST_F(CloseRequests, AMinimisedWindowComesBackToAsk) {
  ShowForm();
  form->WindowState(FormState::kMinimized);
  QApplication::processEvents();
  bool seen = false;
  Ask(false, [&] { seen = !Window()->isMinimized() && form->WindowState() == FormState::kNormal; });
  EXPECT_FALSE(host.AskToClose(Wait::kWait));
  EXPECT_TRUE(seen);
}

TEST_F(CloseRequests, TheEndOfTheSessionIsStoppedIfTheWindowStays) {
  ShowForm();
  QtCloseRequests requests(host);
  FakeManager stays;
  Ask(false);
  requests.EndSession(stays);
  EXPECT_EQ(stays.log, Log{"cancel"});
  FakeManager goes;
  Ask(true);
  requests.EndSession(goes);
  EXPECT_EQ(goes.log, Log{"release"});
  EXPECT_FALSE(form->IsLoaded());
  FakeManager nothing_open;
  requests.EndSession(nothing_open);
  EXPECT_TRUE(nothing_open.log.empty());
}

TEST_F(CloseRequests, TheEndOfTheSessionIsStoppedByADialogAndAsksNothingAfterwards) {
  ShowForm();
  QtCloseRequests requests(host);
  Ask(true);
  FakeManager manager;
  const auto dialog = std::make_shared<ProbeForm>(host);
  dialog->border_style = 3;
  InNextDialog([&] {
    requests.EndSession(manager);
    dialog->Unload();
  });
  dialog->Show(ShowMode::kModal);
  QTest::qWait(20);
  EXPECT_EQ(manager.log, Log{"cancel"});
  EXPECT_TRUE(form->log.empty());
  EXPECT_TRUE(form->IsLoaded());
}

TEST_F(CloseRequests, ASessionManagerThatLetsNobodyAskIsNotAsked) {
  ShowForm();
  QtCloseRequests requests(host);
  Ask(false);
  FakeManager hurried;
  hurried.allows = false;
  requests.EndSession(hurried);
  EXPECT_TRUE(hurried.log.empty());
  EXPECT_TRUE(form->log.empty());
}

TEST_F(CloseRequests, AfterwardsSignalsAreAsTheyWere) {
  struct sigaction before {};
  sigaction(SIGTERM, nullptr, &before);
  {
    const QtCloseRequests requests(host);
    struct sigaction during {};
    sigaction(SIGTERM, nullptr, &during);
    EXPECT_NE(during.sa_handler, before.sa_handler);
  }
  struct sigaction after {};
  sigaction(SIGTERM, nullptr, &after);
  EXPECT_EQ(after.sa_handler, before.sa_handler);
}

TEST_F(CloseRequests, ASignalThatIsIgnoredStaysSo) {
  std::signal(SIGHUP, SIG_IGN);
  {
    const QtCloseRequests requests(host);
    struct sigaction during {};
    sigaction(SIGHUP, nullptr, &during);
    EXPECT_EQ(during.sa_handler, SIG_IGN);
  }
  std::signal(SIGHUP, SIG_DFL);
}

}  // namespace
}  // namespace orvendal
