#pragma once

#include <string>

#include "form/frm_orvendalciales.h"
#include "session/datos_comunes.h"

namespace orvendal {

/// The control of that full name; of a group of two, the plain name means the click area (1). Raises
/// ScriptStop if there is none.
Control& ControlNamed(const Form& form, const std::string& name);

/// The value of "CONTROL.PROPIEDAD", such as "LblNuevo(0).Left", "TxtMSF.Font.Size" or
/// "MSFProductos.TextMatrix(3,0)"; of "Form.PROPIEDAD" for the form, its variables and the session's. Flags
/// are True or False, colours 0xBBGGRR, days yyyy-mm-dd, numbers with a point before decimals, texts as they
/// are. Raises ScriptStop for what there is not.
std::string PropertyText(FrmOrvendalciales& form, const DatosComunes& session, const std::string& reference);

}  // namespace orvendal
