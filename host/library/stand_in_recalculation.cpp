#include "host/library/stand_in_recalculation.h"

#include <optional>

#include "host/store/store_rows.h"

namespace orvendal {
namespace {

// As the provider compares: without regard to case, that of ñ included, and to blanks at the end.
std::string OfProduct(const std::string& branch, const std::string& code) {
  return "IdSucursal = " + SqlText(branch) + " AND IdProducto = " + SqlText(code);
}

// With the value first the embedded store compares as its index does, which knows fewer spellings of the
// code. In return the newest count is the index's last entry.
std::string OfSpelling(const std::string& branch, const std::string& code) {
  return SqlText(branch) + " = IdSucursal AND " + SqlText(code) + " = IdProducto";
}

std::string Counts(const std::string& condition) {
  return "SELECT Fecha, StockActual, Actualizado FROM HistOrvendalcial WHERE " + condition;
}

// The day of the newest count in this very spelling.
std::optional<Date> NewestDay(RecordsetFactory& recordsets, const ConnectionRef& connection,
                              const std::string& branch, const std::string& code) {
  const RecordsetRef newest =
      ReadRows(recordsets, connection,
               "SELECT MAX(Fecha) AS Ultima FROM HistOrvendalcial WHERE " + OfSpelling(branch, code));
  const Value day = newest->Fields("Ultima").Value();
  if (day.IsText()) return Region::English().ParseDate(day.Text());  // year-month-day in every region
  return day.IsDate() ? std::optional<Date>(day.AsDate()) : std::nullopt;
}

// The counts of the product that are no older than the newest one in this spelling, so that a long history is
// not read; all of them if there is none in this spelling.
RecordsetRef NewestCounts(RecordsetFactory& recordsets, const ConnectionRef& connection,
                          const std::string& branch, const std::string& code) {
  const std::optional<Date> day = NewestDay(recordsets, connection, branch, code);
  const std::string bound = day ? " AND Fecha >= " + SqlMoment(*connection, *day) : "";
  return ReadRows(recordsets, connection, Counts(OfProduct(branch, code) + bound));
}

bool IsNoEarlier(const Value& moment, const Value& than) {
  if (!moment.IsDate() || !than.IsDate()) return moment.IsDate() || !than.IsDate();
  return !(moment.AsDate() < than.AsDate());
}

// That of the newest day, and of several counts of it the one saved last, or nothing.
std::optional<Value> NewestQuantity(Recordset& counts) {
  std::optional<Value> quantity;
  Value day;
  Value saved;
  for (; !counts.AtEnd(); counts.MoveNext()) {
    const Value counted = counts.Fields("Fecha").Value();
    const Value moment = counts.Fields("Actualizado").Value();
    if (quantity) {
      if (!IsNoEarlier(counted, day)) continue;
      if (IsNoEarlier(day, counted) && !IsNoEarlier(moment, saved)) continue;
    }
    quantity = counts.Fields("StockActual").Value();
    day = counted;
    saved = moment;
  }
  return quantity;
}

}  // namespace

void StandInRecalculation::RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal,
                                              std::string& codigo, std::string&) {
  RecordsetFactory& recordsets = context_.recordsets;
  const std::optional<Value> quantity =
      NewestQuantity(*NewestCounts(recordsets, conexion, clave_sucursal, codigo));
  if (!quantity) return;

  const std::string product = OfProduct(clave_sucursal, codigo);
  const RecordsetRef stock =
      ReadRows(recordsets, conexion, "SELECT Stock FROM ProdSucStock WHERE " + product);
  if (stock->AtEnd()) {
    const RecordsetRef added = OpenToAdd(recordsets, conexion, "ProdSucStock");
    added->AddNew();
    added->Collect("IdSucursal", clave_sucursal);
    added->Collect("IdProducto", codigo);
    added->Collect("Stock", *quantity);
    added->Update();
    added->Close();
    return;
  }
  const std::string number = quantity->IsNull() ? "NULL" : SqlNumber(quantity->Number());
  RunStatement(recordsets, conexion, "UPDATE ProdSucStock SET Stock = " + number + " WHERE " + product);
}

}  // namespace orvendal
