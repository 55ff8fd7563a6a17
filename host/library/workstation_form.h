#pragma once

#include "host/host_context.h"
#include "host/library/dialog_design.h"
#include "host/library/dialog_keys.h"
#include "host/store/host_store.h"

namespace orvendal {

/// The panel of the workstation: branch, workstation, shift, store, provider, whether the store answers, and
/// whether it holds the made-up chain.
/// A button opens the store anew; if that fails, the reason is shown and the connection stays, unless the
/// store turned out not to fit: then it is closed, so that nothing more is written to it. The panel comes up
/// even if the store does not answer, since that is when it is needed.
class WorkstationForm final : public Form {
 public:
  WorkstationForm(HostContext& context, ConnectionRef store, std::string puesto);

  /// The connection to go on with.
  const ConnectionRef& Store() const { return store_; }

 protected:
  void ApplyDesign() override;

 private:
  void DesignRow(int row, Label& label, std::string_view caption, TextBox& box);
  void ShowValues(std::string_view state);
  void Reconnect();
  void GiveUpStore();
  void TellWhyNot(const StoreUnavailable& error);

  HostContext& context_;
  ConnectionRef store_;
  std::string puesto_;

  TextBox TxtSucursal{*this, nullptr, "TxtSucursal"};
  TextBox TxtPuesto{*this, nullptr, "TxtPuesto"};
  TextBox TxtTurno{*this, nullptr, "TxtTurno"};
  TextBox TxtBase{*this, nullptr, "TxtBase"};
  TextBox TxtProveedor{*this, nullptr, "TxtProveedor"};
  CommandButton CmdReconectar{*this, nullptr, "CmdReconectar"};
  CommandButton CmdCerrar{*this, nullptr, "CmdCerrar"};
  Label LblSucursal{*this, nullptr, "LblSucursal"};
  Label LblPuesto{*this, nullptr, "LblPuesto"};
  Label LblTurno{*this, nullptr, "LblTurno"};
  Label LblBase{*this, nullptr, "LblBase"};
  Label LblProveedor{*this, nullptr, "LblProveedor"};
  Label LblEstado{*this, nullptr, "LblEstado"};
  Label LblMuestra{*this, nullptr, "LblMuestra"};
  DialogKeys keys_{*this};
};

}  // namespace orvendal
