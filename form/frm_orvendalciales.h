#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "platform/forms/barra.h"
#include "platform/forms/boton.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/h_scroll_bar.h"
#include "platform/forms/label.h"
#include "platform/forms/month_view.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/picture_box.h"
#include "platform/forms/shape.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"
#include "screen/action_bar.h"
#include "session/component_state.h"

namespace orvendal {

/// The screen: the entry of opening stock counts. One object with its 46 controls, its variables, its
/// handlers named Control_Event and its procedures; each group of them names the file of its definitions.
///
/// Invariants between two events: lines have no gaps; `MSFProductos1` is what the store held at the last
/// load; `PintandoFila`, `MoviendoColumna`, `CargandoLineas` and `FlagFechaCambio` are False; supervisor mode
/// is on exactly while `LblSupervisor` is visible.
class FrmOrvendalciales final : public Form {
 public:
  explicit FrmOrvendalciales(ComponentState& state);

  // Controls, in the order of their creation.
  Barra Barra1{*this, nullptr, "Barra1"};
  PictureBox PicServicios{*this, nullptr, "PicServicios"};
  PictureBox PicDatos{*this, &PicServicios, "PicDatos"};
  ComboBox CodigosaRecalcular{*this, &PicDatos, "CodigosaRecalcular"};
  CommandButton CmdEmpl{*this, &PicDatos, "CmdEmpl"};
  Timer TimerCBarra{*this, &PicDatos, "TimerCBarra"};
  TextBox TxtEmpleado{*this, &PicDatos, "TxtEmpleado"};
  PictureBox PicCalendario{*this, &PicDatos, "PicCalendario"};
  MonthView Calendario{*this, &PicCalendario, "Calendario"};
  TextBox TxtCodigo{*this, &PicDatos, "TxtCodigo"};
  HScrollBar ScrollProductos{*this, &PicDatos, "ScrollProductos"};
  TextBox TxtMSF{*this, &PicDatos, "TxtMSF"};
  TextBox MkFecha{*this, &PicDatos, "MkFecha"};
  TextBox TxtFechaHora{*this, &PicDatos, "TxtFechaHora"};
  MSFlexGrid MSFProductos1{*this, &PicDatos, "MSFProductos1"};
  MSFlexGrid MSFProductos{*this, &PicDatos, "MSFProductos"};
  Boton BtnAnuloSuper{*this, &PicDatos, "BtnAnuloSuper"};
  Label LblEntrada{*this, &PicDatos, "LblEntrada"};
  Label LblSucursal{*this, &PicDatos, "LblSucursal"};
  Label LblDatos{*this, &PicDatos, "LblDatos"};
  Shape Shape1{*this, &PicDatos, "Shape1"};
  Label LblFecha{*this, &PicDatos, "LblFecha"};
  Label LblEmpleado{*this, &PicDatos, "LblEmpleado"};
  Shape DivCliente{*this, &PicDatos, "DivCliente"};
  Label LblGuardar_1{*this, &PicServicios, "LblGuardar", 1};
  Label LblBorrar_1{*this, &PicServicios, "LblBorrar", 1};
  Label LblNuevo_1{*this, &PicServicios, "LblNuevo", 1};
  Label LblSupervisor{*this, &PicServicios, "LblSupervisor"};
  Label LblCancelar_0{*this, &PicServicios, "LblCancelar", 0};
  Label LblGuardar_0{*this, &PicServicios, "LblGuardar", 0};
  Label LblBorrar_0{*this, &PicServicios, "LblBorrar", 0};
  Label LblBuscar_0{*this, &PicServicios, "LblBuscar", 0};
  Label LblNuevo_0{*this, &PicServicios, "LblNuevo", 0};
  Shape DivOrden{*this, &PicServicios, "DivOrden"};
  Label LblCancelar_1{*this, &PicServicios, "LblCancelar", 1};
  Label LblBuscar_1{*this, &PicServicios, "LblBuscar", 1};
  Shape DivNuevo_1{*this, &PicServicios, "DivNuevo", 1};
  Shape DivNuevo_0{*this, &PicServicios, "DivNuevo", 0};
  Shape DivBuscar_1{*this, &PicServicios, "DivBuscar", 1};
  Shape DivBuscar_0{*this, &PicServicios, "DivBuscar", 0};
  Shape DivCancelar_1{*this, &PicServicios, "DivCancelar", 1};
  Shape DivCancelar_0{*this, &PicServicios, "DivCancelar", 0};
  Shape DivBorrar_1{*this, &PicServicios, "DivBorrar", 1};
  Shape DivBorrar_0{*this, &PicServicios, "DivBorrar", 0};
  Shape DivGuardar_1{*this, &PicServicios, "DivGuardar", 1};
  Shape DivGuardar_0{*this, &PicServicios, "DivGuardar", 0};

  /// The variables of the form, empty again at each load.
  struct Variables {
    RecordsetRef RsCodigos;  // made on first use, see RsCodigosEnUso
    bool PrimeraActivacion = false;
    bool ModoNuevo = false;  // nothing sets it
    bool PintandoFila = false;
    bool MoviendoColumna = false;
    std::string CodigoCelda;    // written only
    std::string CantidadCelda;  // written only
    std::string BufferTeclas;   // cleared only
    bool CambiarEstilista = false;
    bool FlagSupervisor = false;
    bool FlagFechaCambio = false;
    std::uint8_t UltimaColumna = 0;
    bool CargandoLineas = false;  // a load runs: the open editor is not to write into the lines
    bool lines_not_whole =
        false;                // a load failed and took lines away: a save would take them out of the store
    Date day_of_lines;        // of the last load that came to its end
    std::uint64_t loads = 0;  // that came to their end
    int editor_row = 0;       // the cell over which the editor was placed last
    int editor_column = 0;
  };
  Variables variables;

  // form/form_load.cpp
  void Form_Load();

  // form/activation.cpp
  void Form_Activate();
  void TimerCBarra_Timer();

  // form/function_keys.cpp: F1 and F2.
  void Form_KeyDown(int& KeyCode, int Shift);

  // form/closing.cpp, and minimising.
  void Barra1_Minimizar();
  void Barra1_Cerrar();
  void Form_Unload(int& Cancel);

  // form/frm_orvendalciales.cpp: what all of them use.
  /// Switches the action bar to one of the sets below: the names of the buttons to switch off.
  void PonerBotones(const ButtonSet& off);

  // lines/cell_editor.cpp
  void ColocarEditor();
  void EntrarCelda(int& KeyAscii);
  void TxtMSF_GotFocus();
  void TxtMSF_KeyDown(int& KeyCode, int Shift);
  void TxtMSF_KeyPress(int& KeyAscii);

  // lines/grid_events.cpp
  void MSFProductos_GotFocus();
  void MSFProductos_Click();
  void MSFProductos_DblClick();
  void MSFProductos_KeyPress(int& KeyAscii);
  void MSFProductos_MouseDown(int Button, int Shift, double X, double Y);
  void MSFProductos_RowColChange();
  void MSFProductos_LeaveCell();
  void MSFProductos_Scroll();
  void ScrollProductos_Change();

  // lines/grid_navigation.cpp
  /// `Direccion`: "Izq", "Der", "Arr" or "Aba".
  void MoverCelda(const std::string& Direccion);

  // lines/product_resolution.cpp
  void ValidarProducto(bool& Resultado);
  std::string BuscarReferencia(const std::string& Referencia);
  bool ProductoRepetido(const std::string& Codigo);
  bool CargarLinea(const std::string& Codigo);

  // lines/search_button.cpp
  void LblBuscar_Click(int Index);

  // lines/stylist_selection.cpp
  void CmdEmpl_Click();
  void TxtEmpleado_GotFocus();
  void TxtEmpleado_KeyPress(int& KeyAscii);
  void TxtEmpleado_LostFocus();

  // count/load_day.cpp
  void CargarExistencias();

  // count/save_count.cpp
  void LblGuardar_Click(int Index);
  bool ExisteProducto(const std::string& Codigo);
  void AnotarRecalculo(const std::string& Codigo);

  // count/cancel_count.cpp
  void LblCancelar_Click(int Index);
  void LimpiarCabecera();

  // count/delete_line.cpp
  void LblBorrar_Click(int Index);

  // count/supervisor_mode.cpp
  void LblNuevo_Click(int Index);
  void BtnAnuloSuper_Click();

  // count/date_selection.cpp
  void MkFecha_GotFocus();
  void MkFecha_KeyPress(int& KeyAscii);
  void MkFecha_LostFocus();
  void TxtFechaHora_GotFocus();
  void TxtFechaHora_LostFocus();
  void Calendario_DblClick();
  void Calendario_LostFocus();
  void Calendario_KeyPress(int& KeyAscii);
  void Calendario_SelChange(Date StartDate, Date EndDate, bool& Cancel);

  // count/change_guard.cpp
  bool HayCambios();

 protected:
  void ApplyDesign() override;

 private:
  // form/event_wiring.cpp, one line per control and event
  void WireFrame();
  void WireLines();
  void WireCount();
  void WireActionBar();
  void WirePressLook(Label& member, Label& caption);

  // form/form_load.cpp
  void SetCaptions();
  void NameBranch();
  void SetDates();
  void FitToScreen();

  // form/grid_definition.cpp
  void DefineLineGrid();
  void FitDescriptionColumn();
  void FitEditor(double beyond_column);
  void DefineSnapshotGrid();

  // form/frm_orvendalciales.cpp
  ActionBar Buttons();
  DatosComunes& Session() { return state_.session; }
  const Region& UserRegion() { return Host().UserRegion(); }
  std::string TextOf(const Value& value) { return UserRegion().ToText(value); }
  std::string TextOf(Value&& value) { return UserRegion().ToText(std::move(value)); }
  /// The text of a value that is joined with others: alone, a Null is an error; joined, it adds nothing.
  std::string JoinedTextOf(const Value& value) { return value.IsNull() ? std::string() : TextOf(value); }
  RecordsetRef NewRecordset() { return state_.environment.recordsets.NewRecordset(); }
  /// An object variable that comes into being on first use. Who holds the result keeps the object, even if
  /// the variable is emptied meanwhile.
  RecordsetRef InUse(RecordsetRef& variable);
  RecordsetRef RsCodigosEnUso() { return InUse(variables.RsCodigos); }
  Value Word(RecordsetRef& dictionary, const char* key) { return InUse(dictionary)->Fields(key).Value(); }
  std::int32_t Mostrar(std::string texto, std::int32_t estilo, std::string titulo);
  std::string FormatoFecha(std::string fecha);
  std::shared_ptr<FrmOrvendalciales> GlobalForm();
  void TakeGlobalForm(const ObjectRef& form);

  // lines/cell_editor.cpp
  void SelectEditorText();
  void PlaceEditorAnew();
  bool IsEditingQuantity();
  bool EditorIsInPlace();
  void CommitQuantity();
  void ConfirmCell();
  void ConfirmQuantity();

  // lines/grid_events.cpp
  void PaintLine(ColorWord back_color, ColorWord fore_color, int last_column);

  // lines/product_resolution.cpp
  std::string ChosenProduct();
  void WriteLine(Recordset& product, const std::string& code);

  // lines/search_button.cpp
  std::string AbrirBuscador(const std::string& field, const std::string& text);

  // lines/stylist_selection.cpp
  std::unique_ptr<SelectorEmpleado> AbrirSelector(bool para_nuevo);
  void RefuseBlankStylist();

  // count/load_day.cpp
  void LoadLines(const std::string& condition, bool& has_written);
  void WriteLoadedRow(int row, const Recordset& lines, std::string& joined);

  // count/save_count.cpp
  void CheckLinesAreWhole();
  void CheckQuantities();
  bool StoreLines();
  void FillRow(Recordset& rows, int row);
  bool StoreRow(Recordset& rows, int row);
  void RecalculateProducts();

  // count/supervisor_mode.cpp
  void ShowNormalMode();

  // count/date_selection.cpp
  void FocusEditorOrGrid();

  // count/change_guard.cpp
  std::int32_t AskToSave();

  ComponentState& state_;
};

/// The button sets, by the names of what is switched off.
extern const ButtonSet BotonesEnCelda;
extern const ButtonSet BotonesConLineas;
extern const ButtonSet BotonesEnReposo;
extern const ButtonSet BotonesSoloCancelar;
extern const ButtonSet BotonesBloqueados;

}  // namespace orvendal
