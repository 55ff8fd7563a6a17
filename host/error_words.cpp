#include "host/error_words.h"

#include <array>
#include <optional>

namespace orvendal {
namespace {

struct KnownDescription {
  std::string_view text;  // %1 stands for the file of the store, %2 for what the sentence names
  std::string_view Words::*words;
};

constexpr std::array kKnown = {
    // The file, when it is opened and later.
    KnownDescription{"The store file '%1' is locked by another program.", &Words::store_locked},
    KnownDescription{"The store is locked by another program.", &Words::store_locked},
    KnownDescription{"The store file '%1' is not a store: it is no database.", &Words::store_no_database},
    KnownDescription{"The file is not a store: it is no database.", &Words::store_no_database},
    KnownDescription{"The store file '%1' is damaged.", &Words::store_damaged},
    KnownDescription{"The store file is damaged.", &Words::store_damaged},
    KnownDescription{"The store file '%1' can only be read.", &Words::store_read_only},
    KnownDescription{"The store can only be read.", &Words::store_read_only},
    KnownDescription{"The store file '%1' does not exist or cannot be opened.", &Words::store_refused},
    KnownDescription{"The store file cannot be opened.", &Words::store_refused},
    KnownDescription{"The store file '%1' is no longer in its place.", &Words::store_moved},
    KnownDescription{"The store file is no longer in its place.", &Words::store_moved},
    KnownDescription{"The store file '%1' cannot be opened: %2.", &Words::store_other},
    KnownDescription{"The disk of the store is full.", &Words::store_full},
    KnownDescription{"The store cannot be read or written: the disk reports an error.",
                     &Words::store_disk_error},
    KnownDescription{"Query timeout expired", &Words::store_too_slow},
    KnownDescription{"The store does not allow this statement.", &Words::store_not_allowed},
    // A statement, of both dialects.
    KnownDescription{"Incorrect syntax near '%2'.", &Words::text_not_understood},
    KnownDescription{"Syntax error (missing operator) in query expression '%2'.",
                     &Words::text_not_understood},
    KnownDescription{"Unclosed quotation mark after the character string '%2'.", &Words::text_not_understood},
    KnownDescription{"Syntax error in string in query expression '%2'.", &Words::text_not_understood},
    KnownDescription{"Syntax error in date in query expression '%2'.", &Words::date_not_understood},
    KnownDescription{"Conversion failed when converting date and/or time from character string.",
                     &Words::date_not_understood},
    KnownDescription{"Data type mismatch in criteria expression.", &Words::date_not_understood},
    KnownDescription{"Invalid object name '%2'.", &Words::table_missing},
    KnownDescription{"The database engine cannot find the input table or query '%2'. Make sure it exists and "
                     "that its name is spelled correctly.",
                     &Words::table_missing},
    KnownDescription{"Invalid column name '%2'.", &Words::field_missing},
    KnownDescription{"No value given for one or more required parameters.", &Words::field_missing_somewhere},
    KnownDescription{"Item cannot be found in the collection corresponding to the requested name or ordinal.",
                     &Words::field_missing_somewhere},
    // A row.
    KnownDescription{"Cannot insert duplicate key: %2.", &Words::row_twice},
    KnownDescription{"The changes you requested to the table were not successful because they would create "
                     "duplicate values in the index, primary key, or relationship.",
                     &Words::row_twice},
    KnownDescription{"Multiple-step OLE DB operation generated errors. Check each OLE DB status value, if "
                     "available. No work was done.",
                     &Words::value_refused},
    KnownDescription{"Multiple-step operation generated errors. Check each status value.",
                     &Words::value_refused},
    KnownDescription{"Application uses a value of the wrong type for the current operation.",
                     &Words::value_of_wrong_kind},
    KnownDescription{"Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                     "requires a current record.",
                     &Words::row_missing},
    KnownDescription{"Operation is not allowed when the object is closed.", &Words::rows_closed},
    KnownDescription{"Operation is not allowed when the object is open.", &Words::rows_open},
    KnownDescription{"Operation is not allowed in this context.", &Words::not_now},
    KnownDescription{"Current Recordset does not support updating. This may be a limitation of the provider, "
                     "or of the selected locktype.",
                     &Words::rows_fixed},
    KnownDescription{"Current Recordset does not support bookmarks. This may be a limitation of the provider "
                     "or of the selected cursor type.",
                     &Words::rows_without_positions},
    KnownDescription{"Arguments are of the wrong type, are out of acceptable range, or are in conflict with "
                     "one another.",
                     &Words::wrong_argument},
    KnownDescription{"The connection cannot be used to perform this operation. It is either closed or "
                     "invalid in this context.",
                     &Words::connection_closed},
    // The runtime.
    KnownDescription{"Overflow", &Words::number_too_large},
    KnownDescription{"Overflow: the field '%2' holds a number beyond all bounds.", &Words::field_too_large},
    KnownDescription{
        "Overflow: the grid has more than the %2 rows that a save takes. Nothing was deleted or saved. "
        "Note the lines that are new, press Cancel to load the day again, and enter fewer of them.",
        &Words::grid_too_long},
    KnownDescription{
        "The lines of the day could not be loaded whole. Nothing was deleted or saved. Press Cancel to "
        "load the day again.",
        &Words::lines_not_whole},
    KnownDescription{"Type mismatch", &Words::value_of_wrong_kind},
    KnownDescription{"Invalid use of Null", &Words::value_empty},
    KnownDescription{"Object variable or With block variable not set", &Words::object_missing},
    KnownDescription{"Invalid procedure call or argument", &Words::wrong_argument},
    KnownDescription{"Internal error", &Words::program_error},
};

struct Named {
  std::string_view file;
  std::string_view thing;
};

// What `description` names where `pattern` has its marks; nothing if it is another sentence. No sentence has
// two marks of one kind, and what follows a mark is looked for from the end.
std::optional<Named> Match(std::string_view description, std::string_view pattern) {
  const std::size_t mark = pattern.find('%');
  if (mark == std::string_view::npos)
    return description == pattern ? std::optional<Named>(Named{}) : std::nullopt;
  if (!description.starts_with(pattern.substr(0, mark))) return std::nullopt;
  const bool is_file = pattern[mark + 1] == '1';
  pattern.remove_prefix(mark + 2);
  description.remove_prefix(mark);
  const std::string_view between = pattern.substr(0, pattern.find('%'));
  const bool is_last = between.size() == pattern.size();
  const std::size_t end =
      is_last ? description.size() - std::min(between.size(), description.size()) : description.find(between);
  if (end == std::string_view::npos || description.substr(end, between.size()) != between)
    return std::nullopt;
  Named named;
  if (!is_last) {
    const std::optional<Named> rest = Match(description.substr(end), pattern);
    if (!rest) return std::nullopt;
    named = *rest;
  }
  (is_file ? named.file : named.thing) = description.substr(0, end);
  return named;
}

}  // namespace

std::string DescriptionInWords(const Words& words, const std::string& description, std::string_view store) {
  for (const KnownDescription& known : kKnown) {
    if (const std::optional<Named> named = Match(description, known.text)) {
      return Fill(words.*known.words, {named->file.empty() ? store : named->file, named->thing});
    }
  }
  return description;
}

std::string ErrorInWords(const Words& words, const RuntimeError& error, std::string_view store) {
  return Fill(words.error,
              {std::to_string(error.Number()), DescriptionInWords(words, error.Description(), store)});
}

std::string MessageInWords(const Words& words, const std::string& message, std::string_view store) {
  constexpr std::string_view kLineBreak = "\r\n";
  std::string told;
  for (std::size_t at = 0;;) {
    const std::size_t end = message.find(kLineBreak, at);
    told += DescriptionInWords(words, message.substr(at, end - at), store);
    if (end == std::string::npos) return told;
    told += kLineBreak;
    at = end + kLineBreak.size();
  }
}

}  // namespace orvendal
