#pragma once

#include <QMargins>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "adapters/qt/qt_edit_menu.h"
#include "adapters/qt/qt_fonts.h"
#include "adapters/qt/qt_message_box.h"
#include "adapters/qt/qt_text_measures.h"
#include "platform/forms/window_host.h"

class QEventLoop;

namespace orvendal {

class QtFormWindow;

struct QtHostOptions {
  /// A display in logical pixels that is to be played in a window; the real display without it.
  std::optional<QSize> display;
  /// Title of windows and message boxes that have none.
  QString application_title;
  QtCaptions captions;
  QtEditCaptions edit_captions;
  /// The description of an error as the message box is to tell it; the error's own without it.
  std::function<std::string(const RuntimeError&)> describe_error;
  /// Told of errors in place of the message box.
  std::function<void(const RuntimeError&)> on_error;
  /// The last form's window is gone and no other has come by the next turn of the event loop.
  std::function<void()> on_last_window_gone;
};

/// A desktop through Qt. A QApplication lives around it, and everything runs on its thread.
///
/// Invariants: `windows_` holds the windows of the loaded forms in order of making; no exception leaves an
/// event of theirs.
class QtWindowHost : public WindowHost {
 public:
  /// Region and clock outlive the host.
  QtWindowHost(const Region& region, Clock& clock, QtHostOptions options = {});
  ~QtWindowHost() override;

  const Region& UserRegion() override { return region_; }
  Clock& SystemClock() override { return clock_; }
  double ScreenWidth() override;
  double ScreenHeight() override;
  Rect RoomInFrame() override;
  double TextWidth(const FontSpec& font, std::string_view text) override {
    return measures_.TextWidth(font, text);
  }
  double LineHeight(const FontSpec& font) override { return measures_.LineHeight(font); }
  Rect TextInk(const FontSpec& font, std::string_view text) override { return measures_.TextInk(font, text); }
  std::unique_ptr<FormWindow> CreateFormWindow(Form& form) override;
  void RunModal(Form& form) override;
  void DoEvents() override;
  void TimerChanged(Timer& timer, bool alive) override;
  void Beep() override;
  std::string ClipboardText() override;
  void ClipboardText(const std::string& text) override;
  std::string SelectedText() override;
  void SelectedText(const std::string& text) override;
  std::optional<EditCommand> RunEditMenu(Form& form, Point place, const EditMenu& menu) override;
  /// A message box with number and description. An error that comes while it is up waits for its turn.
  void ReportError(const RuntimeError& error) override;

  /// A message box of the user's; see message_style and message_answer. An empty title is the application's.
  int ShowMessage(std::string_view text, int style, std::string_view title);

  /// What the buttons of message boxes say from now on.
  void Captions(const QtCaptions& captions) { options_.captions = captions; }
  QtFonts& Fonts() { return fonts_; }
  /// What a frame of the system's takes around a window, in logical pixels: as it was seen around one, or
  /// what most window managers take at most.
  QMargins FrameMargins() const;
  bool HasWindows() const { return !windows_.empty(); }
  enum class IfDialogIsUp { kWait, kRefuse };
  /// Asks each window that is no dialog to close, as its close button does; a minimised one comes back first,
  /// so that its question is seen. True if none is left open. A dialog that is up stays: then nothing is
  /// asked until it is over (kWait) or at all (kRefuse). While a question of an earlier call is up, it stays.
  bool AskToClose(IfDialogIsUp dialog);
  /// The widget of a loaded form; nullptr without one.
  QWidget* WidgetOf(const Form& form) const;

  /// Runs `action` and reports what it throws.
  void Guard(const std::function<void()>& action);
  /// The same for painting, where no dialog can come up: the error goes to the log.
  void GuardPainting(const std::function<void()>& action);

 private:
  friend class QtFormWindow;
  struct ModalLoop {
    const QtFormWindow* window;
    QEventLoop* loop;
  };
  // Timers by their Qt identifier. Stopping one inside its own event is safe.
  class Timers final : public QObject {
   public:
    explicit Timers(QtWindowHost& host) : host_(host) {}
    void Set(Timer& timer, int milliseconds);
    void Remove(Timer& timer);

   protected:
    void timerEvent(QTimerEvent* event) override;

   private:
    QtWindowHost& host_;
    std::map<Timer*, int> identifiers_;
  };

  QSize DisplaySize() const;
  QtFormWindow* WindowOf(const Form& form) const;
  /// The window that a dialog is to stand in front of; nullptr without one.
  QWidget* FrontWindow() const;
  /// Whether a form that is about to be shown shuts others out.
  bool ShowsModal(const Form& form) const;
  void WindowHidden(const QtFormWindow& window);
  void WindowGone(const QtFormWindow& window);
  int RunBox(const QString& text, int style, const QString& title);
  void DialogOver();

  const Region& region_;
  Clock& clock_;
  QtHostOptions options_;
  QtFonts fonts_;
  QtTextMeasures measures_;
  Timers timers_;
  std::vector<QtFormWindow*> windows_;
  std::vector<ModalLoop> modal_loops_;
  std::deque<RuntimeError> errors_to_report_;
  bool reporting_ = false;
  bool asking_to_close_ = false;
  bool close_when_dialogs_are_over_ = false;
};

}  // namespace orvendal
