#include "form/frm_orvendalciales.h"

namespace orvendal {

void FrmOrvendalciales::Barra1_Minimizar() {
  GlobalForm()->WindowState(WindowState::kMinimized);
}

void FrmOrvendalciales::Barra1_Cerrar() {
  if (IsEditingQuantity()) {
    CommitQuantity();
    TxtMSF.Visible(false);
    TxtMSF.Text("");
  }
  const std::int32_t answer = HayCambios() ? AskToSave() : 0;
  if (answer == message::kCancel) return;
  // Whatever becomes of the save, the form goes.
  if (answer == message::kYes) LblGuardar_Click(0);
  orvendal::Unload(GlobalForm());
}

void FrmOrvendalciales::Form_Unload(int& /*Cancel*/) {
  ObjectRef form = state_.form;
  state_.globals.HerramientasGlobal().LiberarForm(form);
  TakeGlobalForm(form);
  std::erase(state_.unnamed_forms, shared_from_this());
}

}  // namespace orvendal
