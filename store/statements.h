#pragma once

#include <string>

#include "platform/data/recordset.h"

/// Every statement of the system, word for word. Values are pasted in with no doubling of quotes: a quote
/// mark in one ends the text early and the provider refuses the statement.
namespace orvendal::statements {

std::string Branches();
/// The criterion that finds a branch among them.
std::string BranchCriterion(const std::string& branch_key);
std::string LinesOfDay(const std::string& branch_key, const std::string& date_condition);
std::string DeleteDay(const std::string& branch_key, const std::string& date_condition);
/// The whole history, opened only to add rows.
std::string WholeHistory();
std::string ProductByCode(const std::string& code);
std::string Reference(const std::string& reference);
/// By a pattern for the whole code.
std::string ProductsLikeCode(const std::string& pattern);
std::string ProductsByDescription(const std::string& beginning);
std::string DescriptionOf(const std::string& code);
std::string StockOf(const std::string& branch_key, const std::string& code);

/// The two open modes. Errors as Recordset::Open.
void OpenForReading(Recordset& recordset, const std::string& statement, const ConnectionRef& connection);
void OpenForWriting(Recordset& recordset, const std::string& statement, const ConnectionRef& connection);

}  // namespace orvendal::statements
