#include "host/stand_in_employee_picker.h"

#include "host/host_store.h"
#include "host/search_list_form.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr std::size_t kCode = 0;
constexpr std::size_t kName = 1;

int ColumnNamed(const SqliteStatement& rows, std::string_view name) {
  for (int column = 0; column < rows.ColumnCount(); ++column) {
    if (EqualsIgnoringCase(rows.ColumnName(column), name)) return column;
  }
  return -1;
}

SearchList ReadEmployees(SqliteConnection& store, const std::string& branch) {
  SqliteStatement employees(store, "SELECT Codigo, Nombre, * FROM Empleados");
  // The branch of an employee is the host's own field, which a store filled by others may lack.
  const int branch_column = ColumnNamed(employees, "IdSucursal");
  std::vector<SearchEntry> entries;
  while (employees.Step()) {
    const std::string own = branch_column < 0 ? std::string() : employees.TextAt(branch_column);
    const bool is_of_branch = EqualsIgnoringCase(own, branch);
    entries.push_back({{employees.TextAt(0), employees.TextAt(1), own}, is_of_branch ? 0 : 1});
  }
  return {std::move(entries), kName};
}

}  // namespace

void StandInEmployeePicker::Elegir(ConnectionRef& conexion, std::string& cod_sucursal) {
  const Words& words = context_.words;
  SearchList employees = ReadEmployees(EmbeddedStore(conexion), Mid(cod_sucursal, 1, 2));

  SearchQuestion question;
  question.title = for_supervisor_ ? words.supervisor_picker : words.employee_picker;
  question.columns = {{words.code, 1}, {words.name, 3}, {words.branch, 1}};
  question.ways = {{"", {kCode, kName}}};
  const auto form = std::make_shared<SearchListForm>(context_.window_host, words, question, employees);
  const std::optional<std::size_t> chosen = form->Ask();
  accepted_ = chosen.has_value();
  if (!accepted_) return;
  code_ = employees.Entry(*chosen).cells[kCode];
  name_ = employees.Entry(*chosen).cells[kName];
}

}  // namespace orvendal
