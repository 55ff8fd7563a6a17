#include "adapters/qt/qt_picture.h"

#include <QPainter>
#include <algorithm>

#include "adapters/qt/qt_canvas.h"
#include "platform/forms/form.h"

namespace orvendal {

QImage RenderForm(Form& form, QtFonts& fonts, double scale) {
  const double pixels_per_twip = scale / kTwipsPerPixel;
  QImage image(std::max(1, qRound(form.Width() * pixels_per_twip)),
               std::max(1, qRound(form.Height() * pixels_per_twip)), QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  QtCanvas canvas(painter, fonts, scale);
  form.Paint(canvas, {0, 0, form.Width(), form.Height()});
  if (const auto caret = form.CaretRectangle()) canvas.Invert(*caret);
  return image;
}

QImage RenderForm(Form& form, double scale) {
  QtFonts fonts;
  return RenderForm(form, fonts, scale);
}

bool SavePng(Form& form, const std::string& path, double scale) {
  return RenderForm(form, scale).save(QString::fromStdString(path), "PNG");
}

}  // namespace orvendal
