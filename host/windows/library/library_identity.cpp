#include "host/windows/library/library_identity.h"

namespace orvendal::library_identity {

const ModuleIdentity& Registered() {
  static const RegisteredName classes[] = {
      {L"DatosClase", __uuidof(::DatosClase)},
      {L"Herramientas", __uuidof(::Herramientas)},
      {L"Mensajes", __uuidof(::Mensajes)},
      {L"CambioSesion", __uuidof(::CambioSesion)},
      {L"BuscadorProductos", __uuidof(::BuscadorProductos)},
      {L"SelectorEmpleado", __uuidof(::SelectorEmpleado)},
      {L"Recalculo", __uuidof(::Recalculo)},
  };
  static const RegisteredName interfaces[] = {
      {L"_DatosClase", __uuidof(_DatosClase)},
      {L"_SampleSession", __uuidof(_SampleSession)},
      {L"_Herramientas", __uuidof(_Herramientas)},
      {L"_Mensajes", __uuidof(_Mensajes)},
      {L"_CambioSesion", __uuidof(_CambioSesion)},
      {L"_BuscadorProductos", __uuidof(_BuscadorProductos)},
      {L"_SelectorEmpleado", __uuidof(_SelectorEmpleado)},
      {L"_Recalculo", __uuidof(_Recalculo)},
  };
  static const ModuleIdentity identity = {kProject, L"1.0", kTypeLibrary, classes, interfaces};
  return identity;
}

}  // namespace orvendal::library_identity
