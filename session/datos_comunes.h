#pragma once

#include <cstdint>
#include <string>

#include "platform/base/object.h"
#include "platform/base/value.h"
#include "platform/data/recordset.h"
#include "platform/library/library.h"

namespace orvendal {

class Form;

/// The session: filled once per call of Orvendal by the host's session object, kept for as long as the
/// component is loaded. Nothing clears it when the form closes; F1, F2 and the pickers may replace Conexion
/// while the form is open.
struct DatosComunes {
  DatosClaseRef DatosSesion;
  std::shared_ptr<Form> FormHost1;  // kept only
  std::shared_ptr<Form> FormHost2;  // kept only
  std::string CadenaSesion;
  ConnectionRef Conexion;
  ObjectRef ObjetoSesion1;  // kept only, like the three after it
  ObjectRef ObjetoSesion2;
  ObjectRef ObjetoSesion3;
  ObjectRef ObjetoSesion4;
  std::int32_t AnchoBase = 0;  // twips
  std::int32_t AltoBase = 0;   // twips
  Value DatoPantalla = 0.0;
  std::string CodSucursal;
  std::string CodPuesto;
  std::string CodTurno;
  RecordsetRef DiccGeneral;
  RecordsetRef DiccAcciones;
  RecordsetRef DiccPantallas;

  /// The branch key of every statement and row: the first two characters of the branch code.
  std::string ClaveSucursal() const;

  /// Makes the dictionaries that are still empty, then has the host's object fill the session. Raises error
  /// 91 without a session object, 13 if the host puts something that is no form into a form variable.
  void IniciarDatosComunes(RecordsetFactory& recordsets);
};

}  // namespace orvendal
