#include "tests/support/form_driver.h"

#include "form/columns.h"
#include "host/store/schema.h"

namespace orvendal {
namespace {

std::shared_ptr<MemoryRecordset> Dictionary(std::vector<MemoryRecordset::NamedValue> words) {
  return std::make_shared<MemoryRecordset>(std::move(words));
}

constexpr const char* kChain = R"(
  INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('01', 'Centro'), ('02', 'Norte');
  INSERT INTO Empleados (Codigo, Nombre) VALUES ('E1', 'Ana'), ('E2', 'Berta'), ('E3', 'Carmen');
  INSERT INTO Productos (Codigo, Descripcion) VALUES
    ('P1', 'Champú suave'), ('P2', 'Crema de manos'), ('P3', 'Crema facial'), ('P4', 'Laca fuerte'),
    ('P5', 'Tinte negro');
  INSERT INTO Referencias (Referencia, IdProducto) VALUES ('8400000000017', 'P1'), ('8400000000024', 'P2');
  INSERT INTO ProdSucStock (IdSucursal, IdProducto, Stock) VALUES
    ('01', 'P1', 7), ('01', 'P2', 2.5), ('01', 'P3', 3.5), ('02', 'P5', 4);
)";

}  // namespace

void TestSession::RellenarSesion(const SessionArguments& session) {
  ++times_asked;
  if (connection) session.Conexion = connection;
  session.AnchoBase = reference_width;
  session.AltoBase = reference_height;
  session.CadenaSesion = "sesión de prueba";
  if (form1) session.FormHost1 = form1;
  if (form2) session.FormHost2 = form2;
  if (fills_dictionaries) {
    session.DiccGeneral = general;
    session.DiccAcciones = actions;
    session.DiccPantallas = screens;
  }
  if (!replaced_branch.empty()) session.CodSucursal = replaced_branch;
  if (meddle) meddle(session);
}

ScreenDriver::ScreenDriver(WindowHost& window_host, Dialect dialect, FormInput& input)
    : connection(SqliteConnection::Open(":memory:", dialect, window_host.UserRegion(), OpenMode::kCreate)),
      plain_library(window_host),
      library(plain_library, window_host),
      state{Environment{window_host, recordsets, library}},
      input_(input) {
  CreateSchema(*connection);
  connection->Execute(kChain);
  for (int number = 10; number <= 40; ++number) {
    const std::string digits = std::to_string(number);
    connection->Execute("INSERT INTO Productos (Codigo, Descripcion) VALUES ('P" + digits + "', 'Producto " +
                        digits +
                        "'); INSERT INTO ProdSucStock (IdSucursal, IdProducto, Stock) VALUES ('01', 'P" +
                        digits + "', " + digits + ");");
  }
  session->connection = connection;
  session->general = Dictionary({{"Cancelar", "Cancelar"},
                                 {"Buscar", "Buscar"},
                                 {"Datos de Interes", "Datos de Interés"},
                                 {"Estilista", "Estilista"},
                                 {"Fecha", "Fecha"},
                                 {"Codigo", "Código"},
                                 {"Descripcion", "Descripción"},
                                 {"Sucursal", "Sucursal"}});
  session->actions = Dictionary({{"Supervisor", "Supervisor"}, {"Borrar Linea", "Borrar Línea"}});
  session->screens = Dictionary({{"Orvendalciales", "Existencias iniciales"}});
}

ScreenDriver::~ScreenDriver() = default;

bool ScreenDriver::Open(const std::string& branch, const std::string& station, const std::string& shift) {
  ClassOrvendal component(state);
  return component.Orvendal(session, branch, station, shift);
}

void ScreenDriver::OpenWithStylist(const std::string& branch) {
  Open(branch);
  library.QueueEmployee({true, "E1", "Ana"});
  ClickCell(1, column::kCode);
}

void ScreenDriver::ChooseStylist(const std::string& code, const std::string& name) {
  library.QueueEmployee({true, code, name});
  Click("CmdEmpl");
}

void ScreenDriver::Click(std::string_view control) {
  Robot hands = robot();
  hands.Click(hands.Find(control));
}

void ScreenDriver::DoubleClick(std::string_view control) {
  Robot hands = robot();
  hands.DoubleClick(hands.Find(control));
}

void ScreenDriver::ClickCell(int row, int column) {
  robot().ClickCell(form().MSFProductos, row, column);
}
void ScreenDriver::DoubleClickCell(int row, int column) {
  robot().DoubleClickCell(form().MSFProductos, row, column);
}

void ScreenDriver::EnterLine(const std::string& code, const std::string& quantity) {
  const int free_row = static_cast<int>(Codes().size()) + 1;
  if (!form().TxtMSF.Visible() || form().MSFProductos.Row() != free_row ||
      form().MSFProductos.Col() != column::kCode) {
    DoubleClickCell(free_row, column::kCode);
  }
  Type(code);
  Enter();
  Type(quantity);
  Enter();
}

std::vector<std::string> ScreenDriver::Line(int row) {
  std::vector<std::string> cells;
  for (int column = 0; column < form().MSFProductos.Cols(); ++column) cells.push_back(Cell(row, column));
  return cells;
}

std::vector<std::string> ScreenDriver::Codes() {
  std::vector<std::string> codes;
  for (int row = 1; row < form().MSFProductos.Rows() && !Cell(row, column::kCode).empty(); ++row)
    codes.push_back(Cell(row, column::kCode));
  return codes;
}

std::string ScreenDriver::Focused() {
  const Control* focused = form().ActiveControl();
  return focused == nullptr ? std::string() : focused->FullName();
}

bool ScreenDriver::IsAvailable(const std::string& action) {
  const Control* caption = form().FindControl("Lbl" + action + "(0)");
  const Control* click_area = form().FindControl("Lbl" + action + "(1)");
  return caption->Enabled() && click_area->Enabled();
}

std::string ScreenDriver::Sql(const std::string& sql) {
  SqliteStatement statement(*connection, sql);
  return statement.Step() ? statement.TextAt(0) : std::string();
}

void ScreenDriver::Execute(const std::string& sql) {
  connection->Execute(sql);
}

void ScreenDriver::AddCount(const std::string& product, double before, double now,
                            const std::string& employee, const std::string& day, const std::string& branch) {
  SqliteStatement insert(
      *connection,
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual, "
      "IdEmpleado, Actualizado, ModificadoPor) VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
  insert.Bind(1, branch).Bind(2, day + " 00:00:00").Bind(3, product).Bind(4, before).Bind(5, now);
  insert.Bind(6, employee).Bind(7, day + " 09:00:00").Bind(8, branch);
  insert.Run();
}

void ScreenDriver::AddCounts(int lines) {
  for (int i = 0; i < lines; ++i) AddCount("P" + std::to_string(10 + i), i, i + 1);
}

}  // namespace orvendal
