#include "host/library/search_list.h"

#include <algorithm>
#include <utility>

#include "platform/base/text.h"

namespace orvendal {
namespace {

std::vector<std::string> WordsIn(const std::string& text) {
  std::vector<std::string> words;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = text.find_first_not_of(' ', at);
    if (start == std::string::npos) break;
    at = std::min(text.find(' ', start), text.size());
    words.push_back(text.substr(start, at - start));
  }
  return words;
}

// Whether `text`, from its start on, matches a pattern whose % stands for any characters and _ for one.
bool BeginsLike(std::string_view text, std::string_view pattern) {
  std::size_t at = 0;
  std::size_t in_pattern = 0;
  std::size_t last_any = std::string_view::npos;
  std::size_t retry = 0;
  while (in_pattern < pattern.size()) {
    if (pattern[in_pattern] == '%') {
      last_any = in_pattern++;
      retry = at;
      continue;
    }
    if (at < text.size() && pattern[in_pattern] == '_') {
      NextCharacter(text, at);
      ++in_pattern;
      continue;
    }
    if (at < text.size() && pattern[in_pattern] == text[at]) {
      ++at;
      ++in_pattern;
      continue;
    }
    if (last_any == std::string_view::npos || retry >= text.size()) return false;
    NextCharacter(text, retry);
    at = retry;
    in_pattern = last_any + 1;
  }
  return true;
}

// Whether `is_it` holds for one of the lines of a cell.
template <typename Predicate>
bool AnyLine(std::string_view cell, const Predicate& is_it) {
  for (;;) {
    const std::size_t end = cell.find('\n');
    if (is_it(cell.substr(0, end))) return true;
    if (end == std::string_view::npos) return false;
    cell.remove_prefix(end + 1);
  }
}

bool HasWildcard(std::string_view word) {
  return word.find_first_of("%_") != std::string_view::npos;
}

bool Contains(std::string_view text, const std::string& word) {
  if (!HasWildcard(word)) return text.find(word) != std::string_view::npos;
  return BeginsLike(text, "%" + word);
}

}  // namespace

SearchList::SearchList(std::vector<SearchEntry> entries, std::size_t sorted_by) {
  std::vector<std::pair<std::string, std::size_t>> order;
  order.reserve(entries.size());
  for (const SearchEntry& entry : entries) {
    order.emplace_back(FoldForSearch(entry.cells[sorted_by]), order.size());
  }
  std::sort(order.begin(), order.end());
  entries_.reserve(entries.size());
  folded_.reserve(entries.size());
  for (const auto& [key, index] : order) {
    std::vector<std::string>& folded = folded_.emplace_back();
    for (const std::string& cell : entries[index].cells) folded.push_back(FoldForSearch(cell));
    entries_.push_back(std::move(entries[index]));
  }
}

std::vector<std::size_t> SearchList::Narrow(std::string_view text,
                                            const std::vector<std::size_t>& fields) const {
  const std::string wanted = FoldForSearch(Trim(text));
  const std::vector<std::string> words = WordsIn(wanted);
  struct Hit {
    int group;
    bool begins;
    std::size_t index;
  };
  std::vector<Hit> hits;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const std::vector<std::string>& cells = folded_[i];
    const auto found = [&](const std::string& word) {
      return std::any_of(fields.begin(), fields.end(),
                         [&](std::size_t field) { return Contains(cells[field], word); });
    };
    if (!std::all_of(words.begin(), words.end(), found)) continue;
    const bool begins = std::any_of(fields.begin(), fields.end(), [&](std::size_t field) {
      return AnyLine(cells[field], [&](std::string_view line) { return BeginsLike(line, wanted); });
    });
    hits.push_back({entries_[i].group, begins, i});
  }
  std::stable_sort(hits.begin(), hits.end(), [](const Hit& left, const Hit& right) {
    if (left.group != right.group) return left.group < right.group;
    return left.begins && !right.begins;
  });
  std::vector<std::size_t> indices;
  indices.reserve(hits.size());
  for (const Hit& hit : hits) indices.push_back(hit.index);
  return indices;
}

std::vector<std::size_t> SearchList::NamedBy(std::string_view text,
                                             const std::vector<std::size_t>& fields) const {
  const std::string wanted = Trim(text);
  std::vector<std::size_t> indices;
  for (std::size_t i = 0; !wanted.empty() && i < entries_.size(); ++i) {
    const std::vector<std::string>& cells = entries_[i].cells;
    const bool named = std::any_of(fields.begin(), fields.end(), [&](std::size_t field) {
      return AnyLine(cells[field],
                     [&](std::string_view line) { return EqualsIgnoringCase(Trim(line), wanted); });
    });
    if (named) indices.push_back(i);
  }
  return indices;
}

}  // namespace orvendal
