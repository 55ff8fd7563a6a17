#include "tests/random/screen_watch.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <sstream>
#include <tuple>

#include "form/columns.h"

namespace orvendal {
namespace {

constexpr int kFewestRows = 13;  // the titles and twelve lines
constexpr double kNear = 0.01;   // twips

template <typename... Parts>
[[noreturn]] void Broken(const Parts&... parts) {
  std::ostringstream text;
  (text << ... << parts);
  throw BrokenInvariant(text.str());
}

std::vector<std::string> Row(const MSFlexGrid& grid, int row) {
  std::vector<std::string> texts;
  for (int column = 0; column < grid.Cols(); ++column) texts.push_back(grid.TextMatrix(row, column));
  return texts;
}

std::vector<std::vector<std::string>> UsedRows(const MSFlexGrid& grid) {
  std::vector<std::vector<std::string>> rows;
  for (int row = 1; row < grid.Rows() && !grid.TextMatrix(row, column::kCode).empty(); ++row) {
    rows.push_back(Row(grid, row));
  }
  return rows;
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += text + "|";
  return joined;
}

using Operation = RecordingCanvas::Operation;

auto KeyOf(const Operation& operation) {
  const auto& [kind, area, color, text] = operation;
  return std::tie(kind, area.left, area.top, area.width, area.height, color.red, color.green, color.blue,
                  text);
}
bool Precedes(const Operation& one, const Operation& other) {
  return KeyOf(one) < KeyOf(other);
}
bool IsSame(const Operation& one, const Operation& other) {
  return KeyOf(one) == KeyOf(other);
}

// Whether the rectangles together cover the area.
bool IsCovered(const Rect& area, const std::vector<Rect>& by, std::size_t from = 0) {
  if (area.IsEmpty()) return true;
  for (; from < by.size(); ++from) {
    const Rect common = area.Intersection(by[from]);
    if (common.IsEmpty()) continue;
    const Rect above{area.left, area.top, area.width, common.top - area.top};
    const Rect below{area.left, common.Bottom(), area.width, area.Bottom() - common.Bottom()};
    const Rect left{area.left, common.top, common.left - area.left, common.height};
    const Rect right{common.Right(), common.top, area.Right() - common.Right(), common.height};
    return IsCovered(above, by, from + 1) && IsCovered(below, by, from + 1) &&
           IsCovered(left, by, from + 1) && IsCovered(right, by, from + 1);
  }
  return false;
}

bool IsSurface(const Operation& operation) {
  return operation.kind == "fill" || operation.kind == "rounded" || operation.kind == "bitmap";
}

// Which surface shows at a place; nullptr for none.
const Operation* SurfaceAt(const std::vector<Operation>& painted, Point place) {
  for (auto it = painted.rbegin(); it != painted.rend(); ++it) {
    if (IsSurface(*it) && it->area.Contains(place)) return &*it;
  }
  return nullptr;
}

// A frame that is cut elsewhere than before, for the same reason.
bool HasFrameAt(const std::vector<Operation>& painted, const Operation& frame) {
  return std::any_of(painted.begin(), painted.end(), [&](const Operation& other) {
    return other.kind == frame.kind && other.color == frame.color && other.area.Intersects(frame.area);
  });
}

// A surface may be painted in other parts than before, around what hides some of it, and look the same.
bool LooksTheSame(const std::vector<Operation>& before, const std::vector<Operation>& now, const Rect& area,
                  const std::vector<Rect>& dirty) {
  constexpr int kPlaces = 8;  // each way
  for (int i = 0; i < kPlaces * kPlaces; ++i) {
    const Point place{area.left + (i % kPlaces + 0.5) * area.width / kPlaces,
                      area.top + (i / kPlaces + 0.5) * area.height / kPlaces};
    if (std::any_of(dirty.begin(), dirty.end(), [&](const Rect& rect) { return rect.Contains(place); }))
      continue;
    const Operation* one = SurfaceAt(before, place);
    const Operation* other = SurfaceAt(now, place);
    if ((one == nullptr) != (other == nullptr)) return false;
    if (one != nullptr && (one->kind != other->kind || !(one->color == other->color))) return false;
  }
  return true;
}

}  // namespace

void ScreenWatch::Look(bool moves_only) {
  const std::shared_ptr<FrmOrvendalciales> screen = world_.Screen();
  if (!screen) {
    painted_screen_ = nullptr;
    loads_seen_ = world_.loads;
    errors_seen_ = world_.host.ReportedErrors().size();
    return;
  }
  LookAtFlags(*screen);
  LookAtLines(*screen);
  LookAtCursor(*screen);
  LookAtEditor(*screen);
  LookAtFocus(*screen);
  LookAtLoad(*screen);
  LookAtPaint(*screen, moves_only);
}

void ScreenWatch::LookAtDialog(Form& dialog) {
  LookAtFocus(dialog);
  dialog.TakeDirtyRectangles();
}

void ScreenWatch::LookAtFlags(const FrmOrvendalciales& screen) {
  const FrmOrvendalciales::Variables& flags = screen.variables;
  if (flags.PintandoFila) Broken("PintandoFila is left raised");
  if (flags.MoviendoColumna) Broken("MoviendoColumna is left raised");
  if (flags.CargandoLineas) Broken("CargandoLineas is left raised");
  if (flags.FlagFechaCambio) Broken("FlagFechaCambio is left raised");
}

void ScreenWatch::LookAtLines(const FrmOrvendalciales& screen) {
  const MSFlexGrid& grid = screen.MSFProductos;
  if (grid.Cols() != column::kCount) Broken("the grid has ", grid.Cols(), " columns");
  if (screen.MSFProductos1.Cols() != column::kCount) {
    Broken("the snapshot has ", screen.MSFProductos1.Cols(), " columns");
  }
  if (grid.Rows() < kFewestRows) Broken("the grid has only ", grid.Rows(), " rows");
  std::set<std::string> codes;
  int first_free = 0;
  for (int row = 1; row < grid.Rows(); ++row) {
    const std::string code = grid.TextMatrix(row, column::kCode);
    if (code.empty()) {
      if (first_free == 0) first_free = row;
      continue;
    }
    if (first_free != 0) Broken("the lines have a gap: row ", first_free, " is free, and ", row, " is not");
    if (!codes.insert(code).second) Broken("the code ", code, " stands on two lines");
  }
  most_lines = std::max(most_lines, static_cast<int>(codes.size()));
}

void ScreenWatch::LookAtCursor(const FrmOrvendalciales& screen) {
  const MSFlexGrid& grid = screen.MSFProductos;
  if (grid.Row() < 1 || grid.Row() >= grid.Rows()) {
    Broken("the cursor is on row ", grid.Row(), " of ", grid.Rows());
  }
  if (grid.Col() < 0 || grid.Col() >= grid.Cols()) Broken("the cursor is on column ", grid.Col());
  const bool above_is_free = grid.Row() > 1 && grid.TextMatrix(grid.Row() - 1, column::kCode).empty();
  if (above_is_free) Broken("the cursor is on row ", grid.Row(), ", below the first free one");
  if (grid.TopRow() < 1 || grid.TopRow() >= grid.Rows()) Broken("the grid begins with row ", grid.TopRow());
}

void ScreenWatch::LookAtEditor(const FrmOrvendalciales& screen) {
  const TextBox& editor = screen.TxtMSF;
  if (!editor.Visible()) return;
  const MSFlexGrid& grid = screen.MSFProductos;
  if (grid.Col() == column::kPreviousQuantity) Broken("the editor is open on the previous quantity");
  if (screen.variables.editor_row != grid.Row() || screen.variables.editor_column != grid.Col()) {
    Broken("the editor was placed on ", screen.variables.editor_row, " ", screen.variables.editor_column,
           ", and the cursor is on ", grid.Row(), " ", grid.Col());
  }
  const Rect title = grid.CellRectangle(0, grid.LeftCol());
  const double cell_top = title.top + grid.RowHeight(0) + (grid.Row() - grid.TopRow()) * grid.RowHeight(1);
  const double top = grid.Top() + cell_top - 10;
  if (std::abs(editor.Top() - top) > kNear) {
    Broken("the editor's top is ", editor.Top(), ", its cell wants ", top);
  }
  if (grid.LeftCol() == 0) {
    double left = grid.Left() + title.left - 10;
    for (int column = 0; column < grid.Col(); ++column) left += grid.ColWidth(column);
    if (std::abs(editor.Left() - left) > kNear) {
      Broken("the editor's left is ", editor.Left(), ", its cell wants ", left);
    }
  }
  const double width = grid.ColWidth(grid.Col()) + 30;
  if (std::abs(editor.Width() - width) > kNear) {
    Broken("the editor is ", editor.Width(), " wide, its cell wants ", width);
  }
}

void ScreenWatch::LookAtFocus(const Form& form) {
  const Control* focused = form.ActiveControl();
  if (focused == nullptr || focused->IsFocusable()) return;
  Broken(focused->FullName(), " has the focus and cannot have it: shown ", focused->IsShown(), ", operable ",
         focused->IsOperable());
}

// What the store holds is written as the screen writes it.
void ScreenWatch::LookAtLoad(const FrmOrvendalciales& screen) {
  const bool has_loaded = world_.loads != loads_seen_;
  const bool has_failed = world_.host.ReportedErrors().size() != errors_seen_;
  loads_seen_ = world_.loads;
  errors_seen_ = world_.host.ReportedErrors().size();
  if (!has_loaded || has_failed) return;
  ++loads_compared;
  const Region& region = world_.host.UserRegion();
  const Date day = screen.Calendario.Value();
  SqliteStatement stored(world_.Store(),
                         "SELECT h.IdProducto, p.Descripcion, h.StockAnterior, h.StockActual, h.IdEmpleado, "
                         "coalesce(e.Nombre, '') FROM HistOrvendalcial h JOIN Productos p ON h.IdProducto = "
                         "p.Codigo LEFT JOIN Empleados e ON h.IdEmpleado = e.Codigo WHERE h.IdSucursal = ? "
                         "AND h.Fecha = ?");
  stored.Bind(1, world_.Session().ClaveSucursal()).Bind(2, day);
  std::vector<std::vector<std::string>> wanted;
  while (stored.Step()) {
    const auto text = [&](int column) { return region.ToText(stored.ValueAt(column)); };
    wanted.push_back(
        {text(0), text(1), text(2), text(3), text(4), text(5), region.ToText(day), text(0), text(3)});
  }
  const std::vector<std::vector<std::string>> lines = UsedRows(screen.MSFProductos);
  std::vector<std::vector<std::string>> snapshot = UsedRows(screen.MSFProductos1);
  if (lines != snapshot) Broken("after a load lines and snapshot differ");
  if (static_cast<int>(snapshot.size()) != screen.MSFProductos1.Rows() - 1) {
    Broken("the snapshot has an empty row");
  }
  std::sort(wanted.begin(), wanted.end());
  std::sort(snapshot.begin(), snapshot.end());
  if (wanted == snapshot) return;
  const auto differ = std::mismatch(wanted.begin(), wanted.end(), snapshot.begin(), snapshot.end());
  Broken("the snapshot has ", snapshot.size(), " lines, the store ", wanted.size(), "; the store's ",
         differ.first == wanted.end() ? std::string("end") : Joined(*differ.first), " against ",
         differ.second == snapshot.end() ? std::string("end") : Joined(*differ.second));
}

// Whatever looks different now has to wait for painting, or it never shows; what waits lies on the screen.
void ScreenWatch::LookAtPaint(FrmOrvendalciales& screen, bool moves_only) {
  const std::vector<Rect> dirty = screen.TakeDirtyRectangles();
  if (screen.WindowState() == WindowState::kMinimized) {  // nothing shows, and all comes back at once
    painted_screen_ = nullptr;
    return;
  }
  const Rect whole{0, 0, screen.Width(), screen.Height()};
  for (const Rect& area : dirty) {
    if (area.IsEmpty()) Broken("an empty area waits to be painted");
    const bool is_inside = area.left > -kNear && area.top > -kNear && area.Right() < whole.width + kNear &&
                           area.Bottom() < whole.height + kNear;
    if (!is_inside)
      Broken("what waits to be painted lies beyond the screen: ", area.left, " ", area.top, " ", area.width,
             " ", area.height, " of ", whole.width, " ", whole.height);
  }
  if (moves_only && !dirty.empty()) Broken("the mouse came by, and something waits to be painted");

  RecordingCanvas canvas;
  screen.Paint(canvas, whole);
  const std::vector<Operation>& now = canvas.Operations();
  if (painted_screen_ == &screen) {
    ++pictures_compared;
    const auto begin = std::mismatch(painted_.begin(), painted_.end(), now.begin(), now.end(), IsSame);
    std::vector<Operation> before(begin.first, painted_.end());
    std::vector<Operation> after(begin.second, now.end());
    std::sort(before.begin(), before.end(), Precedes);
    std::sort(after.begin(), after.end(), Precedes);
    std::vector<Operation> different;
    std::set_symmetric_difference(before.begin(), before.end(), after.begin(), after.end(),
                                  std::back_inserter(different), Precedes);
    for (const Operation& operation : different) {
      if (IsCovered(operation.area, dirty)) continue;
      if (IsSurface(operation) && LooksTheSame(painted_, now, operation.area, dirty)) continue;
      if (operation.kind == "frame" && HasFrameAt(painted_, operation) && HasFrameAt(now, operation))
        continue;
      const Rect& at = operation.area;
      Broken("a ", operation.kind, " \"", operation.text, "\" at ", at.left, " ", at.top, " ", at.width, " ",
             at.height, " came or went, and does not wait to be painted");
    }
  }
  painted_ = now;
  painted_screen_ = &screen;
}

}  // namespace orvendal
