#include "host/stand_in_recalculation.h"

#include "host/host_store.h"

namespace orvendal {

void StandInRecalculation::RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal,
                                              std::string& codigo, std::string&) {
  SqliteConnection& store = EmbeddedStore(conexion);
  SqliteStatement newest(store,
                         "SELECT StockActual FROM HistOrvendalcial WHERE IdSucursal = ?1 AND IdProducto = ?2 "
                         "ORDER BY Fecha DESC, Actualizado DESC, rowid DESC LIMIT 1");
  if (!newest.Bind(1, clave_sucursal).Bind(2, codigo).Step()) return;
  const Value quantity = newest.ValueAt(0);
  newest.Reset();

  SqliteStatement update(store,
                         "UPDATE ProdSucStock SET Stock = ?3 WHERE IdSucursal = ?1 AND IdProducto = ?2");
  update.Bind(1, clave_sucursal).Bind(2, codigo).Bind(3, quantity).Run();
  SqliteStatement insert(
      store,
      "INSERT INTO ProdSucStock (IdSucursal, IdProducto, Stock) SELECT ?1, ?2, ?3 WHERE NOT "
      "EXISTS (SELECT 1 FROM ProdSucStock WHERE IdSucursal = ?1 AND IdProducto = ?2)");
  insert.Bind(1, clave_sucursal).Bind(2, codigo).Bind(3, quantity).Run();
}

}  // namespace orvendal
