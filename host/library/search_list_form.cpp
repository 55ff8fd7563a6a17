#include "host/library/search_list_form.h"

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
constexpr int kDeleteWord = 127;  // Ctrl+Backspace

}  // namespace

SearchListForm::SearchListForm(WindowHost& host, const Words& words, SearchQuestion question, SearchList list)
    : Form(host, "FrmBusqueda"), words_(words), question_(std::move(question)), list_(std::move(list)) {
  keys_.OnKeyDown = [this](int& key_code, int shift) { KeyForList(key_code, shift); };
  keys_.OnKeyPress = [this](int& key_ascii) { KeyForForm(key_ascii); };
  keys_.OnScan = [this](const std::string& text) { LookFor(text); };
  TxtBusqueda.OnChange = [this] { Narrow(); };
  OptCampo0.OnClick = [this] { Narrow(); };
  OptCampo1.OnClick = [this] { Narrow(); };
  choice_.OnAccept = [this] { Accept(); };
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
  if (shown_.empty()) GoTheOtherWay();
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

void SearchListForm::Narrow() {
  shown_ = list_.Narrow(TxtBusqueda.Text(), question_.ways[Way()].fields);
  const std::size_t found = shown_.size();
  shown_.resize(std::min(found, kMostRows));

  choice_.TakeOff();
  MSFResultados.Rows(1 + static_cast<int>(shown_.size()));
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    FillRow(1 + static_cast<int>(i), list_.Entry(shown_[i]));
  }
  CmdAceptar.Enabled(!shown_.empty());
  SayHowMany(found);
  if (shown_.empty()) return;
  MSFResultados.Row(1);
  MSFResultados.TopRow(1);
  choice_.FollowCursor();
}

void SearchListForm::FillRow(int row, const SearchEntry& entry) {
  for (int column = 0; column < MSFResultados.Cols(); ++column) {
    MSFResultados.TextMatrix(row, column, Showable(entry.cells[static_cast<std::size_t>(column)]));
  }
}

void SearchListForm::SayHowMany(std::size_t found) {
  const std::size_t elsewhere = found == 0 ? FoundTheOtherWay() : 0;
  if (elsewhere > 0) {
    LblEncontrados.Caption(
        Fill(words_.found_other_way,
             {question_.ways[Way()].caption, question_.ways[1 - Way()].caption, std::to_string(elsewhere)}));
  } else if (found > shown_.size()) {
    LblEncontrados.Caption(Fill(words_.found_first, {std::to_string(shown_.size()), std::to_string(found)}));
  } else {
    LblEncontrados.Caption(Fill(words_.found, {std::to_string(found)}));
  }
}

std::size_t SearchListForm::FoundTheOtherWay() const {
  if (question_.ways.size() < 2) return 0;
  return list_.Narrow(TxtBusqueda.Text(), question_.ways[1 - Way()].fields).size();
}

// What it says of the way that it leaves stays to be read.
void SearchListForm::GoTheOtherWay() {
  if (FoundTheOtherWay() == 0) return;
  const std::string said = LblEncontrados.Caption();
  (Way() == 0 ? OptCampo1 : OptCampo0).Value(true);
  LblEncontrados.Caption(said);
}

bool SearchListForm::IsOnButton() const {
  const Control* focused = ActiveControl();
  return focused != nullptr && focused->Kind() == ControlKind::kCommandButton;
}

// In the box Home and End are the caret's.
void SearchListForm::KeyForList(int& key_code, int shift) {
  if (IsOnButton() || (shift & shift_mask::kAlt) != 0) return;
  const bool is_row_end = key_code == key::kHome || key_code == key::kEnd;
  if (is_row_end && TxtBusqueda.HasFocus() && (shift & shift_mask::kControl) == 0) return;
  if (choice_.TakeKey(key_code)) key_code = 0;
}

// Enter reaches the form from everything but the buttons, which take it for themselves.
void SearchListForm::KeyForForm(int& key_ascii) {
  if (key_ascii == character::kEscape) {
    key_ascii = 0;
    Hide();
  } else if (key_ascii == character::kEnter) {
    key_ascii = 0;
    Accept();
  } else if (!TxtBusqueda.HasFocus() && !IsOnButton()) {
    KeyForBox(key_ascii);
  }
}

// The blank chooses an option that has the focus.
void SearchListForm::KeyForBox(int& key_ascii) {
  const bool is_character = key_ascii >= key::kSpace && key_ascii != kDeleteWord;
  const bool chooses = key_ascii == key::kSpace && !MSFResultados.HasFocus();
  if ((!is_character || chooses) && key_ascii != character::kBackspace) return;
  TxtBusqueda.SetFocus();
  const auto length = static_cast<int>(Len(TxtBusqueda.Text()));
  TxtBusqueda.SelStart(is_character || length == 0 ? length : length - 1);
  TxtBusqueda.SelLength(is_character ? 0 : 1);
  TxtBusqueda.SelText(is_character ? FromCharacter(static_cast<char32_t>(key_ascii)) : std::string());
  key_ascii = 0;
}

void SearchListForm::LookFor(const std::string& scanned) {
  TxtBusqueda.SetFocus();
  TxtBusqueda.Text(scanned);
  TxtBusqueda.SelStart(static_cast<int>(Len(scanned)));
  const std::vector<std::size_t> named = list_.NamedBy(scanned, question_.names);
  if (named.size() == 1) {
    Choose(named.front());
    return;
  }
  if (shown_.empty()) GoTheOtherWay();
  Host().Beep();
}

void SearchListForm::Accept() {
  if (shown_.empty()) {
    GoTheOtherWay();
  } else {
    Choose(shown_[static_cast<std::size_t>(MSFResultados.Row() - 1)]);
  }
}

void SearchListForm::Choose(std::size_t entry) {
  chosen_ = entry;
  Hide();
}

}  // namespace orvendal
