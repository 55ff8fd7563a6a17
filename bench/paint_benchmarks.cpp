// Keys and painting, on the window that the native program has.

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

#include "adapters/qt/qt_canvas.h"
#include "bench/bench_screen.h"
#include "bench/comparison.h"
#include "bench/plain_painting.h"

namespace orvendal::bench {
namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

// A screen with the cursor in the middle of its day.
struct Keyboard {
  Keyboard(const Day& day, bool with_editor)
      : screen(BenchStore::WithShortHistory(), Dialect::kSqlServer, day), lines(day.lines) {
    GoToTheMiddle();
    Robot hands(screen.Form());
    if (with_editor) hands.DoubleClickCell(screen.Form().MSFProductos, lines / 2, 3);
    if (!with_editor) screen.Form().MSFProductos.SetFocus();
    screen.Paint();
  }

  // In the middle of the view, too.
  void GoToTheMiddle() {
    MSFlexGrid& grid = screen.Form().MSFProductos;
    grid.TopRow(lines / 2 - 5);
    grid.Row(lines / 2);
    screen.Paint();
  }

  void Press(Qt::Key key, const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, text);
      QApplication::sendEvent(screen.Widget(), &event);
    }
  }

  BenchScreen screen;
  int lines;
  int pressed = 0;
};

// Down and up in turns, so that the view stays.
Work ArrowInView(const Day& day, bool with_editor) {
  auto keys = std::make_shared<Keyboard>(day, with_editor);
  return {[keys] {
    keys->Press(++keys->pressed % 2 == 0 ? Qt::Key_Up : Qt::Key_Down);
    keys->screen.Paint();
  }};
}

// Down at the lower edge, so that each one moves the view by a line.
Work ArrowThatScrolls(const Day& day, bool with_editor) {
  constexpr int kMostPressed = 500;
  auto keys = std::make_shared<Keyboard>(day, with_editor);
  keys->pressed = kMostPressed;
  return {[keys] {
            keys->Press(Qt::Key_Down);
            keys->screen.Paint();
          },
          [keys] {
            if (keys->pressed++ < kMostPressed) return;
            keys->pressed = 0;
            keys->GoToTheMiddle();
            for (int i = 0; i < 15; ++i) keys->Press(Qt::Key_Down);
            keys->screen.Paint();
          }};
}

// A digit, and back.
Work KeyInTheEditor(const Day& day) {
  auto keys = std::make_shared<Keyboard>(day, true);
  return {[keys] {
            if (++keys->pressed % 2 == 0) {
              keys->Press(Qt::Key_Backspace, "\b");
            } else {
              keys->Press(Qt::Key_5, "5");
            }
          },
          [keys] { keys->screen.Paint(); }};
}

struct Picture {
  Picture() : screen(BenchStore::WithShortHistory(), Dialect::kSqlServer, kLoad3000) {}

  void Paint() {
    QPainter painter(&image);
    QtCanvas canvas(painter, fonts, 1.0);
    screen.Form().Paint(canvas, Whole());
  }
  Rect Whole() { return {0, 0, screen.Form().Width(), screen.Form().Height()}; }

  BenchScreen screen;
  QtFonts fonts;
  QImage image{kWidth, kHeight, QImage::Format_RGB32};
};

Work PaintAll() {
  auto picture = std::make_shared<Picture>();
  return {[picture] { picture->Paint(); }};
}

Work PaintTheSamePlainly() {
  auto picture = std::make_shared<Picture>();
  auto plain = std::make_shared<PlainPainting>(picture->fonts, QSize(kWidth, kHeight));
  picture->screen.Form().Paint(*plain, picture->Whole());
  picture->Paint();
  QImage painted = picture->image;
  plain->Paint(picture->image);
  if (painted != picture->image) throw std::runtime_error("the plain painting shows something else");
  return {[picture, plain] { plain->Paint(picture->image); }};
}

}  // namespace

void AddPainting(Comparison& comparison) {
  struct Way {
    const char* name;
    bool with_editor;
    Work (*work)(const Day&, bool);
  };
  for (const Way& way : {Way{"arrow", false, ArrowInView},
                         {"arrow that scrolls", false, ArrowThatScrolls},
                         {"arrow, editor open", true, ArrowInView},
                         {"arrow that scrolls, editor open", true, ArrowThatScrolls}}) {
    const std::string name = way.name;
    for (const Day& day : {kLoad3000, kLoad100000}) {
      const std::string measure = name + "/" + std::to_string(day.lines);
      comparison.Measure(measure, [way, day] { return way.work(day, way.with_editor); });
      comparison.TimeRow(name + " with repaint, " + std::to_string(day.lines) + " lines", measure, 0.4);
    }
    comparison.RatioRow(name + ", 100000 lines to 3000", name + "/100000", name + "/3000", 1.2);
  }
  for (const Day& day : {kLoad3000, kLoad100000}) {
    const std::string measure = "key/" + std::to_string(day.lines);
    comparison.Measure(measure, [day] { return KeyInTheEditor(day); });
    comparison.TimeRow("key in the editor, " + std::to_string(day.lines) + " lines", measure, 0.025);
  }
  comparison.Measure("paint/screen", PaintAll);
  comparison.Measure("paint/plain", PaintTheSamePlainly);
  comparison.RatioRow("full repaint at 1024x768: QPainter", "paint/screen", "paint/plain", 1.2);
}

}  // namespace orvendal::bench
