#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "adapters/headless/headless_host.h"
#include "platform/base/region.h"
#include "platform/forms/ms_flex_grid.h"
#include "tests/support/recording_canvas.h"

namespace orvendal {

/// A form with one grid in front and another one behind it in the tab order.
class GridForm final : public Form {
 public:
  explicit GridForm(WindowHost& host)
      : Form(host, "Form"), grid(*this, nullptr, "Grid"), other(*this, nullptr, "Other") {}

  MSFlexGrid grid;
  MSFlexGrid other;

 protected:
  void ApplyDesign() override {
    Width(12000);
    Height(9000);
    other.Move(9000, 0, 2000, 2000);
    other.TabIndex(0);
    grid.TabIndex(1);
    grid.Move(kLeft, kTop, kWidth, kHeight);
    grid.RowHeightMin(kRowHeight);
    grid.Cols(4);
    grid.Rows(kRows);
    grid.FixedCols(0);
    grid.ColWidth(0, 1500);
    grid.ColWidth(1, 3000);
    grid.ColWidth(2, 0);
    grid.ColWidth(3, 1500);
  }

 public:
  static constexpr double kLeft = 600;
  static constexpr double kTop = 900;
  static constexpr int kRows = 31;  // a title and 30 lines, of which 10 show
  static constexpr double kRowHeight = 300;
  static constexpr double kWidth = 6000 + 300;             // the columns, both borders and the bar
  static constexpr double kHeight = 11 * kRowHeight + 60;  // the title, ten lines and both borders
};

class GridTest : public testing::Test {
 protected:
  GridTest() {
    host.SetScreenTwips(12000, 9000);
    form = std::make_shared<GridForm>(host);
    form->Show();
    LogEvents();
    form->TakeDirtyRectangles();
  }

  MSFlexGrid& Grid() { return form->grid; }

  std::string Cursor() { return std::to_string(Grid().Row()) + "," + std::to_string(Grid().Col()); }

  void LogEvents() {
    Grid().OnLeaveCell = [this] { log.push_back("leave " + Cursor()); };
    Grid().OnEnterCell = [this] { log.push_back("enter " + Cursor()); };
    Grid().OnRowColChange = [this] { log.push_back("change " + Cursor()); };
    Grid().OnScroll = [this] { log.push_back("scroll " + std::to_string(Grid().TopRow())); };
  }

  /// The events since the last call.
  std::vector<std::string> TakeLog() {
    std::vector<std::string> taken;
    taken.swap(log);
    return taken;
  }

  /// A place in the grid as a place on the form.
  static Point OnForm(double x, double y) { return {GridForm::kLeft + x, GridForm::kTop + y}; }

  Point MiddleOf(int row, int column) {
    const Rect cell = Grid().CellRectangle(row, column);
    EXPECT_FALSE(cell.IsEmpty()) << "cell " << row << "," << column << " does not show";
    return OnForm(cell.left + cell.width / 2, cell.top + cell.height / 2);
  }

  void Press(Point position, bool second_of_double = false) {
    form->MousePress(position, mouse_button::kLeft, 0, second_of_double);
  }
  void Release(Point position) { form->MouseRelease(position, mouse_button::kLeft, 0); }
  void Drag(Point position) { form->MouseMove(position, mouse_button::kLeft, 0); }
  void Click(Point position) {
    Press(position);
    Release(position);
  }
  void Key(int code, int shift = 0) {
    form->KeyPress(code, shift);
    form->KeyRelease(code, shift);
  }

  using Log = std::vector<std::string>;

  FixedClock clock{Date(2026, 11, 16, 9, 30)};
  HeadlessHost host{Region::Spanish(), clock};
  std::shared_ptr<GridForm> form;
  std::vector<std::string> log;
};

}  // namespace orvendal
