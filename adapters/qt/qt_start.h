#pragma once

#include <QtGlobal>
#include <string>
#include <utility>
#include <vector>

namespace orvendal {

/// Around the making of a QApplication: where Qt finds no display to show windows on, it would end the
/// program with a list of its plugins and a dump of memory. This writes `line` to standard error instead,
/// and the program ends with `exit_code` there and then. What else Qt has to say is said when the object
/// goes. One object at a time.
class QtStart {
 public:
  QtStart(std::string line, int exit_code);
  ~QtStart();
  QtStart(const QtStart&) = delete;
  QtStart& operator=(const QtStart&) = delete;

 private:
  static void Take(QtMsgType type, const QMessageLogContext& context, const QString& text);
  static QtStart* current_;

  std::string line_;
  int exit_code_;
  std::vector<std::pair<QtMsgType, QString>> waiting_;
  QtMessageHandler previous_;
};

}  // namespace orvendal
