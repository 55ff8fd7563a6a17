#pragma once

#include "DllTrevano.h"
#include "adapters/com/boundary.h"
#include "platform/library/library.h"

namespace orvendal {

/// The library's objects that are dialogs: while one is up, the screen takes no input.
class ComMessages final : public Mensajes {
 public:
  explicit ComMessages(Boundary& boundary);
  void Mostrar(std::string& texto, std::int32_t& estilo, std::string& titulo,
               std::int32_t& respuesta) override;

 private:
  Boundary& boundary_;
  ComPtr<_Mensajes> object_;
};

class ComSessionChange final : public CambioSesion {
 public:
  explicit ComSessionChange(Boundary& boundary);
  void AbrirCambio(ConnectionRef& conexion, Value& dato_pantalla, std::string& cod_sucursal,
                   std::string& cod_puesto, std::string& cod_turno, std::int32_t& ancho_base,
                   std::int32_t& alto_base, std::int32_t& resultado) override;

 private:
  Boundary& boundary_;
  ComPtr<_CambioSesion> object_;
};

class ComProductSearch final : public BuscadorProductos {
 public:
  explicit ComProductSearch(Boundary& boundary);
  std::string Buscar(DatosClaseRef& datos_sesion, ObjectRef& formulario, const std::string& llamador,
                     const std::string& campo, const std::string& texto, const std::string& modo,
                     bool& indicador) override;

 private:
  Boundary& boundary_;
  ComPtr<_BuscadorProductos> object_;
};

class ComEmployeePicker final : public SelectorEmpleado {
 public:
  explicit ComEmployeePicker(Boundary& boundary);
  void ParaNuevo(bool value) override;
  bool Aceptado() override;
  void Aceptado(bool value) override;
  void OpcionFija(bool value) override;
  std::string Codigo() override;
  std::string Nombre() override;
  void Nombre(const std::string& value) override;
  void Elegir(ConnectionRef& conexion, std::string& cod_sucursal) override;

 private:
  Boundary& boundary_;
  ComPtr<_SelectorEmpleado> object_;
};

}  // namespace orvendal
