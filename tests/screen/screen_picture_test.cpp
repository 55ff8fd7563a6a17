#include <gtest/gtest.h>

#include "tests/support/form_driver.h"
#include "tests/support/recording_canvas.h"

namespace orvendal {
namespace {

using Operation = RecordingCanvas::Operation;

class ScreenPictureTest : public testing::Test {
 protected:
  ScreenPictureTest() {
    screen.Open();
    screen.form().Paint(canvas, {0, 0, screen.form().Width(), screen.form().Height()});
  }
  /// Place of a rounded shape among what was painted; fails the test if it was not.
  std::size_t PlaceOf(const Shape& shape) {
    const Rect edge = shape.Bounds().Deflated(shape.BorderWidth() * 15 / 2.0);
    const std::vector<Operation>& all = canvas.Operations();
    for (std::size_t i = 0; i < all.size(); ++i) {
      const bool is_here = all[i].area.left == edge.left && all[i].area.top == edge.top;
      if (all[i].kind == "rounded" && is_here) return i;
    }
    ADD_FAILURE() << shape.FullName() << " was not painted";
    return 0;
  }
  std::size_t PlaceOfText(const std::string& text) {
    const std::vector<Operation>& all = canvas.Operations();
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (all[i].kind == "text" && all[i].text == text) return i;
    }
    ADD_FAILURE() << text << " was not painted";
    return 0;
  }
  bool Shows(const std::string& text) {
    const std::vector<std::string> texts = canvas.Texts();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }

  FormDriver screen;
  RecordingCanvas canvas;
};

TEST_F(ScreenPictureTest, TheBackgroundLiesBehindTheButtonsAtItsOwnSizeAndIsClipped) {
  // What PicDatos hides of it is not painted: a part lies above it, and one below.
  std::vector<double> tops;
  for (const Operation& operation : canvas.Operations()) {
    if (operation.kind != "bitmap") continue;
    tops.push_back(operation.area.top);
    EXPECT_EQ(operation.area.left, 15);               // inside the border of PicServicios
    EXPECT_EQ(operation.area.width, 15360 - 2 * 15);  // 1149 pixels are cut
  }
  const Rect hiding = screen.form().PicDatos.Bounds();
  EXPECT_EQ(tops, (std::vector<double>{555 + 15, hiding.top + hiding.height}));
  const std::size_t bitmap = static_cast<std::size_t>(
      std::find_if(canvas.Operations().begin(), canvas.Operations().end(),
                   [](const Operation& operation) { return operation.kind == "bitmap"; }) -
      canvas.Operations().begin());
  EXPECT_LT(bitmap, PlaceOf(screen.form().DivNuevo_0));
}

TEST_F(ScreenPictureTest, OfAButtonTheFaceLiesOverTheRimAndTheCaptionOverBoth) {
  const std::size_t rim = PlaceOf(screen.form().DivNuevo_0);
  const std::size_t face = PlaceOf(screen.form().DivNuevo_1);
  const std::size_t caption = PlaceOfText("Supervisor");
  EXPECT_LT(rim, face);
  EXPECT_LT(face, caption);
}

TEST_F(ScreenPictureTest, TheDataPanelPartlyCoversTheBar) {
  const Rect bar = screen.form().DivOrden.Bounds();
  const Rect panel = screen.form().PicDatos.Bounds();
  EXPECT_TRUE(bar.Intersects(panel));
  EXPECT_LT(bar.top, panel.top);
  EXPECT_LT(PlaceOf(screen.form().DivOrden), PlaceOfText("  Fecha"));
}

TEST_F(ScreenPictureTest, HiddenControlsDoNotShow) {
  EXPECT_FALSE(Shows("Anulo Supervisor"));
  EXPECT_FALSE(Shows("CantidadActual"));  // the snapshot grid
  EXPECT_FALSE(Shows("Label4"));
  EXPECT_TRUE(Shows("Cant.Actual"));
  EXPECT_TRUE(Shows("Orvendal"));
  EXPECT_TRUE(Shows("16/11/2026"));
}

TEST_F(ScreenPictureTest, ThePressReachesTheFrontOneOfEachPairAndTheBoxesOverTheFrames) {
  const auto at = [this](const Control& control) {
    const Control* hit = screen.form().ControlAt(screen.robot().MiddleOf(control));
    return hit == nullptr ? std::string() : hit->FullName();
  };
  EXPECT_EQ(at(screen.form().LblNuevo_0), "LblNuevo(1)");
  EXPECT_EQ(at(screen.form().LblCancelar_0), "LblCancelar(0)");
  EXPECT_EQ(at(screen.form().Shape1), "MSFProductos");
  EXPECT_EQ(at(screen.form().TxtFechaHora), "TxtFechaHora");
  EXPECT_EQ(at(screen.form().DivOrden), "PicServicios");
}

}  // namespace
}  // namespace orvendal
