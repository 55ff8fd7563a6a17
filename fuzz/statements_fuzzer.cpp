#include "adapters/sqlite/sql_tokens.h"
#include "adapters/sqlite/statement_rewriter.h"
#include "fuzz/fuzzed_input.h"
#include "platform/data/ado_error.h"

using namespace orvendal;

// Statements as hosts and typed codes make them, taken apart and written anew.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedInput input(bytes, size);
  const Dialect dialect = input.Bool() ? Dialect::kJet : Dialect::kSqlServer;
  const Region& region = input.AnyRegion();
  const std::string statement = input.Rest();

  Succeeds({ado_error::kSyntax}, [&] { sqlite::Tokenize(statement, dialect); });
  const auto find_column = [](const std::string& table,
                              const std::string& column) -> std::optional<sqlite::ColumnType> {
    if (table.empty() || column.empty()) return std::nullopt;
    return sqlite::ColumnTypeOf(column.front() == 'F' ? "DATETIME" : "VARCHAR(40)");
  };
  Succeeds({ado_error::kSyntax, ado_error::kConversionFailed}, [&] {
    const sqlite::RewrittenStatement rewritten = sqlite::Rewrite(statement, dialect, region, find_column);
    Require(rewritten.sql.find('\0') == std::string::npos, "the engine gets the whole statement");
  });

  // A text that is quoted is one text again, whatever it holds.
  if (statement.find('\0') == std::string::npos) {
    const auto tokens = sqlite::Tokenize(sqlite::QuotedText(statement), dialect);
    Require(tokens.size() == 1 && tokens[0].kind == sqlite::TokenKind::kText && tokens[0].text == statement,
            "a quoted text is that text");
  }
  return 0;
}
