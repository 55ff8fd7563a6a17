#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace orvendal {

/// The rows of one column of a grid by their texts, so that nobody has to walk over all of them. It knows no
/// texts, only numbers made of them; whoever asks gives the means to look at them.
///
/// Invariants: every row with a text is in the list of its number, in any order, and no other row is; no row
/// from `looked_from_` to before `first_empty_` is empty.
/// Cost: finding, writing and appending take constant time as long as few rows have the same text; an empty
/// one is looked for where there can be one, as long as everybody looks from the same row on.
class TextIndex {
 public:
  explicit TextIndex(int column) : column_(column) {}

  int Column() const { return column_; }
  void Append(std::string_view text);
  /// The row has a text of its own from now on.
  void Change(int row, std::string_view text);

  /// The first row from `from` on that has the text; -1 if none has. `text_at` gives the text of a row.
  template <typename TextAt>
  int Find(std::string_view text, int from, TextAt&& text_at) {
    if (text.empty()) return FindEmpty(from, text_at);
    int found = -1;
    if (lists_.empty()) return found;
    const std::uint32_t number = NumberOf(text);
    for (int row = lists_[ListOf(number)]; row >= 0; row = rows_[static_cast<std::size_t>(row)].next) {
      const bool is_earlier = row >= from && (found < 0 || row < found);
      if (is_earlier && rows_[static_cast<std::size_t>(row)].number == number && text_at(row) == text)
        found = row;
    }
    return found;
  }

 private:
  static constexpr std::int32_t kEnd = -1;
  static constexpr std::int32_t kInNoList = -2;
  struct Row {
    std::uint32_t number;
    std::int32_t next;  // in the same list; one of those below
  };

  template <typename TextAt>
  int FindEmpty(int from, TextAt&& text_at) {
    if (from != looked_from_) looked_from_ = first_empty_ = from;
    const int count = static_cast<int>(rows_.size());
    while (first_empty_ < count && !text_at(first_empty_).empty()) ++first_empty_;
    return first_empty_ < count ? first_empty_ : -1;
  }
  static std::uint32_t NumberOf(std::string_view text) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(text));
  }
  std::size_t ListOf(std::uint32_t number) const { return number & (lists_.size() - 1); }
  void Enter(int row);
  void Leave(int row);
  void MakeRoom();

  int column_;
  int looked_from_ = 0;
  int first_empty_ = 0;
  std::vector<Row> rows_;
  std::vector<std::int32_t> lists_;  // the first row of each; a power of two of them
};

}  // namespace orvendal
