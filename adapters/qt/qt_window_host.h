#pragma once

#include <QMargins>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/qt/qt_edit_menu.h"
#include "adapters/qt/qt_fonts.h"
#include "adapters/qt/qt_message_box.h"
#include "adapters/qt/qt_text_measures.h"
#include "platform/forms/common_host.h"

namespace orvendal {

class QtFormWindow;

struct QtHostOptions : CommonHostOptions {
  /// A display in logical pixels that is to be played in a window; the real display without it.
  std::optional<QSize> display;
  QtCaptions captions;
  QtEditCaptions edit_captions;
  /// The last form's window is gone and no other has come by the next turn of the event loop.
  std::function<void()> on_last_window_gone;
};

/// A desktop through Qt. A QApplication lives around it, and everything runs on its thread.
///
/// Invariant: no exception leaves an event of a window.
class QtWindowHost : public CommonHost {
 public:
  /// Region and clock outlive the host.
  QtWindowHost(const Region& region, Clock& clock, const QtHostOptions& options = {});
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
  void DoEvents() override;
  void Beep() override;
  std::string ClipboardText() override;
  void ClipboardText(const std::string& text) override;
  std::string SelectedText() override;
  void SelectedText(const std::string& text) override;
  std::optional<EditCommand> RunEditMenu(Form& form, Point place, const EditMenu& menu) override;

  QtFonts& Fonts() { return fonts_; }
  /// What a frame of the system's takes around a window, in logical pixels: as it was seen around one, or
  /// what most window managers take at most.
  QMargins FrameMargins() const;
  enum class IfDialogIsUp { kWait, kRefuse };
  /// Asks each window that is no dialog to close, as its close button does; a minimised one comes back first,
  /// so that its question is seen. True if none is left open. A dialog that is up stays: then nothing is
  /// asked until it is over (kWait) or at all (kRefuse). While a question of an earlier call is up, it stays.
  bool AskToClose(IfDialogIsUp dialog);
  /// The widget of a loaded form; nullptr without one.
  QWidget* WidgetOf(const Form& form) const;

 protected:
  std::unique_ptr<ModalLoop> MakeModalLoop(const CommonWindow& window) override;
  int RunMessageBox(const std::string& text, int style, const std::string& title) override;
  void StartTimer(Timer& timer, int milliseconds) override { timers_.Set(timer, milliseconds); }
  void StopTimer(Timer& timer) override { timers_.Remove(timer); }
  void Log(const char* what_ended, const char* how) override;
  std::string ErrorText(std::int32_t number, const std::string& description) const override;
  void DialogOver() override;
  void LastWindowGone() override;

 private:
  friend class QtFormWindow;
  class EventLoop;
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

  const Region& region_;
  Clock& clock_;
  std::optional<QSize> display_;
  QtCaptions captions_;
  QtEditCaptions edit_captions_;
  std::function<void()> on_last_window_gone_;
  QtFonts fonts_;
  QtTextMeasures measures_;
  Timers timers_;
  bool asking_to_close_ = false;
  bool close_when_dialogs_are_over_ = false;
};

}  // namespace orvendal
