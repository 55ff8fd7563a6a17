#include "session/datos_comunes.h"

#include "platform/base/text.h"
#include "platform/forms/form.h"

namespace orvendal {
namespace {

std::shared_ptr<Form> AsForm(const ObjectRef& object) {
  if (!object) return nullptr;
  std::shared_ptr<Form> form = std::dynamic_pointer_cast<Form>(object);
  if (!form) throw RuntimeError(error_number::kTypeMismatch);
  return form;
}

}  // namespace

std::string DatosComunes::ClaveSucursal() const {
  return Mid(CodSucursal, 1, 2);
}

void DatosComunes::IniciarDatosComunes(RecordsetFactory& recordsets) {
  for (RecordsetRef* dictionary : {&DiccPantallas, &DiccAcciones, &DiccGeneral}) {
    if (!*dictionary) *dictionary = recordsets.NewRecordset();
  }
  ObjectRef form2 = FormHost2;
  ObjectRef form1 = FormHost1;
  if (!DatosSesion) throw RuntimeError(error_number::kObjectNotSet);
  DatosSesion->RellenarSesion({Conexion, ObjetoSesion1, ObjetoSesion2, ObjetoSesion3, ObjetoSesion4, form1,
                               form2, AnchoBase, AltoBase, DatoPantalla, DiccGeneral, DiccAcciones,
                               DiccPantallas, CadenaSesion, CodSucursal});
  FormHost1 = AsForm(form1);
  FormHost2 = AsForm(form2);
}

}  // namespace orvendal
