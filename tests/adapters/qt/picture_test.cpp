#include <QImage>
#include <QTemporaryDir>

#include "adapters/qt/qt_picture.h"
#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

class Pictures : public QtFormTest {};

TEST_F(Pictures, AFormIsPaintedAsItStandsAtAnyScale) {
  ShowForm();
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QImage image = RenderForm(*form, scale);
    EXPECT_EQ(image.size(), QSize(qRound(400 * scale), qRound(300 * scale)));
    const int edge = qRound(200 * scale);
    EXPECT_EQ(image.pixel(edge - 1, 10), qRgb(255, 0, 0)) << scale;
    EXPECT_EQ(image.pixel(edge, 10), qRgb(0, 0, 255)) << scale;
    EXPECT_EQ(image.pixel(5, image.height() - 5), qRgb(212, 208, 200)) << scale;
  }
}

TEST_F(Pictures, AFormNeedNotBeOnTheScreen) {
  form->Load();
  EXPECT_EQ(RenderForm(*form).pixel(10, 10), qRgb(255, 0, 0));
}

TEST_F(Pictures, TheCaretIsOnThePicture) {
  ShowForm();
  form->box.Text("abc");
  form->box.SelStart(3);
  const QImage with_caret = RenderForm(*form);
  form->left.SetFocus();
  const QImage without = RenderForm(*form);
  const auto caret_column = [&] {
    for (int x = 15; x < 315; ++x) {
      if (with_caret.pixel(x, 165) != without.pixel(x, 165)) return x;
    }
    return -1;
  };
  EXPECT_GT(caret_column(), 25);
}

TEST_F(Pictures, APictureIsWrittenAsAFileOrRefused) {
  ShowForm();
  const QTemporaryDir folder;
  const std::string path = folder.filePath("form.png").toStdString();
  EXPECT_TRUE(SavePng(*form, path));
  EXPECT_EQ(QImage(QString::fromStdString(path)).size(), QSize(400, 300));
  EXPECT_FALSE(SavePng(*form, folder.filePath("no/such/folder.png").toStdString()));
}

}  // namespace
}  // namespace orvendal
