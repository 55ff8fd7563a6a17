#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvendal {

/// One row that can be searched. A cell can hold several texts, a line each. Entries of a lower group come
/// first, whatever is searched for.
struct SearchEntry {
  std::vector<std::string> cells;
  int group = 0;
};

/// A list that narrows by what is typed. Case and accents do not count; all words typed have to be found, in
/// any of the fields searched; % stands for any characters and _ for one, as in the statements of the screen.
/// Searching is linear in the entries. Every entry has as many cells as the first.
class SearchList {
 public:
  /// The list is in the order of the cells `sorted_by`, as they are compared in a search.
  SearchList(std::vector<SearchEntry> entries, std::size_t sorted_by);

  std::size_t Size() const { return entries_.size(); }
  const SearchEntry& Entry(std::size_t index) const { return entries_[index]; }

  /// Indices of the entries that `text` is found in, searching the cells `fields`: by group, then those with
  /// a field that begins with the text, then in the order of the list. An empty text finds all.
  std::vector<std::size_t> Narrow(std::string_view text, const std::vector<std::size_t>& fields) const;

  /// Indices of the entries that have that text, but for case and blanks around, in one of the cells
  /// `fields`.
  std::vector<std::size_t> NamedBy(std::string_view text, const std::vector<std::size_t>& fields) const;

 private:
  std::vector<SearchEntry> entries_;
  std::vector<std::vector<std::string>> folded_;  // the cells as they are compared
};

}  // namespace orvendal
