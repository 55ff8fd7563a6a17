#pragma once

namespace orvendal::column {

/// Columns of both grids. Row 0 holds the titles; an empty code ends the lines, which have no gaps.
inline constexpr int kCode = 0;
inline constexpr int kDescription = 1;
inline constexpr int kPreviousQuantity = 2;
inline constexpr int kQuantity = 3;
inline constexpr int kEmployeeCode = 4;
inline constexpr int kStylist = 5;
inline constexpr int kDate = 6;
inline constexpr int kStoredCode = 7;      // CodigoAnterior
inline constexpr int kStoredQuantity = 8;  // CantidadAnterior
inline constexpr int kCount = 9;

}  // namespace orvendal::column
