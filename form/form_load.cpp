#include "form/frm_orvendalciales.h"
#include "platform/base/text.h"
#include "screen/proportional_layout.h"
#include "store/statements.h"

namespace orvendal {
namespace {

// What stands before and after some captions.
const std::string kBlanks = "  ";

}  // namespace

void FrmOrvendalciales::Form_Load() {
  Width(Session().AnchoBase);
  Height(Session().AltoBase);
  variables.PintandoFila = false;
  variables.MoviendoColumna = false;
  SetCaptions();
  DefineLineGrid();
  FitEditor(10);
  DefineSnapshotGrid();
  variables.ModoNuevo = false;
  LblSucursal.Tag(Session().ClaveSucursal());
  NameBranch();
  SetDates();
  // The height alone decides: a display of the reference height and another width is left as designed.
  if (Host().ScreenHeight() != Session().AltoBase) FitToScreen();
  PonerBotones(BotonesEnReposo);
  variables.PrimeraActivacion = true;
  CargarExistencias();
}

void FrmOrvendalciales::SetCaptions() {
  for (Label* click_area : {&LblNuevo_1, &LblBuscar_1, &LblBorrar_1, &LblGuardar_1, &LblCancelar_1}) {
    click_area->Caption("");
  }
  const auto read = [this](RecordsetRef& dictionary, const char* key) {
    return TextOf(Word(dictionary, key));
  };
  const auto join = [this](RecordsetRef& dictionary, const char* key) {
    return JoinedTextOf(Word(dictionary, key));
  };
  DatosComunes& session = Session();
  LblNuevo_0.Caption(read(session.DiccAcciones, "Supervisor"));
  LblCancelar_0.Caption(read(session.DiccGeneral, "Cancelar"));
  LblBorrar_0.Caption(read(session.DiccAcciones, "Borrar Linea"));
  LblBuscar_0.Caption(read(session.DiccGeneral, "Buscar"));
  LblDatos.Caption(kBlanks + join(session.DiccGeneral, "Datos de Interes") + kBlanks);
  LblEmpleado.Caption(kBlanks + join(session.DiccGeneral, "Estilista"));
  LblSupervisor.Caption(read(session.DiccAcciones, "Supervisor"));
  LblEntrada.Caption(kBlanks + join(session.DiccPantallas, "Orvendalciales") + kBlanks);
  LblFecha.Caption(kBlanks + join(session.DiccGeneral, "Fecha"));
}

void FrmOrvendalciales::NameBranch() {
  const RecordsetRef branches = NewRecordset();
  statements::OpenForReading(*branches, statements::Branches(), Session().Conexion);
  // An empty table has no row to search from.
  if (!branches->AtEnd())
    branches->Find(statements::BranchCriterion(LblSucursal.Tag()), 0, SearchDirection::kForward);
  if (branches->AtEnd()) {
    Mostrar("Error al cargar la sucursal", message::kStop, "Atención");
  } else {
    const double right = LblSucursal.Left() + LblSucursal.Width();
    const Value word = Word(Session().DiccGeneral, "Sucursal");
    const Value name = branches->Fields("Nombre").Value();
    LblSucursal.Caption(kBlanks + JoinedTextOf(word) + " " + LblSucursal.Tag() + " " + JoinedTextOf(name) +
                        kBlanks);
    LblSucursal.Left(right - LblSucursal.Width());
  }
  branches->Close();
}

// Two readings of the clock: a load at midnight can show two different days.
void FrmOrvendalciales::SetDates() {
  MkFecha.Text(FormatoFecha(TextOf(Host().SystemClock().Today())));
  Calendario.Value(Host().SystemClock().Today());
  TxtMSF.Visible(false);
  TxtFechaHora.Text(FormatoFecha(TextOf(Calendario.Value())));
}

void FrmOrvendalciales::FitToScreen() {
  const std::int32_t screen_width = RoundToLong(Host().ScreenWidth());
  const std::int32_t screen_height = RoundToLong(Host().ScreenHeight());
  EscalarControles(*this, screen_width, screen_height, Session().AnchoBase, Session().AltoBase);

  FitDescriptionColumn();
  FitEditor(0);  // without the twips of the first fit

  for (const ActionButton& button : Buttons()) {
    button.face.Width(button.face.Width() + 80);
    button.rim.Width(button.rim.Width() + 120);
    button.rim.Height(button.rim.Height() + 40);
    button.caption.Width(button.caption.Width() + 40);
    button.click_area.Width(button.click_area.Width() + 40);
  }

  LblEmpleado.Height(TxtEmpleado.Height());
  LblFecha.Height(MkFecha.Height());

  Width(Host().ScreenWidth());
  Height(Host().ScreenHeight());
}

}  // namespace orvendal
