#include "host/library/stand_in_employee_picker.h"

#include "host/library/search_list_form.h"
#include "host/store/store_rows.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr std::size_t kCode = 0;
constexpr std::size_t kName = 1;

SearchList ReadEmployees(const HostContext& context, const ConnectionRef& store, const std::string& branch) {
  const Region& region = context.window_host.UserRegion();
  const RecordsetRef employees = ReadRows(context.recordsets, store, "SELECT Empleados.* FROM Empleados");
  // The branch of an employee is the host's own field, which a store filled by others may lack.
  const bool has_branch = HasField(*employees, "IdSucursal");
  std::vector<SearchEntry> entries;
  for (; !employees->AtEnd(); employees->MoveNext()) {
    const std::string own = has_branch ? TextOf(*employees, "IdSucursal", region) : std::string();
    const bool is_of_branch = EqualsIgnoringCase(own, branch);
    entries.push_back({{TextOf(*employees, "Codigo", region), TextOf(*employees, "Nombre", region), own},
                       is_of_branch ? 0 : 1});
  }
  return {std::move(entries), kName};
}

}  // namespace

void StandInEmployeePicker::Elegir(ConnectionRef& conexion, std::string& cod_sucursal) {
  const Words& words = context_.words;
  SearchList employees = ReadEmployees(context_, conexion, Mid(cod_sucursal, 1, 2));

  SearchQuestion question;
  question.title = for_supervisor_ ? words.supervisor_picker : words.employee_picker;
  question.columns = {{words.code, 1}, {words.name, 3}, {words.branch, 1}};
  question.ways = {{"", {kCode, kName}}};
  question.names = {kCode};
  const auto form = std::make_shared<SearchListForm>(context_.window_host, words, question, employees);
  const std::optional<std::size_t> chosen = form->Ask();
  accepted_ = chosen.has_value();
  if (!accepted_) return;
  code_ = employees.Entry(*chosen).cells[kCode];
  name_ = employees.Entry(*chosen).cells[kName];
}

}  // namespace orvendal
