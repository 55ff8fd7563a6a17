#include "tests/windows/win32/real_screen.h"

#include "host/store/schema.h"
#include "platform/data/memory_recordset.h"

namespace orvendal {
namespace {

class FixedSession final : public DatosClase {
 public:
  explicit FixedSession(RealScreen& screen) : screen_(screen) {}

  void RellenarSesion(const SessionArguments& session) override {
    const auto words = [](std::vector<MemoryRecordset::NamedValue> row) {
      return std::make_shared<MemoryRecordset>(std::move(row));
    };
    session.Conexion = screen_.store;
    session.AnchoBase = 15360;
    session.AltoBase = 11520;
    session.DiccGeneral = words({{"Cancelar", "Cancelar"},
                                 {"Buscar", "Buscar"},
                                 {"Datos de Interes", "Datos de Interés"},
                                 {"Estilista", "Estilista"},
                                 {"Fecha", "Fecha"},
                                 {"Codigo", "Código"},
                                 {"Descripcion", "Descripción"},
                                 {"Sucursal", "Sucursal"}});
    session.DiccAcciones = words({{"Supervisor", "Supervisor"}, {"Borrar Linea", "Borrar Línea"}});
    session.DiccPantallas = words({{"Orvendalciales", "Existencias iniciales"}});
  }

 private:
  RealScreen& screen_;
};

}  // namespace

RealScreen::RealScreen()
    : host(Options()),
      store(SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate)) {
  CreateSchema(*store);
  store->Execute(
      "INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('01', 'Centro'), ('02', 'Norte');"
      "INSERT INTO Empleados (Codigo, Nombre) VALUES ('E1', 'Ana'), ('E2', 'Berta'), ('E3', 'Carmen');");
  for (int number = 1; number <= 40; ++number) {
    const std::string digits = std::to_string(number);
    store->Execute("INSERT INTO Productos (Codigo, Descripcion) VALUES ('P" + digits + "', 'Producto " +
                   digits + "'); INSERT INTO ProdSucStock (IdSucursal, IdProducto, Stock) VALUES ('01', 'P" +
                   digits + "', " + digits + ");");
  }
}

RealScreen::~RealScreen() {
  if (state.form && state.form->IsLoaded()) {
    state.form->OnUnload = nullptr;
    state.form->Unload();
  }
  Pump();
}

Win32HostOptions RealScreen::Options() {
  Win32HostOptions options;
  options.region = &Region::Spanish();
  options.clock = &clock;
  options.on_error = [this](const RuntimeError& error) { errors.push_back(error); };
  return options;
}

void RealScreen::Open() {
  ClassOrvendal component(state);
  component.Orvendal(std::make_shared<FixedSession>(*this), "01", "P1", "T1");
  Pump();
}

std::string RealScreen::Sql(const std::string& statement) {
  const RecordsetRef rows = recordsets.NewRecordset();
  rows->Open(statement, store, CursorType::kStatic, LockType::kReadOnly, -1);
  if (rows->State() == kStateClosed || rows->AtEnd()) return "";
  const Value value = rows->Fields(rows->FieldName(0)).Value();
  return value.IsNull() ? "" : Region::Spanish().ToText(value);
}

void RealScreen::ClickAt(Point place, bool twice) {
  const HWND window = Window();
  const LPARAM at =
      MAKELPARAM(static_cast<int>(place.x / kTwipsPerPixel), static_cast<int>(place.y / kTwipsPerPixel));
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at);
  PostMessageW(window, WM_LBUTTONUP, 0, at);
  if (twice) {
    PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, at);
    PostMessageW(window, WM_LBUTTONUP, 0, at);
  }
  Pump();
}

void RealScreen::Click(const Control& control) {
  const Rect bounds = control.Bounds();
  ClickAt({bounds.left + bounds.width / 2, bounds.top + bounds.height / 2});
}

void RealScreen::ClickCell(int row, int column, bool twice) {
  const Rect grid = Screen().MSFProductos.Bounds();
  const Rect cell = Screen().MSFProductos.CellRectangle(row, column);
  ClickAt({grid.left + cell.left + cell.width / 2, grid.top + cell.top + cell.height / 2}, twice);
}

void RealScreen::Type(const std::wstring& text) {
  for (const wchar_t unit : text) {
    const SHORT key = VkKeyScanW(unit);
    PostMessageW(Window(), WM_KEYDOWN, static_cast<WPARAM>(key & 0xFF), 1);
    PostMessageW(Window(), WM_CHAR, unit, 1);
    PostMessageW(Window(), WM_KEYUP, static_cast<WPARAM>(key & 0xFF), static_cast<LPARAM>(0xC0000001));
    // No TranslateMessage: the characters have been posted already, capitals without a Shift key.
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
}

}  // namespace orvendal
