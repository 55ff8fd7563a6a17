#include "host/program.h"

#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "adapters/qt/qt_icon.h"
#include "adapters/qt/qt_picture.h"
#include "adapters/qt/qt_window_host.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "host/day_lines.h"
#include "host/default_store.h"
#include "host/host_store.h"
#include "host/sample_session.h"
#include "host/stand_in_library.h"
#include "host/system_clock.h"

namespace orvendal {
namespace {

constexpr int kTwipsToPixel = 15;
constexpr int kButtonsMask = 0xF;
constexpr const char* kInMemory = ":memory:";

// A real box, in front of the screen.
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
    std::cerr << text << '\n';
    return (style & kButtonsMask) == 0 ? message::kOk : message::kCancel;
  }
};

// What a platform without windows cannot do is no news to somebody who asked for a picture.
void DropWarnings(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << text.toStdString() << '\n';
}

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

bool HasDisplay() {
  return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

QtCaptions CaptionsOf(const Words& words) {
  const auto caption = [](std::string_view text) {
    return "&" + QString::fromUtf8(text.data(), static_cast<int>(text.size()));
  };
  return {caption(words.accept), caption(words.cancel), caption(words.yes), caption(words.no)};
}

std::string ErrorText(const Words& words, const RuntimeError& error) {
  return Fill(words.error, {std::to_string(error.Number()), error.Description()});
}

// The folder of the default store belongs to the program; any other folder has to be there.
std::string StorePath(const Options& options) {
  if (options.store) return *options.store;
  const std::string path = DefaultStore();
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
  return path;
}

// The host application for one run.
class Program {
 public:
  Program(const Options& options, const Words& words)
      : options_(options),
        words_(words),
        host_(*options.region, clock_, HostOptions()),
        boxes_(host_),
        context_{host_,
                 options.picture.empty() ? static_cast<MessagePresenter&>(boxes_) : written_,
                 words,
                 recordsets_,
                 nullptr,
                 nullptr,
                 "",
                 options.sucursal,
                 options.puesto,
                 options.turno,
                 options.base_width,
                 options.base_height,
                 0.0,
                 MakeDictionaries(options.language)},
        library_(context_),
        state_({host_, recordsets_, library_}) {}

  void OpenStore() {
    const StoreSettings settings{StorePath(options_), options_.dialect, *options_.region, words_};
    context_.store_name =
        settings.path == kInMemory ? settings.path : std::filesystem::absolute(settings.path).string();
    context_.connection = OpenOrMakeStore(settings, clock_.Today());
    // A store in memory is gone with its connection, so that there is nothing to open anew.
    context_.reopen_store = [this, settings]() -> ConnectionRef {
      return settings.path == kInMemory ? context_.connection : OpenExistingStore(settings);
    };
  }

  /// Raises what the component's call raises.
  void CallComponent() {
    ClassOrvendal component(state_);
    component.Orvendal(std::make_shared<SampleSession>(context_), options_.sucursal, options_.puesto,
                       options_.turno);
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
    host.application_title = QApplication::applicationDisplayName();
    host.captions = CaptionsOf(words_);
    host.on_last_window_gone = [] { QApplication::quit(); };
    if (!options_.picture.empty()) {
      // Without a window the screen is shown at the size that it was designed for.
      if (!host.display) {
        host.display = QSize(options_.base_width / kTwipsToPixel, options_.base_height / kTwipsToPixel);
      }
      host.on_error = [this](const RuntimeError& error) { std::cerr << ErrorText(words_, error) << '\n'; };
    }
    return host;
  }

  const Options& options_;
  const Words& words_;
  SystemClock clock_;
  SqliteRecordsetFactory recordsets_;
  QtWindowHost host_;
  BoxMessages boxes_;
  WrittenMessages written_;
  HostContext context_;
  StandInLibrary library_;
  ComponentState state_;
};

}  // namespace

int RunProgram(const Options& options, const char* program_name) {
  const Words& words = WordsOf(options.language);
  const auto fail = [](const std::string& sentence) {
    std::cerr << "orvendal: " << sentence << '\n';
    return kExitFailure;
  };
  if (!options.picture.empty()) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(DropWarnings);
  } else if (!HasDisplay()) {
    return fail(std::string(words.no_display));
  }

  int argument_count = 1;
  std::string name(program_name);
  char* arguments[] = {name.data(), nullptr};
  QApplication application(argument_count, arguments);
  QApplication::setApplicationName("orvendal");
  QApplication::setApplicationDisplayName("Orvendal");
  QApplication::setDesktopFileName("orvendal");
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);

  Program program(options, words);
  try {
    program.OpenStore();
    program.CallComponent();
  } catch (const StoreUnavailable& error) {
    return fail(error.Description());
  } catch (const RuntimeError& error) {
    return fail(ErrorText(words, error));
  }
  if (options.picture.empty()) return program.HasScreen() ? QApplication::exec() : 0;
  const bool written = program.WritePicture();
  program.UnloadScreen();
  return written ? 0 : fail(Fill(words.picture_not_written, {options.picture}));
}

}  // namespace orvendal
