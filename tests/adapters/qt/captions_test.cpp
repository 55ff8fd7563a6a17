#include <QImage>
#include <QPainter>
#include <cmath>
#include <type_traits>

#include "adapters/headless/headless_host.h"
#include "adapters/qt/qt_canvas.h"
#include "adapters/qt/qt_picture.h"
#include "adapters/qt/qt_text_measures.h"
#include "adapters/sqlite/sqlite_store.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "host/dictionaries.h"
#include "host/sample_schema.h"
#include "tests/adapters/qt/qt_fixture.h"
#include "tests/support/plain_library.h"

namespace orvendal {
namespace {

constexpr QSize kDisplays[] = {{640, 480},   {800, 600},   {1024, 768},  {1280, 720},
                               {1366, 768},  {1280, 1024}, {1600, 1200}, {1920, 1080},
                               {2560, 1440}, {3440, 1440}, {3840, 2160}};
constexpr double kScales[] = {1.0, 1.25, 1.5, 2.0};
constexpr Language kLanguages[] = {Language::kSpanish, Language::kCatalan, Language::kEnglish};

// What is painted goes nowhere but for the texts: each is drawn once as it is clipped on the form and once
// with all the room that it wants, and what clip and windows in front take away is noted.
class CutTexts final : public Canvas {
 public:
  CutTexts(const Form& form, QtFonts& fonts, double scale) : form_(form), fonts_(fonts), scale_(scale) {}

  const std::vector<std::string>& Seen() const { return seen_; }
  /// As "text by N", N columns of pixels of which something is missing.
  const std::vector<std::string>& Cut() const { return cut_; }

  void FillRectangle(const Rect&, Rgb) override {}
  void FrameRectangle(const Rect&, Rgb, double) override {}
  void FocusRectangle(const Rect&) override {}
  void RoundedRectangle(const Rect&, double, std::optional<Rgb>, Rgb, double) override {}
  void DrawLine(Point, Point, Rgb, double) override {}
  void FillPolygon(const std::vector<Point>&, Rgb) override {}
  void DrawBitmap(Point, const Bitmap&, const Rect&) override {}

  void DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb, HorizontalAlign horizontal,
                VerticalAlign vertical) override {
    if (IsInBox()) return;
    constexpr double kRoom = 400 * kTwipsPerPixel;
    const Rect place = box.Moved(levels_.back().origin.x, levels_.back().origin.y);
    Rect roomy = place;
    roomy.width += kRoom;
    if (horizontal == HorizontalAlign::kRight) roomy.left -= kRoom;
    if (horizontal == HorizontalAlign::kCenter)
      roomy = {place.left - kRoom, place.top, place.width + 2 * kRoom, 0};
    roomy.height = place.height + kRoom;
    if (vertical == VerticalAlign::kBottom) roomy.top -= kRoom;
    if (vertical == VerticalAlign::kCenter) {
      roomy.top = place.top - kRoom;
      roomy.height = place.height + 2 * kRoom;
    }
    const std::string name(text);
    seen_.push_back(name);
    const int columns = Lost(Draw(place, place.Intersection(levels_.back().clip), text, font, horizontal,
                                  vertical, place, Covers()),
                             Draw(roomy, roomy, text, font, horizontal, vertical, place, {}));
    if (columns > 0) cut_.push_back(name + " by " + std::to_string(columns));
  }

  void Push(Point origin, const Rect& clip) override {
    if (levels_.empty()) {
      levels_.push_back({origin, clip});
      return;
    }
    const Level& outer = levels_.back();
    levels_.push_back({{outer.origin.x + origin.x, outer.origin.y + origin.y},
                       clip.Moved(outer.origin.x, outer.origin.y).Intersection(outer.clip)});
  }
  void Pop() override { levels_.pop_back(); }

 private:
  struct Level {
    Point origin;
    Rect clip;
  };

  // What stands in a box was typed or read, and may be longer or higher than it.
  bool IsInBox() const {
    return std::any_of(form_.Controls().begin(), form_.Controls().end(), [this](const Control* control) {
      const Rect bounds = control->Bounds();
      return control->Kind() == ControlKind::kTextBox &&
             Point{bounds.left, bounds.top} == levels_.back().origin;
    });
  }

  // The windows that stand in front of the label that is being painted.
  std::vector<Rect> Covers() const {
    for (const Control* label : form_.Controls()) {
      const Rect bounds = label->Bounds();
      if (label->Kind() != ControlKind::kLabel || Point{bounds.left, bounds.top} != levels_.back().origin)
        continue;
      std::vector<Rect> covers;
      for (const Control* other : form_.Controls()) {
        const bool in_front = other->Container() == label->Container() && !other->IsLightweight();
        if (in_front && other->Visible()) covers.push_back(other->Bounds());
      }
      return covers;
    }
    return {};
  }

  // Both pictures of a text show the same part of the form: `place` and 40 pixels around it.
  QImage Draw(const Rect& box, const Rect& clip, std::string_view text, const FontSpec& font,
              HorizontalAlign horizontal, VerticalAlign vertical, const Rect& place,
              const std::vector<Rect>& covers) {
    constexpr int kAround = 40;
    const double pixels_per_twip = scale_ / kTwipsPerPixel;
    const int left = static_cast<int>(std::floor(place.left * pixels_per_twip)) - kAround;
    const int top = static_cast<int>(std::floor(place.top * pixels_per_twip)) - kAround;
    QImage image(static_cast<int>(place.width * pixels_per_twip) + 2 * kAround,
                 static_cast<int>(place.height * pixels_per_twip) + 2 * kAround, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtCanvas canvas(painter, fonts_, scale_, {-left / pixels_per_twip, -top / pixels_per_twip});
    canvas.Push({0, 0}, clip);
    canvas.DrawText(box, text, font, {0, 0, 0}, horizontal, vertical);
    canvas.Pop();
    for (const Rect& cover : covers) canvas.FillRectangle(cover, {255, 255, 255});
    return image;
  }

  // Columns and rows of pixels of which something is missing.
  static int Lost(const QImage& clipped, const QImage& whole) {
    int lost = 0;
    for (int x = 0; x < whole.width(); ++x) {
      bool same = true;
      for (int y = 0; same && y < whole.height(); ++y) same = clipped.pixel(x, y) == whole.pixel(x, y);
      lost += same ? 0 : 1;
    }
    return lost;
  }

  const Form& form_;
  QtFonts& fonts_;
  double scale_;
  std::vector<Level> levels_;
  std::vector<std::string> seen_;
  std::vector<std::string> cut_;
};

class Session final : public DatosClase {
 public:
  Session(ConnectionRef connection, Dictionaries words)
      : connection_(std::move(connection)), words_(std::move(words)) {}
  void RellenarSesion(const SessionArguments& session) override {
    session.Conexion = connection_;
    session.AnchoBase = 15360;
    session.AltoBase = 11520;
    session.DiccGeneral = words_.general;
    session.DiccAcciones = words_.acciones;
    session.DiccPantallas = words_.pantallas;
  }

 private:
  ConnectionRef connection_;
  Dictionaries words_;
};

/// The screen on a host of windows, with everything visible that has a caption.
template <typename Host>
class ScreenOf {
 public:
  template <typename... Arguments>
  explicit ScreenOf(QSize display, Language language, Arguments&&... arguments)
      : host(Region::Spanish(), clock, std::forward<Arguments>(arguments)...) {
    if constexpr (std::is_same_v<Host, HeadlessHost>) host.SetScreen(display.width(), display.height());
    const auto store =
        SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
    CreateSchema(*store);
    store->Execute("INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('01', 'Centro')");
    ClassOrvendal component(state_);
    component.Orvendal(std::make_shared<Session>(store, MakeDictionaries(language)), "01", "1", "1");
    form().BtnAnuloSuper.Visible(true);
    form().LblSupervisor.Visible(true);
  }
  ~ScreenOf() {
    form().Unload();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  FrmOrvendalciales& form() { return *state_.form; }

  StillClock clock;
  Host host;

 private:
  PlainLibrary library_{host};
  SqliteRecordsetFactory recordsets_;
  ComponentState state_{Environment{host, recordsets_, library_}};
};

QtHostOptions Playing(QSize display) {
  QtHostOptions options;
  options.display = display;
  return options;
}

/// As a window shows it.
struct WindowScreen final : ScreenOf<QtWindowHost> {
  WindowScreen(QSize display, Language language) : ScreenOf(display, language, Playing(display)) {}
};
/// As a script shows it, laid out by numbers that every machine shares.
struct ScriptScreen final : ScreenOf<HeadlessHost> {
  ScriptScreen(QSize display, Language language) : ScreenOf(display, language) {}
};

std::string Named(QSize display, Language language, double scale) {
  return std::to_string(display.width()) + "x" + std::to_string(display.height()) + " language " +
         std::to_string(static_cast<int>(language)) + " scale " + std::to_string(scale);
}

TEST(Captions, NoneIsCutOnAnyDisplayInAnyLanguageAtAnyScale) {
  for (const QSize display : kDisplays) {
    for (const Language language : kLanguages) {
      WindowScreen screen(display, language);
      for (const double scale : kScales) {
        CutTexts texts(screen.form(), screen.host.Fonts(), scale);
        screen.form().Paint(texts, {0, 0, screen.form().Width(), screen.form().Height()});
        EXPECT_GE(texts.Seen().size(), 15U);
        EXPECT_EQ(texts.Cut(), std::vector<std::string>()) << Named(display, language, scale);
      }
    }
  }
}

TEST(ScriptPictures, NoCaptionIsCut) {
  for (const QSize display : {QSize(640, 480), QSize(1024, 768), QSize(1920, 1080)}) {
    for (const Language language : kLanguages) {
      ScriptScreen screen(display, language);
      QtFonts fonts;
      QtTextMeasures measures(fonts);
      const HeadlessHost::MeasuredBy painting(screen.host, measures);
      CutTexts texts(screen.form(), fonts, 1.0);
      screen.form().Paint(texts, {0, 0, screen.form().Width(), screen.form().Height()});
      EXPECT_GE(texts.Seen().size(), 15U);
      EXPECT_EQ(texts.Cut(), std::vector<std::string>()) << Named(display, language, 1.0);
    }
  }
}

// With other fonts than those that the numbers were taken from, the widths of labels differ.
bool HasTheFontsOfTheNumbers() {
  return QtFonts::FamilyFor("Bookman Old Style") == "URW Bookman" &&
         (QtFonts::FamilyFor("MS Sans Serif") == "Nimbus Sans");
}

TEST(ScriptPictures, APictureIsWhatAWindowShows) {
  if (!HasTheFontsOfTheNumbers()) GTEST_SKIP() << "the fonts URW Bookman and Nimbus Sans are not installed";
  for (const QSize display : kDisplays) {
    for (const Language language : kLanguages) {
      WindowScreen window(display, language);
      ScriptScreen script(display, language);
      QtTextMeasures measures(window.host.Fonts());
      const HeadlessHost::MeasuredBy painting(script.host, measures);
      const QImage shown = RenderForm(window.form(), window.host.Fonts());
      const QImage saved = RenderForm(script.form(), window.host.Fonts());
      ASSERT_EQ(shown.size(), saved.size());
      int different = 0;
      for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) different += shown.pixel(x, y) == saved.pixel(x, y) ? 0 : 1;
      }
      EXPECT_EQ(different, 0) << Named(display, language, 1.0);
    }
  }
}

}  // namespace
}  // namespace orvendal
