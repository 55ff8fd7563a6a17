#pragma once

#include "adapters/automation/com_headers.h"
#include "adapters/sqlite/column_type.h"
#include "adapters/sqlite/dialect.h"
#include "platform/base/value.h"

namespace orvendal {

/// A field's value as clients get it: VT_DATE, VT_BSTR, VT_NULL, VT_I4 from columns of whole numbers, VT_R8
/// from the others and for what VT_I4 cannot hold. The caller clears it.
VARIANT VariantOf(const Value& value, const sqlite::ColumnType& type);

/// What a client assigns to a field: texts, dates and numbers of every width; True is -1, Empty is Null, an
/// object stands for its default property. Raises 3421 for anything else.
Value ValueOf(const VARIANT& variant);

/// The number by which ADO names the type of a column: text 202 (203 without a length), whole numbers 3,
/// other numbers 5, dates 135 or, with Jet, 7, anything 12.
LONG DataTypeOf(const sqlite::ColumnType& type, Dialect dialect);
/// Characters of a text, bytes of anything else; 1,073,741,823 characters where there is no limit.
LONG DefinedSizeOf(const sqlite::ColumnType& type);

}  // namespace orvendal
