#pragma once

#include <vector>

#include "host/host_context.h"
#include "host/library/branch_names.h"
#include "host/library/dialog_design.h"
#include "host/library/dialog_keys.h"
#include "host/library/row_choice.h"

namespace orvendal {

/// The dialog that changes branch, workstation and shift. Enter accepts, Esc cancels.
class SessionChangeForm final : public Form {
 public:
  struct Session {
    std::string sucursal;
    std::string puesto;
    std::string turno;
  };

  SessionChangeForm(HostContext& context, std::vector<BranchName> branches, Session session);

  bool Accepted() const { return accepted_; }
  /// What was chosen. The branch code stays whole, also what follows its key, unless another branch was
  /// taken.
  const Session& Chosen() const { return session_; }

 protected:
  void ApplyDesign() override;

 private:
  void FillBranches();
  void Accept();

  HostContext& context_;
  std::vector<BranchName> branches_;
  Session session_;
  bool accepted_ = false;

  MSFlexGrid MSFSucursales{*this, nullptr, "MSFSucursales"};
  TextBox TxtPuesto{*this, nullptr, "TxtPuesto"};
  TextBox TxtTurno{*this, nullptr, "TxtTurno"};
  CommandButton CmdAceptar{*this, nullptr, "CmdAceptar"};
  CommandButton CmdCancelar{*this, nullptr, "CmdCancelar"};
  Label LblPuesto{*this, nullptr, "LblPuesto"};
  Label LblTurno{*this, nullptr, "LblTurno"};
  RowChoice choice_{MSFSucursales};
  DialogKeys keys_{*this};
};

}  // namespace orvendal
