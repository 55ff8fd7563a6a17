// What a record of the screen says.

#include "host/recording/recorder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "host/sample/made_store.h"
#include "tests/recording/recorded_run.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

using namespace testing_support;

class Record : public testing::Test {
 protected:
  Record() {
    OpenOrMakeStore({store_, Dialect::kSqlServer, Region::Spanish(), WordsOf(Language::kSpanish)},
                    Date(2026, 11, 16));
    run_ = std::make_unique<RecordedRun>(Options(), store_);
    run_->Do("orvendal 02 caja1 turno");
    run_->Do("empleado E002 \"Verónica\"");
    run_->Do("clic MSFProductos 1 0");
    seen_ = run_->Record().Text().size();
  }

  FrmOrvendalciales& Screen() { return *run_->Screen(); }
  /// Since it was last asked.
  std::string Written() {
    const std::string written = run_->Record().Text().substr(seen_);
    seen_ = run_->Record().Text().size();
    return written;
  }
  Point Cell(int row, int column) { return Robot(Screen()).CellPosition(Screen().MSFProductos, row, column); }
  void Key(char32_t character, std::uint64_t after) {
    WindowHost& host = Screen().Host();
    host.InputTime(host.InputTime() + after);
    Screen().KeyPress('1', 0);
    Screen().Character(character);
    Screen().KeyRelease('1', 0);
  }

  TemporaryFolder folder_;
  std::string store_ = folder_ / "store.db";
  std::unique_ptr<RecordedRun> run_;
  std::size_t seen_ = 0;
};

TEST_F(Record, BeginsWithTheCallAndNamesWhatWasPressedAndAnswered) {
  EXPECT_EQ(run_->Record().Text(),
            "reloj 2026-11-16 10:30:00\norvendal 02 caja1 turno\n"
            "empleado E002 \"Verónica\"\nclic MSFProductos 1 0\n");
}

TEST_F(Record, APressIsWrittenAtOnceAndBecomesAClickWithItsRelease) {
  const Point place = Cell(1, 0);
  Screen().MousePress(place, mouse_button::kLeft, 0, false);
  EXPECT_TRUE(Written().starts_with("raton pulsa MSFProductos "));
  seen_ -= run_->Record().Text().size() - run_->Record().Text().rfind("raton");
  Screen().MouseRelease(place, mouse_button::kLeft, 0);
  EXPECT_EQ(Written(), "clic MSFProductos 1 0\n");
}

TEST_F(Record, TwoClicksBecomeADoubleOne) {
  run_->Do("dobleclic MSFProductos 1 0");
  EXPECT_EQ(Written(), "dobleclic MSFProductos 1 0\n");
}

TEST_F(Record, ADragIsWrittenByItsPlaces) {
  const Point from = Cell(1, 0);
  const Point to = Cell(3, 1);
  const Rect grid = Screen().MSFProductos.Bounds();
  Screen().MousePress(from, mouse_button::kLeft, 0, false);
  Screen().MouseMove(to, mouse_button::kLeft, 0);
  Screen().MouseRelease(to, mouse_button::kLeft, 0);
  const auto place = [&](Point point) {
    return " MSFProductos " + std::to_string(static_cast<int>(point.x - grid.left));
  };
  const std::string written = Written();
  EXPECT_TRUE(written.starts_with("raton pulsa" + place(from))) << written;
  EXPECT_NE(written.find("\nraton mueve" + place(to)), std::string::npos) << written;
  EXPECT_NE(written.find("\nraton suelta" + place(to)), std::string::npos) << written;
}

TEST_F(Record, AHandWritesAReaderTypesAndOneKeyThatFollowsFastIsTheReadersFirst) {
  run_->Do("dobleclic MSFProductos 1 0");
  Written();
  for (const std::uint64_t after : {500, 80, 20, 20, 90}) Key(U'4', after);
  EXPECT_EQ(Written(), "escribe \"44\"\nteclas \"44\" 20\nescribe \"4\"\n");
  run_->Do("tecla Esc");
  run_->Do("dobleclic MSFProductos 1 0");
  Written();
  for (const std::uint64_t after : {500, 20, 20}) Key(U'4', after);
  EXPECT_EQ(Written(), "teclas \"444\"\n");
}

// Seen: each key took longer than the one before it.
TEST_F(Record, AKeyThatIsHeldDownIsWrittenInLinesOfAHundred) {
  run_->Do("dobleclic MSFProductos 1 0");
  Written();
  for (int key = 0; key < 250; ++key) Key(U'4', key == 0 ? 500 : 30);
  const auto line = [](std::size_t keys) { return "teclas \"" + std::string(keys, '4') + "\""; };
  EXPECT_EQ(Written(), line(100) + "\n" + line(100) + " 30\n" + line(50) + " 30\n");
}

TEST_F(Record, AClickOnALetterIsWrittenByTheLetter) {
  run_->Do("dobleclic MSFProductos 1 0");
  run_->Do("escribe \"LAC001\"");
  Written();
  const Rect box = Screen().TxtMSF.Bounds();
  const Point third = Screen().TxtMSF.PlaceOf(3);
  Robot(Screen()).ClickAt({box.left + third.x + 1, box.top + 30});
  EXPECT_EQ(Written(), "clic TxtMSF 3\n");
}

TEST_F(Record, WhatTheClockSaidStandsBeforeWhatAskedIt) {
  run_->Do("dobleclic MSFProductos 1 0");
  run_->Do("teclas \"LAC001\\n\"");
  run_->Do("escribe \"5\\n\"");
  Written();
  run_->Do("reloj 2026-11-16 11:00:00");
  run_->Do("reloj 2026-11-16 11:00:01 tras 1");
  run_->Do("clic LblGuardar");
  EXPECT_EQ(Written(), "reloj 2026-11-16 11:00:00\nreloj 2026-11-16 11:00:01 tras 1\nclic LblGuardar\n");
}

TEST_F(Record, WhatWasPastedStandsBeforeThePaste) {
  run_->Do("dobleclic MSFProductos 1 0");
  Written();
  run_->Do("portapapeles \"LAC\\\"001\"");
  run_->Do("tecla Ctrl+V");
  EXPECT_EQ(Written(), "portapapeles \"LAC\\\"001\"\ntecla Ctrl+V\n");
  EXPECT_EQ(Screen().TxtMSF.Text(), "LAC\"001");
}

}  // namespace
}  // namespace orvendal
