#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <csignal>
#include <memory>
#include <vector>

#include "adapters/qt/qt_window_host.h"

namespace orvendal {

/// The system asks the program to end: by the signals TERM, HUP and INT, and at the end of the desktop's
/// session. Each is taken as the window manager's close button is, so that what is not saved is asked for. A
/// session that ends is stopped if a window stays open. One object at a time, beside the QApplication.
class QtCloseRequests final : public QObject {
 public:
  /// `host` outlives the object. Raises std::system_error if the system gives no way to hear of signals.
  explicit QtCloseRequests(QtWindowHost& host);
  ~QtCloseRequests() override;

  /// What is done about the end of a session; `Manager` is QSessionManager.
  template <typename Manager>
  void EndSession(Manager& manager) {
    if (!host_.HasWindows() || !manager.allowsInteraction()) return;
    if (host_.AskToClose(QtWindowHost::IfDialogIsUp::kRefuse)) {
      manager.release();
    } else {
      manager.cancel();
    }
  }

 private:
  struct Kept {
    int signal;
    struct sigaction action;
  };
  void TakeSignals();

  QtWindowHost& host_;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::vector<Kept> kept_;
};

}  // namespace orvendal
