#include "bench/bench_screen.h"

#include <QApplication>
#include <stdexcept>

#include "host/sample/dictionaries.h"

namespace orvendal::bench {
namespace {

QtHostOptions HostOptions() {
  QtHostOptions options;
  options.display = QSize(1024, 768);
  options.on_error = [](const RuntimeError& error) { throw std::runtime_error(error.Description()); };
  return options;
}

}  // namespace

class BenchScreen::Session final : public DatosClase {
 public:
  explicit Session(ConnectionRef connection) : connection_(std::move(connection)) {}

  void RellenarSesion(const SessionArguments& session) override {
    session.Conexion = connection_;
    session.AnchoBase = 15360;
    session.AltoBase = 11520;
    const Dictionaries words = MakeDictionaries(Language::kSpanish);
    session.DiccGeneral = words.general;
    session.DiccAcciones = words.acciones;
    session.DiccPantallas = words.pantallas;
  }

 private:
  ConnectionRef connection_;
};

BenchScreen::BenchScreen(const BenchStore& store, Dialect dialect, const Day& day)
    : host_(Region::Spanish(), clock_, HostOptions()),
      connection_(SqliteConnection::Open(store.Path(), dialect, Region::Spanish(), OpenMode::kExisting)),
      state_(Environment{host_, recordsets_, library_}) {
  ClassOrvendal(state_).Orvendal(std::make_shared<Session>(connection_), day.branch, "P1", "T1");
  ChooseStylist();
  QApplication::processEvents();
  CheckLines(day.lines);
}

BenchScreen::~BenchScreen() {
  Form().Unload();
}

void BenchScreen::ChooseStylist() {
  Form().TxtEmpleado.Text("Ana");
  Form().TxtCodigo.Text("E1");
}

void BenchScreen::OpenEditor() {
  MSFlexGrid& grid = Form().MSFProductos;
  Form().TxtMSF.Visible(false);
  grid.Col(0);
  grid.Row(grid.Rows() - 1);
  Robot(Form()).DoubleClickCell(grid, grid.Row(), 0);
}

void BenchScreen::Paint() {
  QApplication::processEvents();
}

void BenchScreen::CheckLines(int lines) {
  if (Form().MSFProductos1.Rows() != lines + 1) throw std::runtime_error("lines are missing");
}

}  // namespace orvendal::bench
