#pragma once

#include <string>
#include <string_view>

#include "platform/base/region.h"
#include "platform/data/recordset.h"

namespace orvendal {

// How the sample host and its stand-in library work on a store, whatever provider is behind it: with
// statements that every dialect takes. Each raises the provider's error.

/// The rows of a statement, all of them read.
RecordsetRef ReadRows(RecordsetFactory& recordsets, const ConnectionRef& connection, const std::string& sql);
/// A table to add rows to; none of it is read.
RecordsetRef OpenToAdd(RecordsetFactory& recordsets, const ConnectionRef& connection,
                       const std::string& table);
/// A statement without rows.
void RunStatement(RecordsetFactory& recordsets, const ConnectionRef& connection, const std::string& sql);

/// A field of the current row as text; empty for Null.
std::string TextOf(const Recordset& rows, std::string_view field, const Region& region);
bool HasField(const Recordset& rows, std::string_view field);

/// Values as they stand in a statement.
std::string SqlText(std::string_view text);
std::string SqlNumber(double number);
/// As the dialect of the connection has it.
std::string SqlMoment(const Connection& connection, Date moment);

}  // namespace orvendal
