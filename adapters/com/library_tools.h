#pragma once

#include "DllTrevano.h"
#include "adapters/com/boundary.h"
#include "platform/library/library.h"

namespace orvendal {

/// The library's objects that work without a dialog of their own but for F1.
class ComTools final : public Herramientas {
 public:
  explicit ComTools(Boundary& boundary);
  int FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) override;
  void AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) override;
  void LiberarForm(ObjectRef& formulario) override;
  std::string FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                           std::string& modo2) override;
  void RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                          std::string& sentencia) override;
  std::string FechaHoraTexto(Date& momento) override;

 private:
  Boundary& boundary_;
  ComPtr<_Herramientas> object_;
};

class ComRecalculation final : public Recalculo {
 public:
  explicit ComRecalculation(Boundary& boundary);
  void RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal, std::string& codigo,
                          std::string& texto) override;

 private:
  Boundary& boundary_;
  ComPtr<_Recalculo> object_;
};

}  // namespace orvendal
