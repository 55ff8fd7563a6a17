#include "host/search_list_form.h"

#include <algorithm>

#include "platform/base/text.h"

namespace orvendal {
namespace {

using namespace dialog_design;

constexpr double kWidth = 9900;
constexpr double kHeight = 7500;
constexpr double kPromptWidth = 1000;
constexpr double kWayWidth = 1900;
// More rows than anybody reads; a longer list is narrowed by typing.
constexpr std::size_t kMostRows = 500;
constexpr int kRowsToPage = 10;
constexpr int kDeleteWord = 127;  // Ctrl+Backspace

}  // namespace

SearchListForm::SearchListForm(WindowHost& host, const Words& words, SearchQuestion question, SearchList list)
    : Form(host, "FrmBusqueda"), words_(words), question_(std::move(question)), list_(std::move(list)) {
  OnKeyPress = [this](int& key_ascii) { KeyForForm(key_ascii); };
  TxtBusqueda.OnChange = [this] { Narrow(); };
  TxtBusqueda.OnKeyDown = [this](int& key_code, int) { MoveInList(key_code); };
  OptCampo0.OnClick = [this] { Narrow(); };
  OptCampo1.OnClick = [this] { Narrow(); };
  MSFResultados.OnRowColChange = [this] { highlight_.FollowCursor(); };
  MSFResultados.OnMouseDown = [this](int, int, double x, double y) {
    int row = 0;
    int column = 0;
    pressed_on_row_ = MSFResultados.CellAt({x, y}, row, column) && row >= MSFResultados.FixedRows();
  };
  MSFResultados.OnDblClick = [this] {
    if (pressed_on_row_) Accept();
  };
  CmdAceptar.OnClick = [this] { Accept(); };
  CmdCancelar.OnClick = [this] { Hide(); };
}

std::optional<std::size_t> SearchListForm::Ask() {
  chosen_.reset();
  Show(ShowMode::kModal);
  Unload();
  return chosen_;
}

void SearchListForm::ApplyDesign() {
  PlaceDialog(*this, question_.title, kWidth, kHeight);
  KeyPreview(true);
  LayOut();
  const std::size_t ways = question_.ways.size();
  OptCampo0.Visible(ways > 1);
  OptCampo1.Visible(ways > 1);
  if (ways > 1) (question_.way == 0 ? OptCampo0 : OptCampo1).Value(true);
  TxtBusqueda.Text(question_.text);
  TxtBusqueda.SelStart(static_cast<int>(Len(question_.text)));
  Narrow();
}

void SearchListForm::LayOut() {
  const double right = Width() - kMargin;
  const double buttons_top = Height() - kMargin - kButtonHeight;
  const double list_top = kMargin + kLine + kGap;
  const double ways_width = question_.ways.size() > 1 ? 2 * (kWayWidth + kGap) : 0;
  const double box_left = kMargin + kPromptWidth;
  const double box_width = std::max(0.0, right - box_left - ways_width);

  DesignLabel(LblBusqueda, words_.search_for, {kMargin, kMargin + 60, kPromptWidth, kLine});
  DesignBox(TxtBusqueda, {box_left, kMargin, box_width, kLine}, 0);
  DesignOption(OptCampo0, question_.ways.front().caption,
               {right - 2 * kWayWidth - kGap, kMargin, kWayWidth, kLine}, 1);
  DesignOption(OptCampo1, question_.ways.back().caption, {right - kWayWidth, kMargin, kWayWidth, kLine}, 2);
  DesignGrid(MSFResultados, question_.columns,
             {kMargin, list_top, right - kMargin, buttons_top - kGap - list_top}, 3);
  DesignButton(CmdAceptar, words_.accept,
               {right - 2 * kButtonWidth - kGap, buttons_top, kButtonWidth, kButtonHeight}, 4);
  DesignButton(CmdCancelar, words_.cancel, {right - kButtonWidth, buttons_top, kButtonWidth, kButtonHeight},
               5);
  DesignLabel(LblEncontrados, "",
              {kMargin, buttons_top + 90, right - kMargin - 2 * (kButtonWidth + kGap), kLine});
}

const SearchQuestion::Way& SearchListForm::CurrentWay() const {
  return question_.ways[question_.ways.size() > 1 && OptCampo1.Value() ? 1 : 0];
}

void SearchListForm::Narrow() {
  shown_ = list_.Narrow(TxtBusqueda.Text(), CurrentWay().fields);
  const std::size_t found = shown_.size();
  shown_.resize(std::min(found, kMostRows));

  highlight_.TakeOff();
  MSFResultados.Rows(1 + static_cast<int>(shown_.size()));
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    FillRow(1 + static_cast<int>(i), list_.Entry(shown_[i]));
  }
  CmdAceptar.Enabled(!shown_.empty());
  const bool cut = found > shown_.size();
  LblEncontrados.Caption(
      cut ? Fill(words_.found_first, {std::to_string(shown_.size()), std::to_string(found)})
          : Fill(words_.found, {std::to_string(found)}));
  if (shown_.empty()) return;
  MSFResultados.Row(1);
  MSFResultados.TopRow(1);
  highlight_.FollowCursor();
}

void SearchListForm::FillRow(int row, const SearchEntry& entry) {
  for (int column = 0; column < MSFResultados.Cols(); ++column) {
    MSFResultados.TextMatrix(row, column, entry.cells[static_cast<std::size_t>(column)]);
  }
}

void SearchListForm::MoveInList(int& key_code) {
  int step = 0;
  switch (key_code) {
    case key::kUp:
      step = -1;
      break;
    case key::kDown:
      step = 1;
      break;
    case key::kPageUp:
      step = -kRowsToPage;
      break;
    case key::kPageDown:
      step = kRowsToPage;
      break;
    default:
      return;
  }
  key_code = 0;
  if (shown_.empty()) return;
  MSFResultados.Row(std::clamp(MSFResultados.Row() + step, 1, MSFResultados.Rows() - 1));
}

// Enter reaches the form from everything but the buttons, which take it for themselves.
void SearchListForm::KeyForForm(int& key_ascii) {
  if (key_ascii == character::kEscape) {
    key_ascii = 0;
    Hide();
  } else if (key_ascii == character::kEnter) {
    key_ascii = 0;
    Accept();
  } else if (MSFResultados.HasFocus() && key_ascii >= 32 && key_ascii != kDeleteWord) {
    TxtBusqueda.SetFocus();
    TxtBusqueda.SelStart(static_cast<int>(Len(TxtBusqueda.Text())));
    TxtBusqueda.SelText(FromCharacter(static_cast<char32_t>(key_ascii)));
    key_ascii = 0;
  }
}

void SearchListForm::Accept() {
  if (shown_.empty()) return;
  chosen_ = shown_[static_cast<std::size_t>(MSFResultados.Row() - 1)];
  Hide();
}

}  // namespace orvendal
