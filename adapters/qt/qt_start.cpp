#include "adapters/qt/qt_start.h"

#include <QByteArray>
#include <QMessageLogContext>
#include <QString>
#include <cstdlib>
#include <iostream>

namespace orvendal {

QtStart* QtStart::current_ = nullptr;

QtStart::QtStart(std::string line, int exit_code)
    : line_(std::move(line)), exit_code_(exit_code), previous_(qInstallMessageHandler(&QtStart::Take)) {
  current_ = this;
}

QtStart::~QtStart() {
  qInstallMessageHandler(previous_);
  current_ = nullptr;
  for (const auto& [type, text] : waiting_) qt_message_output(type, QMessageLogContext(), text);
}

void QtStart::Take(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    current_->waiting_.emplace_back(type, text);
    return;
  }
  std::cerr << current_->line_ << std::flush;
  std::_Exit(current_->exit_code_);
}

}  // namespace orvendal
