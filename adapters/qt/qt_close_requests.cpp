#include "adapters/qt/qt_close_requests.h"

#include <fcntl.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSessionManager>
#include <cerrno>
#include <system_error>

namespace orvendal {
namespace {

// A signal may come between any two instructions, and hardly anything may be called then: it leaves a byte,
// which the event loop finds.
int read_end = -1;
int write_end = -1;

void LeaveByte(int) {
  const int error = errno;
  const char byte = 0;
  [[maybe_unused]] const auto written = write(write_end, &byte, 1);  // a full pipe tells enough already
  errno = error;
}

void OpenPipe() {
  int ends[2];
  if (pipe2(ends, O_NONBLOCK | O_CLOEXEC) != 0)
    throw std::system_error(errno, std::generic_category(), "pipe");
  read_end = ends[0];
  write_end = ends[1];
}

}  // namespace

QtCloseRequests::QtCloseRequests(QtWindowHost& host) : host_(host) {
  OpenPipe();
  notifier_ = std::make_unique<QSocketNotifier>(read_end, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { TakeSignals(); });
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    Kept kept{signal, {}};
    sigaction(signal, nullptr, &kept.action);
    if (kept.action.sa_handler == SIG_IGN) continue;  // as nohup wants it
    struct sigaction action {};
    action.sa_handler = LeaveByte;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
    kept_.push_back(kept);
  }
  QObject::connect(
      qApp, &QGuiApplication::commitDataRequest, this,
      [this](QSessionManager& manager) { EndSession(manager); }, Qt::DirectConnection);
  // The next session starts the program by its own means: there is no state to come back to.
  QObject::connect(
      qApp, &QGuiApplication::saveStateRequest, this,
      [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); },
      Qt::DirectConnection);
}

QtCloseRequests::~QtCloseRequests() {
  for (const Kept& kept : kept_) sigaction(kept.signal, &kept.action, nullptr);
  notifier_.reset();
  close(read_end);
  close(write_end);
  read_end = write_end = -1;
}

void QtCloseRequests::TakeSignals() {
  char bytes[64];
  while (read(read_end, bytes, sizeof(bytes)) > 0) {
  }
  host_.AskToClose(QtWindowHost::IfDialogIsUp::kWait);
}

}  // namespace orvendal
