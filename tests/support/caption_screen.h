#pragma once

#include <string>

#include "host/sample/dictionaries.h"
#include "tests/support/form_driver.h"

namespace orvendal {

/// A display in pixels of 15 twips.
struct DisplaySize {
  int width;
  int height;
};
inline constexpr DisplaySize kCaptionDisplays[] = {{640, 480},   {800, 600},   {1024, 768},  {1280, 720},
                                                   {1366, 768},  {1280, 1024}, {1600, 1200}, {1920, 1080},
                                                   {2560, 1440}, {3440, 1440}, {3840, 2160}};
inline constexpr double kCaptionScales[] = {1.0, 1.25, 1.5, 2.0};
inline constexpr Language kCaptionLanguages[] = {Language::kSpanish, Language::kCatalan, Language::kEnglish};

inline std::string Named(DisplaySize display, Language language, double scale) {
  return std::to_string(display.width) + "x" + std::to_string(display.height) + " language " +
         std::to_string(static_cast<int>(language)) + " scale " + std::to_string(scale);
}

/// The screen in one language on some host, with everything visible that has a caption of the design.
class CaptionScreen {
 public:
  CaptionScreen(WindowHost& host, Language language) : driver_(host) {
    driver_.session->meddle = [words = MakeDictionaries(language)](const SessionArguments& session) {
      session.DiccGeneral = words.general;
      session.DiccAcciones = words.acciones;
      session.DiccPantallas = words.pantallas;
    };
    driver_.Open();
    Form().BtnAnuloSuper.Visible(true);
    Form().LblSupervisor.Visible(true);
  }
  ~CaptionScreen() { Close(); }
  CaptionScreen(const CaptionScreen&) = delete;
  CaptionScreen& operator=(const CaptionScreen&) = delete;

  FrmOrvendalciales& Form() { return driver_.form(); }
  void Close() {
    if (driver_.HasForm()) Form().Unload();
  }

 private:
  ScreenDriver driver_;
};

}  // namespace orvendal
