#include "adapters/qt/qt_picture.h"

#include <QBuffer>
#include <QPainter>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "adapters/qt/qt_canvas.h"
#include "platform/forms/form.h"

namespace orvendal {
namespace {

// The writer of pictures does not hear of what a disk refuses at the end, and talks to standard error.
// The file is opened by the bytes of its name: Qt's texts would lead those that are no UTF-8 to another file.
bool WritePng(const QImage& image, const std::string& path) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) return false;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) return false;
  file.write(bytes.constData(), bytes.size());
  file.close();
  if (file) return true;
  // Half a picture is none. A device stays where it is.
  std::error_code ignored;
  if (std::filesystem::is_regular_file(path, ignored)) std::filesystem::remove(path, ignored);
  return false;
}

}  // namespace

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

bool SavePng(Form& form, QtFonts& fonts, const std::string& path, double scale) {
  return WritePng(RenderForm(form, fonts, scale), path);
}

bool SavePng(Form& form, const std::string& path, double scale) {
  QtFonts fonts;
  return SavePng(form, fonts, path, scale);
}

}  // namespace orvendal
