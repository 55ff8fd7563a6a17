#include <gtest/gtest.h>

#include "platform/forms/command_button.h"
#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"
#include "tests/support/error_of.h"

namespace orvendal::testing {
namespace {

using Log = std::vector<std::string>;

using testing_support::ErrorOf;

class FormLifeTest : public ::testing::Test {
 protected:
  FormLifeTest() {
    form().OnLoad = [this] { log.push_back("load"); };
    form().OnResize = [this] { log.push_back("resize"); };
    form().OnActivate = [this] { log.push_back("activate"); };
    form().OnUnload = [this](int&) { log.push_back("unload"); };
    form().OnGotFocus = [this] { log.push_back("form focus"); };
    box.OnGotFocus = [this] { log.push_back("focus"); };
    box.OnLostFocus = [this] { log.push_back("focus lost"); };
  }
  StageForm& form() { return *stage.form; }
  Log TakeLog() { return std::exchange(log, {}); }

  Stage stage;
  TextBox& box = stage.Add<TextBox>("Box", {100, 100, 2000, 300});
  Log log;
};

TEST_F(FormLifeTest, TheFirstShowLoadsResizesActivatesAndGivesTheFocusBeforeItReturns) {
  form().Show();
  EXPECT_EQ(TakeLog(), (Log{"load", "resize", "activate", "focus"}));
  EXPECT_TRUE(form().IsLoaded());
  EXPECT_TRUE(form().Visible());
  EXPECT_TRUE(stage.host.WindowOf(form())->IsShown());
}

TEST_F(FormLifeTest, ALoadShowsNothing) {
  form().Load();
  EXPECT_EQ(TakeLog(), Log{"load"});
  EXPECT_FALSE(form().Visible());
  ASSERT_NE(stage.host.WindowOf(form()), nullptr);
  EXPECT_FALSE(stage.host.WindowOf(form())->IsShown());
  form().Load();
  EXPECT_EQ(TakeLog(), Log{});
  form().Show();
  EXPECT_EQ(TakeLog(), (Log{"resize", "activate", "focus"}));
}

TEST_F(FormLifeTest, AShowInsideTheLoadIsLeftToTheShowThatLoads) {
  form().OnLoad = [this] {
    log.push_back("load");
    form().Show();
    EXPECT_FALSE(form().Visible());
    log.push_back("loaded");
  };
  form().Show();
  EXPECT_EQ(TakeLog(), (Log{"load", "loaded", "resize", "activate", "focus"}));
  EXPECT_TRUE(stage.host.WindowOf(form())->IsShown());
}

TEST_F(FormLifeTest, AFormWithoutFocusableControlsTakesTheFocusItself) {
  box.OnGotFocus = nullptr;
  form().OnLoad = [this] { box.Enabled(false); };
  form().Show();
  EXPECT_EQ(TakeLog(), (Log{"resize", "activate", "form focus"}));
}

TEST_F(FormLifeTest, ALaterShowOnlyRaisesTheWindow) {
  form().Show();
  TakeLog();
  form().Show();
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(stage.host.WindowOf(form())->TimesRaised(), 1);
}

TEST_F(FormLifeTest, ALaterShowActivatesIfAnotherFormWasActive) {
  form().Show();
  const auto other = std::make_shared<Form>(stage.host, "FrmOther");
  other->Show();
  EXPECT_EQ(stage.host.ActiveForm(), other.get());
  TakeLog();
  form().Show();
  EXPECT_EQ(TakeLog(), Log{"activate"});
  EXPECT_EQ(stage.host.ActiveForm(), &form());
}

TEST_F(FormLifeTest, AMinimisedFormIsNotRestoredByShow) {
  form().Show();
  form().WindowState(WindowState::kMinimized);
  TakeLog();
  form().Show();
  EXPECT_EQ(form().WindowState(), WindowState::kMinimized);
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormLifeTest, AFailingLoadComesOutAndLeavesTheFormUnloaded) {
  form().OnLoad = [] { throw RuntimeError(3265, "no such key"); };
  EXPECT_EQ(ErrorOf([&] { form().Show(); }), 3265);
  EXPECT_FALSE(form().IsLoaded());
  EXPECT_FALSE(form().Visible());
  EXPECT_EQ(stage.host.WindowOf(form()), nullptr);
  EXPECT_TRUE(stage.host.ReportedErrors().empty());
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormLifeTest, AfterAFailingLoadTheNextShowLoadsAfresh) {
  form().OnLoad = [this] {
    box.Text("half");
    throw RuntimeError(3265, "no such key");
  };
  EXPECT_EQ(ErrorOf([&] { form().Show(); }), 3265);
  std::string seen = "none";
  form().OnLoad = [&] { seen = box.Text(); };
  form().Show();
  EXPECT_EQ(seen, "");
  EXPECT_TRUE(form().IsLoaded());
}

TEST_F(FormLifeTest, TheDesignIsAppliedAnewAtEachLoad) {
  form().Show();
  form().Caption("changed");
  form().Width(99);
  form().WindowState(WindowState::kMaximized);
  box.Text("typed");
  box.Visible(false);
  box.Font().Size(20);
  box.Move(1, 2, 3, 4);
  form().Unload();
  form().Show();
  EXPECT_EQ(form().Caption(), "");
  EXPECT_EQ(form().Width(), 15000);
  EXPECT_EQ(form().WindowState(), WindowState::kNormal);
  EXPECT_EQ(box.Text(), "");
  EXPECT_TRUE(box.Visible());
  EXPECT_EQ(box.Font().Size(), 8.25);
  EXPECT_EQ(box.Left(), 100);
}

TEST_F(FormLifeTest, UnloadAsksThenTheWindowGoes) {
  form().Show();
  TakeLog();
  bool window_there = false;
  form().OnUnload = [&](int&) { window_there = stage.host.WindowOf(form()) != nullptr; };
  form().Unload();
  EXPECT_TRUE(window_there);
  EXPECT_EQ(stage.host.WindowOf(form()), nullptr);
  EXPECT_FALSE(form().IsLoaded());
  EXPECT_FALSE(form().Visible());
  EXPECT_EQ(form().ActiveControl(), nullptr);
  EXPECT_EQ(stage.host.ActiveForm(), nullptr);
  EXPECT_EQ(TakeLog(), Log{});  // no focus is lost
}

TEST_F(FormLifeTest, UnloadCanBeCancelled) {
  form().Show();
  form().OnUnload = [](int& cancel) { cancel = 1; };
  form().Unload();
  EXPECT_TRUE(form().IsLoaded());
  EXPECT_TRUE(form().Visible());
  form().OnUnload = nullptr;
  form().Unload();
  EXPECT_FALSE(form().IsLoaded());
}

TEST_F(FormLifeTest, UnloadingTwiceOrInsideItselfUnloadsOnce) {
  form().Show();
  TakeLog();
  form().OnUnload = [this](int&) {
    log.push_back("unload");
    form().Unload();
  };
  form().Unload();
  form().Unload();
  EXPECT_EQ(TakeLog(), Log{"unload"});
}

TEST_F(FormLifeTest, AFailingUnloadLeavesTheFormLoaded) {
  form().Show();
  form().OnUnload = [](int&) { throw RuntimeError(1001, "busy"); };
  EXPECT_EQ(ErrorOf([&] { form().Unload(); }), 1001);
  EXPECT_TRUE(form().IsLoaded());
  EXPECT_TRUE(form().Visible());
  form().OnUnload = nullptr;
  form().Unload();
  EXPECT_FALSE(form().IsLoaded());
}

TEST_F(FormLifeTest, AFormCannotBeUnloadedWhileItLoads) {
  form().OnLoad = [this] { form().Unload(); };
  EXPECT_EQ(ErrorOf([&] { form().Show(); }), 364);
  EXPECT_FALSE(form().IsLoaded());
}

TEST_F(FormLifeTest, UnloadingAnUnloadedFormAsksNobody) {
  form().Unload();
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormLifeTest, TheGlobalUnloadTakesAnEmptyReference) {
  form().Show();
  Unload(std::shared_ptr<Form>());
  EXPECT_TRUE(form().IsLoaded());
  Unload(stage.form);
  EXPECT_FALSE(form().IsLoaded());
}

TEST_F(FormLifeTest, HidingKeepsTheFormLoadedAndShowingActivatesAgain) {
  form().Show();
  box.Text("kept");
  const auto other = std::make_shared<Form>(stage.host, "FrmOther");
  form().Hide();
  EXPECT_TRUE(form().IsLoaded());
  EXPECT_FALSE(form().Visible());
  EXPECT_FALSE(stage.host.WindowOf(form())->IsShown());
  other->Show();
  TakeLog();
  form().Show();
  EXPECT_EQ(TakeLog(), (Log{"resize", "activate"}));
  EXPECT_EQ(box.Text(), "kept");
  EXPECT_EQ(form().ActiveControl(), &box);
}

TEST_F(FormLifeTest, EachChangeOfTheStateRaisesResizeOnce) {
  form().Show();
  TakeLog();
  form().WindowState(WindowState::kMaximized);
  form().WindowState(WindowState::kMaximized);
  form().WindowState(WindowState::kMinimized);
  form().WindowState(WindowState::kNormal);
  EXPECT_EQ(TakeLog(), (Log{"resize", "resize", "resize"}));
}

TEST_F(FormLifeTest, AMaximisedFormHasTheSizeOfTheDisplayAndItsOwnAgainAfterwards) {
  stage.host.SetScreenTwips(20000, 13000);
  form().Show();
  form().WindowState(WindowState::kMaximized);
  EXPECT_EQ(form().Width(), 20000);
  EXPECT_EQ(form().Height(), 13000);
  form().WindowState(WindowState::kNormal);
  EXPECT_EQ(form().Width(), 15000);
  EXPECT_EQ(form().Height(), 9000);
}

TEST_F(FormLifeTest, TheSizeOfAMinimisedOrMaximisedFormCannotBeSet) {
  form().Show();
  for (const WindowState state : {WindowState::kMinimized, WindowState::kMaximized}) {
    form().WindowState(state);
    EXPECT_EQ(ErrorOf([&] { form().Width(1000); }), 384);
    EXPECT_EQ(ErrorOf([&] { form().Height(1000); }), 384);
  }
  form().WindowState(WindowState::kNormal);
  EXPECT_EQ(form().Width(), 15000);
}

TEST_F(FormLifeTest, AnotherSizeRaisesResizeTheSameDoesNot) {
  form().Show();
  TakeLog();
  form().Width(15000);
  EXPECT_EQ(TakeLog(), Log{});
  form().Width(14000);
  EXPECT_EQ(TakeLog(), Log{"resize"});
}

TEST_F(FormLifeTest, AModalFormHoldsItsCallerUntilItIsHidden) {
  const auto dialog = std::make_shared<Form>(stage.host, "FrmDialog");
  form().Show();
  TakeLog();
  dialog->OnActivate = [this] { log.push_back("dialog"); };
  stage.host.QueueDialog([this](Form& shown) {
    log.push_back("up");
    EXPECT_TRUE(stage.host.TakesInput(shown));
    EXPECT_FALSE(stage.host.TakesInput(form()));
    shown.Hide();
  });
  dialog->Show(ShowMode::kModal);
  log.push_back("back");
  EXPECT_EQ(TakeLog(), (Log{"dialog", "up", "back"}));
  EXPECT_TRUE(stage.host.TakesInput(form()));
}

TEST_F(FormLifeTest, AModalFormThatUnloadsInItsActivationDoesNotRun) {
  const auto dialog = std::make_shared<Form>(stage.host, "FrmDialog");
  dialog->OnActivate = [&] { dialog->Unload(); };
  dialog->Show(ShowMode::kModal);
  EXPECT_FALSE(dialog->IsLoaded());
  EXPECT_TRUE(stage.host.TakesInput(form()));
}

TEST_F(FormLifeTest, OfTwoModalFormsTheInnerOneTakesTheInput) {
  const auto outer = std::make_shared<Form>(stage.host, "FrmOuter");
  const auto inner = std::make_shared<Form>(stage.host, "FrmInner");
  stage.host.QueueDialog([&](Form& shown) {
    stage.host.QueueDialog([&](Form& shown_inside) {
      EXPECT_TRUE(stage.host.TakesInput(*inner));
      EXPECT_FALSE(stage.host.TakesInput(*outer));
      shown_inside.Hide();
    });
    inner->Show(ShowMode::kModal);
    EXPECT_TRUE(stage.host.TakesInput(*outer));
    shown.Unload();
  });
  outer->Show(ShowMode::kModal);
  EXPECT_FALSE(outer->IsLoaded());
}

TEST_F(FormLifeTest, AModalFormActivatesNeitherItselfAsTheActiveFormNorTheCallerAfterwards) {
  form().Show();
  TakeLog();
  const auto dialog = std::make_shared<Form>(stage.host, "FrmDialog");
  stage.host.QueueDialog([](Form& shown) { shown.Hide(); });
  dialog->Show(ShowMode::kModal);
  EXPECT_EQ(stage.host.ActiveForm(), &form());
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(form().ActiveControl(), &box);
}

TEST_F(FormLifeTest, AWindowThatIsToCloseUnloadsUnlessAHandlerDecides) {
  form().Show();
  form().CloseRequest();
  EXPECT_FALSE(form().IsLoaded());
  form().Show();
  form().OnCloseRequest = [this] { log.push_back("asked"); };
  TakeLog();
  form().CloseRequest();
  EXPECT_EQ(TakeLog(), Log{"asked"});
  EXPECT_TRUE(form().IsLoaded());
}

}  // namespace
}  // namespace orvendal::testing
