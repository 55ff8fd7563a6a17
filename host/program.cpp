#include "host/program.h"

#include <QApplication>
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <optional>

#include "adapters/qt/qt_close_requests.h"
#include "adapters/qt/qt_icon.h"
#include "adapters/qt/qt_picture.h"
#include "adapters/qt/qt_start.h"
#include "adapters/qt/qt_window_host.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "host/ending/explained_end.h"
#include "host/ending/start_error.h"
#include "host/error_words.h"
#include "host/library/stand_in_library.h"
#include "host/recording/program_recording.h"
#include "host/sample/chosen_store.h"
#include "host/sample/session.h"
#include "host/script/day_lines.h"
#include "host/store/default_store.h"
#include "host/store/host_store.h"
#include "host/store/private_file.h"
#include "host/text/printed_text.h"

namespace orvendal {
namespace {

constexpr int kTwipsToPixel = 15;
constexpr int kButtonsMask = 0xF;

// The machine's clock, in its local time.
class MachineClock final : public Clock {
 public:
  Date Now() override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    // A leap second counts as the second before it.
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     std::min(local.tm_sec, 59)};
  }
};

// Errors are told only to somebody who has made them.
class ProgramHost final : public QtWindowHost {
 public:
  using QtWindowHost::QtWindowHost;
  void BeQuiet(bool quiet) { quiet_ = quiet; }

 protected:
  void TellError(const RuntimeError& error) override {
    if (!quiet_) QtWindowHost::TellError(error);
  }

 private:
  bool quiet_ = false;
};

// A message box in front of the screen.
class BoxMessages final : public MessagePresenter {
 public:
  explicit BoxMessages(QtWindowHost& host) : host_(host) {}
  std::int32_t Present(const std::string& text, std::int32_t style, const std::string& title) override {
    return host_.ShowMessage(text, style, title);
  }

 private:
  QtWindowHost& host_;
};

// Nobody is there to press a button: the text goes to standard error, a question is cancelled.
class WrittenMessages final : public MessagePresenter {
 public:
  std::int32_t Present(const std::string& text, std::int32_t style, const std::string&) override {
    std::cerr << PrintedText(text) << '\n';
    return (style & kButtonsMask) == 0 ? message::kOk : message::kCancel;
  }
};

// What a platform without windows cannot do is no news to somebody who asked for a picture.
void DropWarnings(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << ErrorLine(text.toStdString());
  if (type == QtFatalMsg) std::_Exit(kExitFailure);  // where Qt would leave a dump of memory
}

QString TextOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QtEditCaptions EditCaptionsOf(const Words& words) {
  return {TextOf(words.cut), TextOf(words.copy), TextOf(words.paste), TextOf(words.select_all)};
}

// The host application for one run.
class Program {
 public:
  Program(const Options& options, const Words& words)
      : options_(options),
        words_(words),
        host_(*options.region, recorded_clock_, HostOptions()),
        boxes_(host_),
        context_(ContextFor(options, host_,
                            options.picture.empty() ? static_cast<MessagePresenter&>(boxes_) : written_,
                            recordsets_)),
        library_(context_),
        recorded_library_(library_, host_),
        state_({host_, recordsets_, recorded_library_}) {}

  /// Says on standard error which store it is. Raises StoreUnavailable.
  void OpenStore(const ChosenStore& chosen) {
    // The default store and its folder belong to the program and this user; any other folder has to be there.
    if (!options_.store) MakePrivateFile(chosen.path);
    const OpenedStore opened = OpenStoreOf(context_, chosen, options_, clock_.Today());
    context_.store_name = chosen.path;
    std::cerr << StoreNotice(opened, chosen.path, words_);
    // Whoever does not read that has it in the titles of the windows.
    if (opened.sample) QApplication::setApplicationDisplayName(TextOf(words_.sample_title));
  }

  /// What is done from here on is written down, and what was not saved last time is asked for. Raises
  /// RuntimeError, in the user's words.
  void BeginRecording() {
    recording_.emplace(
        RecordedProgram{options_, words_, recorded_clock_, context_, library_, recorded_library_, state_,
                        [this](bool quiet) { host_.BeQuiet(quiet); },
                        [](const std::string& sentence) { std::cerr << ErrorLine(sentence); }});
    if (!options_.record.empty()) recording_->RecordInto(options_.record);
    if (options_.picture.empty()) recording_->KeepWork();
  }

  /// Raises what the component's call raises.
  void CallComponent() {
    recording_->Call([this] {
      ClassOrvendal component(state_);
      component.Orvendal(std::make_shared<SampleSession>(context_, MakeDictionaries(options_.language)),
                         options_.sucursal, options_.puesto, options_.turno);
    });
  }

  const std::string& StoreName() const { return context_.store_name; }

  int RunUntilClosed() {
    const QtCloseRequests close_requests(host_);
    return HasScreen() ? QApplication::exec() : 0;
  }

  bool HasScreen() const { return state_.form && state_.form->IsLoaded(); }

  /// False if the picture cannot be written.
  bool WritePicture() {
    QApplication::processEvents();
    if (!HasScreen() || !SavePng(*state_.form, options_.picture)) return false;
    std::cout << LinesOf(*state_.form, "MSFProductos");
    return true;
  }

  void UnloadScreen() {
    if (HasScreen()) state_.form->Unload();
  }

 private:
  QtHostOptions HostOptions() const {
    QtHostOptions host;
    if (options_.display) host.display = QSize(options_.display->width, options_.display->height);
    host.application_title = QApplication::applicationDisplayName().toStdString();
    host.captions = CaptionsOf(words_);
    host.edit_captions = EditCaptionsOf(words_);
    host.describe_error = [this](const RuntimeError& error) {
      return DescriptionInWords(words_, error.Description(), context_.store_name);
    };
    host.on_last_window_gone = [] { QApplication::quit(); };
    if (!options_.picture.empty()) {
      // Without a window the screen is shown at the size that it was designed for.
      if (!host.display) {
        host.display = QSize(options_.base_width / kTwipsToPixel, options_.base_height / kTwipsToPixel);
      }
      host.on_error = [this](const RuntimeError& error) {
        std::cerr << PrintedText(ErrorInWords(words_, error, context_.store_name)) << '\n';
      };
    }
    return host;
  }

  const Options& options_;
  const Words& words_;
  MachineClock clock_;
  RecordedClock recorded_clock_{clock_};
  SqliteRecordsetFactory recordsets_;
  ProgramHost host_;
  BoxMessages boxes_;
  WrittenMessages written_;
  HostContext context_;
  StandInLibrary library_;
  RecordedLibrary recorded_library_;
  ComponentState state_;
  std::optional<ProgramRecording> recording_;
};

}  // namespace

int RunProgram(const Options& options, const char* program_name) {
  const Words& words = WordsOf(options.language);
  const bool paints = !options.picture.empty();
  const auto tell = [&](const std::string& sentence) {
    if (paints) {
      std::cerr << ErrorLine(sentence);
    } else {
      TellWhyItEnds(ErrorLine(sentence), words, program_name, kExitFailure);
    }
  };
  const auto fail = [&](const std::string& sentence) {
    tell(sentence);
    return kExitFailure;
  };
  if (paints) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(DropWarnings);
  } else if (!HasDisplay()) {
    return fail(std::string(words.no_display));
  }

  // Before the application is made: in a current folder that is gone its font libraries complain as well.
  ChosenStore chosen;
  const auto choose = [&] {
    chosen = ChooseStore(options, DefaultStore(), words);
    return 0;
  };
  if (const int exit_code = RunExplained(choose, words, kExitFailure, tell); exit_code != 0) return exit_code;

  int argument_count = 1;
  std::string name(program_name);
  char* arguments[] = {name.data(), nullptr};
  std::optional<QtStart> start;
  if (!paints) start.emplace(ErrorLine(std::string(words.no_display)), kExitFailure);
  QApplication application(argument_count, arguments);
  start.reset();
  QApplication::setApplicationName("orvendal");
  QApplication::setApplicationDisplayName("Orvendal");
  QApplication::setDesktopFileName("orvendal");
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);

  const auto run = [&] {
    Program program(options, words);
    program.OpenStore(chosen);
    try {
      program.BeginRecording();
    } catch (const RuntimeError& error) {
      return fail(error.Description());
    }
    try {
      program.CallComponent();
    } catch (const StoreUnavailable&) {
      throw;
    } catch (const RuntimeError& error) {
      return fail(ErrorInWords(words, error, program.StoreName()));
    }
    if (!paints) return program.RunUntilClosed();
    const bool written = program.WritePicture();
    program.UnloadScreen();
    return written ? 0 : fail(Fill(words.picture_not_written, {options.picture}));
  };
  return RunExplained(run, words, kExitFailure, tell);
}

}  // namespace orvendal
