#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/dialog_design.h"
#include "host/search_list.h"
#include "host/words.h"

namespace orvendal {

/// How a search is put before the user.
struct SearchQuestion {
  std::string title;
  std::vector<dialog_design::GridColumn> columns;  // one for each cell of an entry
  /// Ways to search; with one only nothing is offered.
  struct Way {
    std::string_view caption;
    std::vector<std::size_t> fields;
  };
  std::vector<Way> ways;  // one or two
  std::size_t way = 0;
  std::string text;  // what the search starts from
};

/// A modal dialog with a box, and a list that narrows by what is typed in it. The arrows and page keys move
/// in the list while the box keeps the focus; Enter and a double click accept, Esc cancels.
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
  void MoveInList(int& key_code);
  void KeyForForm(int& key_ascii);
  void Accept();
  const SearchQuestion::Way& CurrentWay() const;

  const Words& words_;
  SearchQuestion question_;
  SearchList list_;
  std::vector<std::size_t> shown_;
  std::optional<std::size_t> chosen_;
  bool pressed_on_row_ = false;

  TextBox TxtBusqueda{*this, nullptr, "TxtBusqueda"};
  OptionButton OptCampo0{*this, nullptr, "OptCampo", 0};
  OptionButton OptCampo1{*this, nullptr, "OptCampo", 1};
  MSFlexGrid MSFResultados{*this, nullptr, "MSFResultados"};
  CommandButton CmdAceptar{*this, nullptr, "CmdAceptar"};
  CommandButton CmdCancelar{*this, nullptr, "CmdCancelar"};
  Label LblBusqueda{*this, nullptr, "LblBusqueda"};
  Label LblEncontrados{*this, nullptr, "LblEncontrados"};
  RowHighlight highlight_{MSFResultados};
};

}  // namespace orvendal
