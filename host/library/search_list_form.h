#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/library/dialog_design.h"
#include "host/library/dialog_keys.h"
#include "host/library/row_choice.h"
#include "host/library/search_list.h"
#include "host/words.h"

namespace orvendal {

/// How a search is put before the user.
struct SearchQuestion {
  std::string title;
  std::vector<dialog_design::GridColumn> columns;  // the first cells of an entry, which are shown
  /// Ways to search; with one only nothing is offered.
  struct Way {
    std::string_view caption;
    std::vector<std::size_t> fields;
  };
  std::vector<Way> ways;  // one or two
  std::size_t way = 0;
  std::string text;  // what the search starts from
  /// The cells that name one entry: what a bar-code reader types has to equal one of these to be a choice.
  std::vector<std::size_t> names;
};

/// A modal dialog with a box, and a list that narrows by what is typed in it. Letters reach the box, and the
/// keys of a list the list, wherever the focus is but on a button; Enter and a double click accept, Esc
/// cancels.
///
/// A text that the present way does not find and the other does is found there: at once if the search starts
/// with it, at Enter if it was typed. What a bar-code reader types takes the place of the text; it is
/// accepted if it names exactly one entry.
///
/// Invariant: the rows of the list are the first of the entries that the text finds, in order.
class SearchListForm final : public Form {
 public:
  SearchListForm(WindowHost& host, const Words& words, SearchQuestion question, SearchList list);

  /// Index of the entry chosen; nothing if the user chose none. Returns when the dialog is closed.
  std::optional<std::size_t> Ask();

 protected:
  void ApplyDesign() override;

 private:
  void LayOut();
  void Narrow();
  void FillRow(int row, const SearchEntry& entry);
  void SayHowMany(std::size_t found);
  void KeyForList(int& key_code, int shift);
  void KeyForForm(int& key_ascii);
  void KeyForBox(int& key_ascii);
  void LookFor(const std::string& scanned);
  void Accept();
  void Choose(std::size_t entry);
  bool IsOnButton() const;
  std::size_t Way() const { return question_.ways.size() > 1 && OptCampo1.Value() ? 1 : 0; }
  /// How many entries the way finds that is not chosen; 0 without another.
  std::size_t FoundTheOtherWay() const;
  void GoTheOtherWay();

  const Words& words_;
  SearchQuestion question_;
  SearchList list_;
  std::vector<std::size_t> shown_;
  std::optional<std::size_t> chosen_;

  TextBox TxtBusqueda{*this, nullptr, "TxtBusqueda"};
  OptionButton OptCampo0{*this, nullptr, "OptCampo", 0};
  OptionButton OptCampo1{*this, nullptr, "OptCampo", 1};
  MSFlexGrid MSFResultados{*this, nullptr, "MSFResultados"};
  CommandButton CmdAceptar{*this, nullptr, "CmdAceptar"};
  CommandButton CmdCancelar{*this, nullptr, "CmdCancelar"};
  Label LblBusqueda{*this, nullptr, "LblBusqueda"};
  Label LblEncontrados{*this, nullptr, "LblEncontrados"};
  RowChoice choice_{MSFResultados};
  DialogKeys keys_{*this};
};

}  // namespace orvendal
