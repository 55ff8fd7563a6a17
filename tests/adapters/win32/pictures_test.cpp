#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>

#include "form/columns.h"
#include "tests/adapters/win32/real_screen.h"
#include "tests/support/form_driver.h"
#include "tests/support/recording_canvas.h"

namespace orvendal {
namespace {

using Operation = RecordingCanvas::Operation;

/// The colours of the classic desktop while it lives, so that pictures of any system are alike.
class ClassicDesktop {
 public:
  ClassicDesktop() {
    std::array<COLORREF, kCount> classic{};
    for (int index = 0; index < kCount; ++index) {
      const auto i = static_cast<std::size_t>(index);
      indexes_[i] = index;
      before_[i] = GetSysColor(index);
      classic[i] = ClassicSystemColor(static_cast<std::uint32_t>(index));
    }
    SetSysColors(kCount, indexes_.data(), classic.data());
  }
  ~ClassicDesktop() { SetSysColors(kCount, indexes_.data(), before_.data()); }

 private:
  static constexpr int kCount = 25;
  std::array<int, kCount> indexes_{};
  std::array<COLORREF, kCount> before_{};
};

/// What stands in a window, or what it paints when it is asked for a picture.
class Picture {
 public:
  Picture(HWND window, bool from_display) : surface_(SizeOf(window).cx, SizeOf(window).cy) {
    if (from_display) {
      HideCaret(window);
      const HDC dc = GetDC(window);
      BitBlt(surface_.Dc(), 0, 0, surface_.Width(), surface_.Height(), dc, 0, 0, SRCCOPY);
      ReleaseDC(window, dc);
      ShowCaret(window);
    } else {
      SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(surface_.Dc()), PRF_CLIENT);
    }
    GdiFlush();
  }
  int Width() const { return surface_.Width(); }
  int Height() const { return surface_.Height(); }
  Rgb At(int x, int y) const {
    const std::uint32_t pixel = surface_.Row(y)[x];
    return {static_cast<std::uint8_t>(pixel >> 16), static_cast<std::uint8_t>(pixel >> 8),
            static_cast<std::uint8_t>(pixel)};
  }
  /// For those who want to see it, where the environment says so.
  void Save(const std::string& name) const {
    const char* folder = std::getenv("ORVENDAL_PICTURES");
    if (folder == nullptr) return;
    std::ofstream file(std::string(folder) + "/" + name + "_" + std::to_string(Width()) + ".ppm",
                       std::ios::binary);
    file << "P6\n" << Width() << " " << Height() << "\n255\n";
    for (int y = 0; y < Height(); ++y) {
      for (int x = 0; x < Width(); ++x) {
        const Rgb pixel = At(x, y);
        file.put(static_cast<char>(pixel.red));
        file.put(static_cast<char>(pixel.green));
        file.put(static_cast<char>(pixel.blue));
      }
    }
  }

 private:
  static SIZE SizeOf(HWND window) {
    RECT inside{};
    GetClientRect(window, &inside);
    return {inside.right, inside.bottom};
  }
  DibSurface surface_;
};

std::vector<Operation> Recorded(Form& form) {
  RecordingCanvas canvas;
  form.Paint(canvas, {0, 0, form.Width(), form.Height()});
  return canvas.Operations();
}

RECT InPixels(const Rect& area) {
  const auto round = [](double twips) { return static_cast<LONG>(std::floor(twips / kTwipsPerPixel + 0.5)); };
  return {round(area.left), round(area.top), round(area.Right()), round(area.Bottom())};
}

double Distance(Rgb a, Rgb b) {
  return std::abs(a.red - b.red) + std::abs(a.green - b.green) + std::abs(a.blue - b.blue);
}

/// The real screen and one without a display, used side by side.
class PicturesOnWindows : public ::testing::Test {
 protected:
  PicturesOnWindows() { twin.host.SetScreen(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)); }

  // Hands on both.
  void OnBoth(const std::function<void(ScreenDriver&)>& action) {
    action(real);
    action(twin);
  }
  void PickStylist() {
    OnBoth([](ScreenDriver& screen) { screen.library.QueueEmployee({true, "E1", "Ana"}); });
  }
  void Click(const std::string& name) {
    OnBoth([&](ScreenDriver& screen) { screen.Click(name); });
  }
  void Type(const std::string& text) {
    OnBoth([&](ScreenDriver& screen) { screen.Type(text); });
  }

  /// The window shows what it would paint anew, and that is what the form asked for: no part is stale, every
  /// face has its colour at its corners and its middle, every text can be seen.
  void ExpectWindowShowsForm(const std::string& state) {
    Pump();
    const Picture shown(real.Window(), true);
    const Picture painted(real.Window(), false);
    shown.Save(state);
    int stale = 0;
    for (int y = 0; y < shown.Height(); ++y) {
      for (int x = 0; x < shown.Width(); ++x) stale += shown.At(x, y) == painted.At(x, y) ? 0 : 1;
    }
    EXPECT_EQ(stale, 0) << state;
    const std::vector<Operation> all = Recorded(real.form());
    int faces = 0, texts = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (all[i].kind == "fill") faces += ExpectFace(shown, all, i);
      if (all[i].kind == "text") texts += ExpectText(shown, all, i);
    }
    EXPECT_GT(faces, 100) << state;
    EXPECT_GT(texts, 10) << state;
  }

  /// Both screens paint the same in the same places. Texts may be a little wider or narrower.
  void ExpectLikeTheTwin(const std::string& state) {
    const std::vector<Operation> here = Recorded(real.form());
    const std::vector<Operation> there = Recorded(twin.form());
    ASSERT_EQ(here.size(), there.size()) << state;
    for (std::size_t i = 0; i < here.size(); ++i) {
      const std::string what = state + " " + std::to_string(i) + " " + here[i].kind + " " + here[i].text;
      EXPECT_EQ(here[i].kind, there[i].kind) << what;
      EXPECT_EQ(here[i].text, there[i].text) << what;
      EXPECT_EQ(here[i].color, there[i].color) << what;
      const double slack = 8 * kTwipsPerPixel + 0.15 * there[i].area.width;
      EXPECT_NEAR(here[i].area.left, there[i].area.left, slack) << what;
      EXPECT_NEAR(here[i].area.top, there[i].area.top, slack) << what;
      EXPECT_NEAR(here[i].area.width, there[i].area.width, slack) << what;
      EXPECT_NEAR(here[i].area.height, there[i].area.height, slack) << what;
    }
  }

  ClassicDesktop desktop;
  RealScreen real;
  FormDriver twin;

 private:
  static bool IsCoveredLater(const std::vector<Operation>& all, std::size_t index, Point place) {
    for (std::size_t later = index + 1; later < all.size(); ++later) {
      const Rect area = all[later].area;
      if (Rect{area.left - kTwipsPerPixel, area.top - kTwipsPerPixel, area.width + 2 * kTwipsPerPixel,
               area.height + 2 * kTwipsPerPixel}
              .Contains(place)) {
        return true;
      }
    }
    return false;
  }

  // How many of its places could be looked at.
  static int ExpectFace(const Picture& shown, const std::vector<Operation>& all, std::size_t index) {
    const RECT pixels = InPixels(all[index].area);
    const LONG right = pixels.right - 1, bottom = pixels.bottom - 1;
    const POINT places[] = {{pixels.left, pixels.top},
                            {right, pixels.top},
                            {pixels.left, bottom},
                            {right, bottom},
                            {(pixels.left + right) / 2, (pixels.top + bottom) / 2}};
    int seen = 0;
    for (const POINT& place : places) {
      const Point middle{(place.x + 0.5) * kTwipsPerPixel, (place.y + 0.5) * kTwipsPerPixel};
      if (place.x < pixels.left || place.y < pixels.top || place.x >= shown.Width() ||
          place.y >= shown.Height() || IsCoveredLater(all, index, middle)) {
        continue;
      }
      ++seen;
      EXPECT_EQ(shown.At(place.x, place.y), all[index].color) << index << " at " << place.x << " " << place.y;
    }
    return seen;
  }

  static int ExpectText(const Picture& shown, const std::vector<Operation>& all, std::size_t index) {
    const Operation& text = all[index];
    const RECT pixels = InPixels(text.area);
    if (text.text.find_first_not_of(' ') == std::string::npos) return 0;
    double nearest = 3 * 255;
    for (LONG y = std::max(0L, pixels.top); y < std::min<LONG>(pixels.bottom, shown.Height()); ++y) {
      for (LONG x = std::max(0L, pixels.left); x < std::min<LONG>(pixels.right, shown.Width()); ++x) {
        if (IsCoveredLater(all, index, {(x + 0.5) * kTwipsPerPixel, (y + 0.5) * kTwipsPerPixel})) return 0;
        nearest = std::min(nearest, Distance(shown.At(x, y), text.color));
      }
    }
    EXPECT_LT(nearest, 120) << text.text;
    return 1;
  }
};

// The screen names a family that few systems have.
TEST_F(PicturesOnWindows, TheLettersTakeTheRoomThatTheScreenWasDrawnFor) {
  for (const double points : {7.75, 9.75, 12.0, 14.25}) {
    const FontSpec font{"Bookman Old Style", points, 600, false};
    for (const char* text :
         {"Supervisor", "Borrar Línea", "Cancelar", "  Sucursal 01 Centro  ", "Cant.Actual"}) {
      const double drawn = twin.host.TextWidth(font, text);
      EXPECT_NEAR(real.host.TextWidth(font, text), drawn, 0.05 * drawn + kTwipsPerPixel)
          << text << " " << points;
    }
  }
}

TEST_F(PicturesOnWindows, TheScreenOfEachStateIsShownInFullAndLikeTheOneWithoutADisplay) {
  OnBoth([](ScreenDriver& screen) { screen.Open(); });
  Pump();
  ExpectWindowShowsForm("start");
  ExpectLikeTheTwin("start");

  PickStylist();
  OnBoth([](ScreenDriver& screen) {
    screen.ClickCell(1, column::kCode);
    screen.DoubleClickCell(1, column::kCode);
  });
  Type("P10\n12\nP11\n");
  ASSERT_EQ(real.form().TxtMSF.Text(), "11");
  ExpectWindowShowsForm("editor");
  ExpectLikeTheTwin("editor");

  Type("3\n");
  OnBoth([](ScreenDriver& screen) { screen.Key(key::kEscape); });
  PickStylist();
  Click("LblNuevo");
  ASSERT_TRUE(real.form().LblSupervisor.Visible());
  ExpectWindowShowsForm("supervisor");
  ExpectLikeTheTwin("supervisor");

  Click("MkFecha");
  ASSERT_TRUE(real.form().PicCalendario.Visible());
  ExpectWindowShowsForm("calendar");
  ExpectLikeTheTwin("calendar");
  EXPECT_TRUE(real.errors.empty());
}

}  // namespace
}  // namespace orvendal
