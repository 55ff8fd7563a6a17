#include "platform/forms/text_index.h"

namespace orvendal {
namespace {

constexpr std::size_t kFewestLists = 64;

}  // namespace

void TextIndex::Append(std::string_view text) {
  rows_.push_back({NumberOf(text), kInNoList});
  if (rows_.size() > lists_.size()) MakeRoom();
  if (!text.empty()) Enter(static_cast<int>(rows_.size()) - 1);
}

void TextIndex::Change(int row, std::string_view text) {
  Leave(row);
  rows_[static_cast<std::size_t>(row)].number = NumberOf(text);
  if (!text.empty()) {
    Enter(row);
  } else if (row >= looked_from_ && row < first_empty_) {
    first_empty_ = row;
  }
}

void TextIndex::Enter(int row) {
  Row& entered = rows_[static_cast<std::size_t>(row)];
  std::int32_t& first = lists_[ListOf(entered.number)];
  entered.next = first;
  first = row;
}

void TextIndex::Leave(int row) {
  Row& left = rows_[static_cast<std::size_t>(row)];
  if (left.next == kInNoList) return;
  std::int32_t* link = &lists_[ListOf(left.number)];
  while (*link != row) link = &rows_[static_cast<std::size_t>(*link)].next;
  *link = left.next;
  left.next = kInNoList;
}

void TextIndex::MakeRoom() {
  lists_.assign(lists_.empty() ? kFewestLists : 2 * lists_.size(), kEnd);
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (rows_[row].next != kInNoList) Enter(static_cast<int>(row));
  }
}

}  // namespace orvendal
