#pragma once

#include "host/host_context.h"
#include "platform/library/library.h"

namespace orvendal {

/// The picker of an employee.
class StandInEmployeePicker final : public SelectorEmpleado {
 public:
  explicit StandInEmployeePicker(HostContext& context) : context_(context) {}

  /// True asks for a supervisor, which the title tells.
  void ParaNuevo(bool value) override { for_supervisor_ = value; }
  bool Aceptado() override { return accepted_; }
  void Aceptado(bool value) override { accepted_ = value; }
  /// The list is the only choice there is, whatever this says.
  void OpcionFija(bool) override {}
  std::string Codigo() override { return code_; }
  std::string Nombre() override { return name_; }
  void Nombre(const std::string& value) override { name_ = value; }

  /// A modal list of all employees, those of the branch first. Leaves code and name as they were if none is
  /// chosen, and the connection always.
  void Elegir(ConnectionRef& conexion, std::string& cod_sucursal) override;

 private:
  HostContext& context_;
  bool for_supervisor_ = false;
  bool accepted_ = false;
  std::string code_;
  std::string name_;
};

}  // namespace orvendal
