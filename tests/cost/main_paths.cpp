// One of the main paths, to be run under callgrind: what is counted is MeasuredWork and nothing else.
// Everything lies in memory and nothing depends on the machine, so that the same program does the same
// instructions.

#include <sqlite3.h>

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

#include "tests/support/form_driver.h"

/// The name by which callgrind is told when to count.
extern "C" __attribute__((noinline)) void MeasuredWork(const std::function<void()>& work) {
  work();
}

namespace orvendal {
namespace {

constexpr int kLines = 300;

// What the counts depend on besides the sources.
#define ORVENDAL_TEXT_OF(number) #number
#define ORVENDAL_NUMBER(number) ORVENDAL_TEXT_OF(number)
#ifdef __clang__
constexpr const char* kCompiler = "clang " ORVENDAL_NUMBER(__clang_major__);
#else
constexpr const char* kCompiler = "gcc " ORVENDAL_NUMBER(__GNUC__);
#endif

std::string ProductCode(int number) {
  return "B" + std::to_string(100'000 + number);
}

/// A surface on which nothing is to be seen.
class BlindCanvas final : public Canvas {
 public:
  void FillRectangle(const Rect&, Rgb) override { ++operations; }
  void FrameRectangle(const Rect&, Rgb, double) override { ++operations; }
  void FocusRectangle(const Rect&) override { ++operations; }
  void RoundedRectangle(const Rect&, double, std::optional<Rgb>, Rgb, double) override { ++operations; }
  void DrawLine(Point, Point, Rgb, double) override { ++operations; }
  void FillPolygon(const std::vector<Point>&, Rgb) override { ++operations; }
  void DrawText(const Rect&, std::string_view, const FontSpec&, Rgb, HorizontalAlign,
                VerticalAlign) override {
    ++operations;
  }
  void DrawBitmap(Point, const Bitmap&, const Rect&) override { ++operations; }
  void Push(Point, const Rect&) override { ++operations; }
  void Pop() override {}

  int operations = 0;
};

/// A screen on a day of some lines, with a stylist.
class Screen {
 public:
  Screen() {
    SqliteConnection& store = *driver_.connection;
    store.Execute("BEGIN");
    SqliteStatement product(store, "INSERT INTO Productos (Codigo, Descripcion) VALUES (?, ?)");
    for (int line = 0; line < 2 * kLines; ++line) {
      const std::string code = ProductCode(line);
      product.Bind(1, code).Bind(2, "Producto número " + std::to_string(line)).Run();
      if (line < kLines) driver_.AddCount(code, line, line + 1);
    }
    store.Execute("COMMIT");
    ClassOrvendal(state_).Orvendal(driver_.session, "01", "P1", "T1");
    form().TxtEmpleado.Text("Ana");
    form().TxtCodigo.Text("E1");
  }

  FrmOrvendalciales& form() { return *state_.form; }

  void Scan(int product) { Robot(form()).Type(ProductCode(product) + "\n5\n"); }

 private:
  FormDriver driver_;
  SqliteRecordsetFactory recordsets_;
  ComponentState state_{Environment{driver_.host, recordsets_, driver_.plain_library}};
};

// False for a path that is none, or one that did not do what it is for.
bool Take(std::string_view path) {
  Screen screen;
  FrmOrvendalciales& form = screen.form();
  MSFlexGrid& grid = form.MSFProductos;
  if (path == "load") {
    MeasuredWork([&] { form.CargarExistencias(); });
    return grid.Row() == kLines;
  }
  if (path == "save") {
    MeasuredWork([&] { form.LblGuardar_Click(0); });
    return grid.Row() == kLines && form.TxtEmpleado.Text().empty();
  }
  if (path == "scan") {
    Robot(form).DoubleClickCell(grid, grid.Rows() - 1, 0);
    screen.Scan(kLines);
    MeasuredWork([&] { screen.Scan(kLines + 1); });
    return grid.Row() == kLines + 3 && grid.TextMatrix(kLines + 2, 3) == "5";
  }
  if (path == "repaint") {
    BlindCanvas canvas;
    const Rect whole{0, 0, form.Width(), form.Height()};
    form.Paint(canvas, whole);
    canvas.operations = 0;
    MeasuredWork([&] { form.Paint(canvas, whole); });
    return canvas.operations > 100;
  }
  return false;
}

}  // namespace
}  // namespace orvendal

int main(int argument_count, char** arguments) {
  if (argument_count == 2 && std::string_view(arguments[1]) == "build") {
    std::printf("%s, SQLite %s\n", orvendal::kCompiler, sqlite3_libversion());
    return 0;
  }
  if (argument_count == 2 && orvendal::Take(arguments[1])) return 0;
  std::fputs("usage: cost_main_paths build | load | save | scan | repaint\n", stderr);
  return 1;
}
