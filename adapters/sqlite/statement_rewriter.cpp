#include "adapters/sqlite/statement_rewriter.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <utility>

#include "adapters/sqlite/condition_writer.h"
#include "adapters/sqlite/sql_tokens.h"
#include "adapters/sqlite/store_error.h"
#include "adapters/sqlite/store_functions.h"
#include "platform/base/text.h"

namespace orvendal::sqlite {
namespace {

struct TableInUse {
  std::string name;
  std::string alias;  // the name itself if it has none
};

struct Column {
  std::string sql;
  ColumnType type;
  std::size_t table = 0;  // index among the tables in use
  std::size_t end = 0;    // index of the token after it
};

bool IsClauseWord(const Token& token) {
  static constexpr std::array kWords = {"INNER",  "LEFT", "RIGHT",   "FULL",    "CROSS", "OUTER",
                                        "JOIN",   "ON",   "WHERE",   "GROUP",   "ORDER", "HAVING",
                                        "UNION",  "SET",  "VALUES",  "FROM",    "USING", "LIMIT",
                                        "SELECT", "BY",   "NATURAL", "DEFAULT", "INTO",  "EXCEPT"};
  return std::any_of(kWords.begin(), kWords.end(), [&token](const char* word) { return token.IsWord(word); });
}

class Rewriter {
 public:
  Rewriter(std::string_view source, Dialect dialect, const Region& region, const ColumnLookup& find_column)
      : dialect_(dialect),
        find_column_(find_column),
        tokens_(Tokenize(source, dialect)),
        conditions_(dialect, region) {}

  RewrittenStatement Run() {
    DropLastSemicolon();
    FindTables();
    while (at_ < tokens_.size()) {
      if (RewriteCondition() || RewriteSortTerm() || RewriteConvert()) continue;
      CopyToken();
    }
    RewrittenStatement result;
    result.sql = std::move(sql_);
    result.depends_on_values_alone = conditions_.KnowsSources() && !has_text_in_sql_;
    result.sources = conditions_.TakeSources();
    result.parameters = conditions_.TakeParameters();
    for (const TableInUse& table : tables_) result.tables.push_back(table.name);
    return result;
  }

 private:
  enum class Clause { kOther, kCondition, kSort };

  const Token* Peek(std::size_t index) const { return index < tokens_.size() ? &tokens_[index] : nullptr; }
  bool SymbolAt(std::size_t index, std::string_view symbol) const {
    return index < tokens_.size() && tokens_[index].IsSymbol(symbol);
  }
  bool WordAt(std::size_t index, std::string_view word) const {
    return index < tokens_.size() && tokens_[index].IsWord(word);
  }

  // The text at `index`, which ends a condition from `begin` to `end_`.
  ConditionWriter::Text TextAt(std::size_t begin, std::size_t index) const {
    const auto before = std::count_if(tokens_.begin(), tokens_.begin() + static_cast<std::ptrdiff_t>(index),
                                      [](const Token& token) { return token.kind == TokenKind::kText; });
    const bool alone = tokens_[begin - 1].IsWord("WHERE") && end_ == tokens_.size();
    return {tokens_[index].text, static_cast<std::size_t>(before), alone};
  }

  // One statement at a time: what stands after a semicolon is refused.
  void DropLastSemicolon() {
    if (!tokens_.empty() && tokens_.back().IsSymbol(";")) tokens_.pop_back();
    for (const Token& token : tokens_) {
      if (token.IsSymbol(";")) throw SyntaxError(dialect_, ";");
    }
    if (tokens_.empty()) throw SyntaxError(dialect_, "");
  }

  void FindTables() {
    bool expected = false;
    bool in_list = false;
    for (std::size_t i = 0; i < tokens_.size(); ++i) {
      const Token& token = tokens_[i];
      if (token.IsWord("FROM") || token.IsWord("JOIN")) {
        expected = in_list = true;
      } else if (token.IsWord("INTO") || token.IsWord("UPDATE")) {
        expected = true;
        in_list = false;
      } else if (token.IsSymbol(",")) {
        expected = in_list;
      } else if (expected && token.IsSymbol("(")) {
        continue;
      } else if (expected && token.IsName() && !IsClauseWord(token)) {
        AddTable(i);
        expected = false;
      } else if (IsClauseWord(token)) {
        expected = in_list = false;
      }
    }
  }

  void AddTable(std::size_t index) {
    TableInUse table{tokens_[index].text, tokens_[index].text};
    std::size_t next = index + 1;
    if (WordAt(next, "AS")) ++next;
    const Token* alias = Peek(next);
    if (alias != nullptr && alias->IsName() && !IsClauseWord(*alias)) table.alias = alias->text;
    tables_.push_back(std::move(table));
  }

  // The column named at `index`, if it is one of a table in use.
  std::optional<Column> ColumnAt(std::size_t index) const {
    const Token* first = Peek(index);
    if (first == nullptr || !first->IsName()) return std::nullopt;
    const bool qualified = SymbolAt(index + 1, ".");
    const Token* name = qualified ? Peek(index + 2) : first;
    if (name == nullptr || !name->IsName()) return std::nullopt;
    const std::size_t end = index + (qualified ? 3 : 1);
    if (SymbolAt(end, "(") || SymbolAt(end, ".")) return std::nullopt;
    for (std::size_t i = 0; i < tables_.size(); ++i) {
      if (qualified && !EqualsIgnoringCase(first->text, tables_[i].alias)) continue;
      if (const std::optional<ColumnType> type = find_column_(tables_[i].name, name->text)) {
        const std::string prefix = qualified ? QuotedName(first->text) + "." : "";
        return Column{prefix + QuotedName(name->text), *type, i, end};
      }
    }
    return std::nullopt;
  }

  // What may stand before a comparison and after it, where it is a condition by itself.
  bool StandsAlone(std::size_t begin, std::size_t end) const {
    static constexpr std::array kBefore = {"WHERE", "ON", "AND", "OR", "NOT", "HAVING"};
    static constexpr std::array kAfter = {"AND", "OR"};
    const Token& before = tokens_[begin - 1];
    const bool begins =
        before.IsSymbol("(") ||
        std::any_of(kBefore.begin(), kBefore.end(), [&](const char* word) { return before.IsWord(word); });
    const Token* after = Peek(end);
    const bool ends =
        after == nullptr || after->IsSymbol(")") || IsClauseWord(*after) ||
        std::any_of(kAfter.begin(), kAfter.end(), [&](const char* word) { return after->IsWord(word); });
    return begins && ends;
  }

  bool RewriteCondition() {
    if (clause_ != Clause::kCondition || at_ == 0) return false;
    std::optional<Cases> condition = ConditionAt(at_);
    if (!condition) return false;
    const bool negated_as_a_whole = tokens_[at_ - 1].IsWord("NOT");
    at_ = end_;
    while (condition->size() > 1 && !negated_as_a_whole && WordAt(at_, "AND")) {
      const std::optional<Cases> next = ConditionAt(at_ + 1);
      if (!next) break;
      condition = Both(*condition, *next);
      at_ = end_;
    }
    Emit(AnyOf(*condition));
    return true;
  }

  // The condition at `index`, if it is one to rewrite; sets `end_` after it.
  std::optional<Cases> ConditionAt(std::size_t index) {
    const std::optional<Column> column = ColumnAt(index);
    if (!column) return std::nullopt;
    const bool negated = WordAt(column->end, "NOT");
    const std::size_t next = column->end + (negated ? 1 : 0);
    std::optional<Cases> condition;
    if (WordAt(next, "LIKE")) {
      condition = Like(*column, index, next + 1);
    } else if (WordAt(next, "BETWEEN")) {
      condition = Between(*column, index, next + 1);
    } else if (!negated) {
      condition = Comparison(*column, index, next);
    }
    if (condition && negated) return Cases{"NOT " + AnyOf(*condition)};
    return condition;
  }

  // In these, `begin` is the index of the whole condition and `index` that of what follows its operator.

  std::optional<Cases> Like(const Column& column, std::size_t begin, std::size_t index) {
    const Token* pattern = Peek(index);
    if (pattern == nullptr || pattern->kind != TokenKind::kText) return std::nullopt;
    end_ = index + 1;
    if (!StandsAlone(begin, end_)) return std::nullopt;
    switch (column.type.kind) {
      case ColumnKind::kDate:
        return Cases{conditions_.DateLike(column.sql, pattern->text)};
      case ColumnKind::kNumber:
        return Cases{conditions_.ValueLike(column.sql, pattern->text)};
      default:
        return conditions_.TextLike(column.sql, TextAt(begin, index));
    }
  }

  std::optional<Cases> Between(const Column& column, std::size_t begin, std::size_t index) {
    if (column.type.kind != ColumnKind::kDate) return std::nullopt;
    const std::optional<Moment> first = DateAt(index);
    if (!first || !WordAt(end_, "AND")) return std::nullopt;
    const std::optional<Moment> last = DateAt(end_ + 1);
    if (!last || !StandsAlone(begin, end_)) return std::nullopt;
    return Cases{conditions_.DateBetween(column.sql, *first, *last)};
  }

  std::optional<Cases> Comparison(const Column& column, std::size_t begin, std::size_t index) {
    static constexpr std::array kComparisons = {"=", "<>", "<", "<=", ">", ">="};
    const Token* comparison = Peek(index);
    if (comparison == nullptr || comparison->kind != TokenKind::kSymbol ||
        std::find(kComparisons.begin(), kComparisons.end(), comparison->text) == kComparisons.end()) {
      return std::nullopt;
    }
    switch (column.type.kind) {
      case ColumnKind::kNumber:
        return std::nullopt;
      case ColumnKind::kDate: {
        const std::optional<Moment> moment = DateAt(index + 1);
        if (!moment || !StandsAlone(begin, end_)) return std::nullopt;
        return Cases{conditions_.DateCompares(column.sql, comparison->text, *moment)};
      }
      default:
        return TextComparison(column, begin, index);
    }
  }

  std::optional<Cases> TextComparison(const Column& column, std::size_t begin, std::size_t index) {
    const bool equality = tokens_[index].text == "=";
    if (!equality && tokens_[index].text != "<>") return std::nullopt;
    if (const Token* text = Peek(index + 1); text != nullptr && text->kind == TokenKind::kText) {
      end_ = index + 2;
      if (!StandsAlone(begin, end_)) return std::nullopt;
      if (equality) return conditions_.TextEquals(column.sql, TextAt(begin, index + 1));
      return Cases{conditions_.TextDiffers(column.sql, text->text)};
    }
    const std::optional<Column> other = ColumnAt(index + 1);
    const bool comparable =
        other && other->type.kind != ColumnKind::kNumber && other->type.kind != ColumnKind::kDate;
    if (!equality || !comparable || !StandsAlone(begin, other->end)) return std::nullopt;
    end_ = other->end;
    // The later table is looked up with the values of the earlier one.
    return Cases{column.table <= other->table ? ConditionWriter::ColumnsEqual(column.sql, other->sql)
                                              : ConditionWriter::ColumnsEqual(other->sql, column.sql)};
  }

  // A date at `index`, in the dialect's way or as a plain text; sets `end_` after it.
  std::optional<Moment> DateAt(std::size_t index) {
    const Token* token = Peek(index);
    if (token == nullptr) return std::nullopt;
    if (token->kind == TokenKind::kDate) {
      end_ = index + 1;
      return JetDate(token->text);
    }
    if (token->kind == TokenKind::kText) {
      if (dialect_ == Dialect::kJet) throw TypeMismatch();
      end_ = index + 1;
      return ServerDate(token->text);
    }
    return ConvertAt(index);
  }

  // The month stands first in these literals, whatever the region.
  Moment JetDate(const std::string& text) const {
    const std::optional<Date> date = Region::English().ParseDate(text);
    if (!date) throw BadDate(dialect_, text);
    return MomentOf(*date);
  }

  Moment ServerDate(const std::string& text) const {
    const std::optional<Moment> moment = ParseYearMonthDay(text);
    if (!moment) throw BadDate(dialect_, text);
    return *moment;
  }

  // CONVERT(DATETIME, 'text', 102) at `index`; sets `end_` after it.
  std::optional<Moment> ConvertAt(std::size_t index) {
    if (!WordAt(index, "CONVERT") || !SymbolAt(index + 1, "(")) return std::nullopt;
    if (dialect_ == Dialect::kJet) throw UndefinedFunction("CONVERT");
    const Token* text = Peek(index + 4);
    const Token* style = Peek(index + 6);
    const bool known = WordAt(index + 2, "DATETIME") && SymbolAt(index + 3, ",") && text != nullptr &&
                       text->kind == TokenKind::kText && SymbolAt(index + 5, ",") && style != nullptr &&
                       style->text == "102" && SymbolAt(index + 7, ")");
    if (!known) throw SyntaxError(dialect_, "CONVERT");
    end_ = index + 8;
    return ServerDate(text->text);
  }

  // A date that stands outside a comparison is written as the file holds dates.
  bool RewriteConvert() {
    const Token& token = tokens_[at_];
    const std::optional<Moment> moment = token.kind == TokenKind::kDate ? DateAt(at_) : ConvertAt(at_);
    if (!moment) return false;
    const std::optional<Date> date = DateOf(*moment);
    has_text_in_sql_ = true;
    Emit(QuotedText(date ? StoredDate(*date) : ""));
    at_ = end_;
    return true;
  }

  bool RewriteSortTerm() {
    if (clause_ != Clause::kSort) return false;
    const std::optional<Column> column = ColumnAt(at_);
    if (!column || column->type.kind != ColumnKind::kText) return false;
    Emit(std::string(function::kSortKey) + "(" + column->sql + ")");
    at_ = column->end;
    return true;
  }

  void CopyToken() {
    const Token& token = tokens_[at_++];
    switch (token.kind) {
      case TokenKind::kText:
        has_text_in_sql_ = true;
        Emit(QuotedText(token.text));
        return;
      case TokenKind::kName:
        Emit(QuotedName(token.text));
        return;
      case TokenKind::kWord:
        FollowClause(token);
        Emit(token.text);
        return;
      default:
        break;
    }
    if (token.IsSymbol("(")) {
      outer_clauses_.push_back(clause_);
    } else if (token.IsSymbol(")") && !outer_clauses_.empty()) {
      clause_ = outer_clauses_.back();
      outer_clauses_.pop_back();
    }
    Emit(token.text);
  }

  void FollowClause(const Token& word) {
    if (!IsClauseWord(word)) return;
    if (word.IsWord("WHERE") || word.IsWord("ON") || word.IsWord("HAVING")) {
      clause_ = Clause::kCondition;
    } else if (word.IsWord("BY")) {
      clause_ = at_ >= 2 && tokens_[at_ - 2].IsWord("ORDER") ? Clause::kSort : Clause::kOther;
    } else {
      clause_ = Clause::kOther;
    }
  }

  void Emit(const std::string& text) {
    if (!sql_.empty()) sql_.push_back(' ');
    sql_ += text;
  }

  Dialect dialect_;
  const ColumnLookup& find_column_;
  std::vector<Token> tokens_;
  ConditionWriter conditions_;
  std::vector<TableInUse> tables_;
  std::vector<Clause> outer_clauses_;
  Clause clause_ = Clause::kOther;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
  std::string sql_;
  bool has_text_in_sql_ = false;
};

}  // namespace

void Bind(const std::vector<Parameter>& parameters, sqlite3_stmt* statement) {
  int index = 0;
  for (const Parameter& parameter : parameters) {
    ++index;
    if (const auto* number = std::get_if<std::int64_t>(&parameter)) {
      sqlite3_bind_int64(statement, index, *number);
    } else {
      const auto& text = std::get<std::string>(parameter);
      sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
    }
  }
}

RewrittenStatement Rewrite(std::string_view source, Dialect dialect, const Region& region,
                           const ColumnLookup& find_column) {
  return Rewriter(source, dialect, region, find_column).Run();
}

}  // namespace orvendal::sqlite
