#include "adapters/qt/qt_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace orvendal {
namespace {

// Lengths are of a drawing of 64 by 64.
void DrawIcon(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 128));
  painter.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
  painter.setBrush(QColor(233, 232, 211));
  painter.drawRoundedRect(QRectF(12, 10, 40, 44), 3, 3);
  painter.setBrush(QColor(128, 0, 0));
  painter.drawRect(QRectF(12, 14, 40, 6));
  painter.setBrush(QColor(179, 192, 225));
  for (const double top : {25.0, 33.0, 41.0}) painter.drawRect(QRectF(17, top, 30, 4));
  QPainterPath tick;
  tick.moveTo(26, 42);
  tick.lineTo(36, 52);
  tick.lineTo(56, 26);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0, 128, 64), 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(tick);
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    DrawIcon(painter);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace orvendal
