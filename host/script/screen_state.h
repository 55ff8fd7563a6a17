#pragma once

#include <string>
#include <utility>
#include <vector>

#include "form/frm_orvendalciales.h"
#include "session/datos_comunes.h"

namespace orvendal {

/// Commands of a script that put a screen into a state at once, as no hand could: what stands at the
/// beginning of a script that was cut after a load. None of them raises an event of the screen but the last
/// two of the grid's cursor.
///
///   carga DIA            loads that day
///   lineas FILAS         a grid of lines of so many rows, all empty
///   linea FILA "..." ... what the nine columns of a line hold
///   celda FILA COL       the cursor
///   pon OBJETO.PROPIEDAD "valor"
///
/// False, with nothing done, if the line is another command. Raises ScriptStop.
bool PutScreenState(FrmOrvendalciales& screen, DatosComunes& session, const std::vector<std::string>& words);

/// What a screen shows and knows beyond its lines, by the names that "pon" takes.
using ScreenValues = std::vector<std::pair<std::string, std::string>>;
ScreenValues ValuesOf(FrmOrvendalciales& screen, const DatosComunes& session);

/// The lines of a script that put a screen, which has just been opened with the values `fresh`, into the
/// state in which `screen` is.
std::string ScreenStateLines(FrmOrvendalciales& screen, const DatosComunes& session,
                             const ScreenValues& fresh);

}  // namespace orvendal
