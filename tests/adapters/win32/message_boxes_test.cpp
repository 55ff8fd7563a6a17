#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

constexpr int kYesNoCancel = MB_YESNOCANCEL | MB_ICONQUESTION;

class BeepingHost final : public Win32WindowHost {
 public:
  using Win32WindowHost::Win32WindowHost;
  void Beep() override { ++beeps; }
  int beeps = 0;
};

/// Message boxes, and hands that use the one that is up: each step once all is settled that came before it.
class MessageBoxesOnWindows : public Win32FormTest {
 protected:
  ~MessageBoxesOnWindows() override {
    if (timer != 0) KillTimer(nullptr, timer);
  }

  int Answer(std::vector<std::function<void()>> hands) {
    steps = std::move(hands);
    next = 0;
    self = this;
    timer = SetTimer(nullptr, 0, 120, Step);  // longer than a reader waits
    return desktop.ShowMessage("Sin guardar", kYesNoCancel, "Recuento con lector");
  }
  static void CALLBACK Step(HWND, UINT, UINT_PTR, DWORD) {
    self->box = FindWindowW(L"#32770", L"Recuento con lector");
    if (self->box == nullptr || self->next >= self->steps.size()) return;
    self->steps[self->next++]();
  }

  static void Key(WPARAM key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  }
  static std::function<void()> Keys(const std::string& keys) {
    return [keys] {
      for (const char key : keys) Key(static_cast<WPARAM>(key));
    };
  }
  std::function<void()> IsUp() {
    return [this] { EXPECT_TRUE(IsWindowVisible(box)); };
  }

  static inline MessageBoxesOnWindows* self = nullptr;
  BeepingHost desktop{Options()};
  std::vector<std::function<void()>> steps;
  std::size_t next = 0;
  UINT_PTR timer = 0;
  HWND box = nullptr;
};

TEST_F(MessageBoxesOnWindows, AScannedCodeAnswersNothingAndBeeps) {
  EXPECT_EQ(Answer({Keys("N0123S4C\r"), IsUp(), Keys("\x1b")}), IDCANCEL);
  EXPECT_EQ(next, 3U);
  EXPECT_EQ(desktop.beeps, 1);
}

TEST_F(MessageBoxesOnWindows, ALetterAloneIsNoAnswer) {
  EXPECT_EQ(Answer({Keys("N"), IsUp(), Keys("Y"), IsUp(), Keys("\x1b")}), IDCANCEL);
  EXPECT_EQ(next, 5U);
  EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(MessageBoxesOnWindows, AHandsEnterAnswersAlsoAfterAScan) {
  EXPECT_EQ(Answer({Keys("8412345678905\r"), Keys("\r")}), IDYES);
  EXPECT_EQ(Answer({Keys("\r")}), IDYES);
}

TEST_F(MessageBoxesOnWindows, ABlankInACodePressesNoButtonAndALoneOneDoes) {
  EXPECT_EQ(Answer({Keys(" 12 34"), IsUp(), Keys("\x1b")}), IDCANCEL);
  EXPECT_EQ(Answer({Keys(" ")}), IDYES);
}

}  // namespace
}  // namespace orvendal
