#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/base/date.h"
#include "platform/base/object.h"
#include "platform/base/value.h"
#include "platform/data/recordset.h"
#include "platform/forms/text_box.h"

namespace orvendal {

/// The maker's library, by contract: what the screen calls of it, with the arguments in their order.
/// Arguments by reference are in-out: the library may replace them, and callers take over what comes back.
/// Anything that keeps to this list can stand in for it. Every operation may fail with a RuntimeError.

/// What the host's session object is asked to fill; each may be left as it is.
struct SessionArguments {
  ConnectionRef& Conexion;
  ObjectRef& ObjetoSesion1;
  ObjectRef& ObjetoSesion2;
  ObjectRef& ObjetoSesion3;
  ObjectRef& ObjetoSesion4;
  ObjectRef& FormHost1;
  ObjectRef& FormHost2;
  std::int32_t& AnchoBase;  // twips
  std::int32_t& AltoBase;   // twips
  Value& DatoPantalla;
  RecordsetRef& DiccGeneral;
  RecordsetRef& DiccAcciones;
  RecordsetRef& DiccPantallas;
  std::string& CadenaSesion;
  std::string& CodSucursal;
};

/// The host's session object, the first argument of Orvendal.
class DatosClase : public Object {
 public:
  virtual void RellenarSesion(const SessionArguments& session) = 0;
};
using DatosClaseRef = std::shared_ptr<DatosClase>;

class Herramientas {
 public:
  virtual ~Herramientas() = default;
  /// The key to use instead of `key_ascii`; 0 refuses it.
  virtual int FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) = 0;
  /// What the library shows for F1.
  virtual void AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) = 0;
  /// The library lets go of a form; it may clear the reference.
  virtual void LiberarForm(ObjectRef& formulario) = 0;
  /// The display text of a date.
  virtual std::string FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                                   std::string& modo2) = 0;
  /// Is told a statement that was just executed.
  virtual void RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                                  std::string& sentencia) = 0;
  /// A date and time as the store takes it.
  virtual std::string FechaHoraTexto(Date& momento) = 0;
};

/// Buttons and answers of Mensajes::Mostrar.
namespace message {
inline constexpr std::int32_t kStop = 16;
inline constexpr std::int32_t kInformation = 64;
inline constexpr std::int32_t kQuestionYesNoCancel = 35;
inline constexpr std::int32_t kOk = 1;
inline constexpr std::int32_t kCancel = 2;
inline constexpr std::int32_t kYes = 6;
inline constexpr std::int32_t kNo = 7;
}  // namespace message

class Mensajes {
 public:
  virtual ~Mensajes() = default;
  /// A modal message; `respuesta` takes the code of the button pressed.
  virtual void Mostrar(std::string& texto, std::int32_t& estilo, std::string& titulo,
                       std::int32_t& respuesta) = 0;
};

class CambioSesion {
 public:
  virtual ~CambioSesion() = default;
  /// What the library shows for F2; it may replace any of the values.
  virtual void AbrirCambio(ConnectionRef& conexion, Value& dato_pantalla, std::string& cod_sucursal,
                           std::string& cod_puesto, std::string& cod_turno, std::int32_t& ancho_base,
                           std::int32_t& alto_base, std::int32_t& resultado) = 0;
};

class Recalculo {
 public:
  virtual ~Recalculo() = default;
  /// Whatever the stock of that product in that branch needs after a count.
  virtual void RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal, std::string& codigo,
                                  std::string& texto) = 0;
};

/// The search for a product, made for each use.
class BuscadorProductos {
 public:
  virtual ~BuscadorProductos() = default;
  /// Modal. The code chosen; "" if the user chose nothing.
  virtual std::string Buscar(DatosClaseRef& datos_sesion, ObjectRef& formulario, const std::string& llamador,
                             const std::string& campo, const std::string& texto, const std::string& modo,
                             bool& indicador) = 0;
};

/// The picker of an employee, made for each use: properties in, Elegir, properties out.
class SelectorEmpleado {
 public:
  virtual ~SelectorEmpleado() = default;
  virtual void ParaNuevo(bool value) = 0;
  virtual bool Aceptado() = 0;
  virtual void Aceptado(bool value) = 0;
  virtual void OpcionFija(bool value) = 0;
  virtual std::string Codigo() = 0;
  virtual std::string Nombre() = 0;
  virtual void Nombre(const std::string& value) = 0;
  /// Modal; returns when it closes.
  virtual void Elegir(ConnectionRef& conexion, std::string& cod_sucursal) = 0;
};

/// Makes the library's objects.
class Library {
 public:
  virtual ~Library() = default;
  virtual std::unique_ptr<Herramientas> NewHerramientas() = 0;
  virtual std::unique_ptr<Mensajes> NewMensajes() = 0;
  virtual std::unique_ptr<CambioSesion> NewCambioSesion() = 0;
  virtual std::unique_ptr<Recalculo> NewRecalculo() = 0;
  virtual std::unique_ptr<BuscadorProductos> NewBuscadorProductos() = 0;
  virtual std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() = 0;
};

}  // namespace orvendal
