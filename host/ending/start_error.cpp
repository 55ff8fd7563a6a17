#include "host/ending/start_error.h"

#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "adapters/qt/qt_icon.h"
#include "adapters/qt/qt_start.h"
#include "host/text/printed_text.h"

namespace orvendal {
namespace {

constexpr std::string_view kLineStart = "orvendal: ";

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

// Whoever sends one of the streams somewhere has a terminal at the others, or runs it without a display.
bool HasTerminal() {
  constexpr std::array kStreams = {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
  return std::any_of(kStreams.begin(), kStreams.end(), [](int stream) { return isatty(stream) == 1; });
}

void ShowBox(const std::string& sentence, const Words& words, const char* program_name, int exit_code) {
  int argument_count = 1;
  std::string name(program_name);
  char* arguments[] = {name.data(), nullptr};
  std::unique_ptr<QApplication> application;
  if (QCoreApplication::instance() == nullptr) {
    const QtStart start("", exit_code);  // without a display the line is all
    application = std::make_unique<QApplication>(argument_count, arguments);
    QApplication::setWindowIcon(ProgramIcon());
  }
  KeyRun keys;
  RunMessageBox(nullptr, QString::fromStdString(sentence), message_style::kStop, QStringLiteral("Orvendal"),
                CaptionsOf(words), keys, [] { QApplication::beep(); });
}

}  // namespace

QtCaptions CaptionsOf(const Words& words) {
  const auto caption = [](std::string_view text) {
    return "&" + QString::fromUtf8(text.data(), static_cast<int>(text.size()));
  };
  return {caption(words.accept), caption(words.cancel), caption(words.yes), caption(words.no)};
}

bool HasDisplay() {
  return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

std::string ErrorLine(const std::string& sentence) {
  return std::string(kLineStart) + PrintedText(sentence) + "\n";
}

void TellWhyItEnds(const std::string& line, const Words& words, const char* program_name, int exit_code) {
  std::cerr << line << std::flush;
  if (!HasDisplay() || HasTerminal()) return;
  const std::size_t start = line.starts_with(kLineStart) ? kLineStart.size() : 0;
  ShowBox(line.substr(start, line.find_last_not_of('\n') + 1 - start), words, program_name, exit_code);
}

}  // namespace orvendal
