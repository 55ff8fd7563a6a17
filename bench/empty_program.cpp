// The floor of a start: a program of Qt that reads a day, shows one widget, paints it and waits.

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include "bench/plain_store.h"

namespace {

class Sheet final : public QWidget {
 public:
  explicit Sheet(std::size_t lines) : lines_(lines) { resize(1024, 768); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.drawText(20, 40, QString::number(lines_));
  }

 private:
  std::size_t lines_;
};

}  // namespace

int main(int argument_count, char** arguments) {
  if (argument_count != 3) return 2;
  QApplication application(argument_count, arguments);
  orvendal::bench::PlainStore store(arguments[1]);
  Sheet sheet(store.ReadDay(arguments[2]).size());
  sheet.show();
  return QApplication::exec();
}
