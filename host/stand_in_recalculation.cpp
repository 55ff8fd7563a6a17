#include "host/stand_in_recalculation.h"

#include <optional>

#include "host/store_rows.h"

namespace orvendal {
namespace {

// With the value first the embedded store compares it as its index does, so that the newest count is the
// index's last entry.
std::string OfProduct(const std::string& branch, const std::string& code) {
  return SqlText(branch) + " = IdSucursal AND " + SqlText(code) + " = IdProducto";
}

std::string CountsOfNewestDay(const std::string& product) {
  return "SELECT StockActual, Actualizado FROM HistOrvendalcial WHERE " + product +
         " AND Fecha = (SELECT MAX(Fecha) FROM HistOrvendalcial WHERE " + product + ")";
}

bool IsNoEarlier(const Value& moment, const Value& than) {
  if (!moment.IsDate() || !than.IsDate()) return moment.IsDate() || !than.IsDate();
  return !(moment.AsDate() < than.AsDate());
}

// Of several counts of one day the one saved last, or nothing.
std::optional<Value> NewestQuantity(Recordset& counts) {
  std::optional<Value> quantity;
  Value saved;
  for (; !counts.AtEnd(); counts.MoveNext()) {
    const Value moment = counts.Fields("Actualizado").Value();
    if (quantity && !IsNoEarlier(moment, saved)) continue;
    quantity = counts.Fields("StockActual").Value();
    saved = moment;
  }
  return quantity;
}

}  // namespace

void StandInRecalculation::RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal,
                                              std::string& codigo, std::string&) {
  RecordsetFactory& recordsets = context_.recordsets;
  const std::string product = OfProduct(clave_sucursal, codigo);
  const std::optional<Value> quantity =
      NewestQuantity(*ReadRows(recordsets, conexion, CountsOfNewestDay(product)));
  if (!quantity) return;

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
