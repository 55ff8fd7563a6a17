#pragma once

#include <memory>
#include <string>

#include "adapters/sqlite/sqlite_store.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "host/dictionaries.h"
#include "host/store/schema.h"
#include "tests/support/plain_library.h"

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
  CaptionScreen(WindowHost& host, Language language)
      : library_(host), state_{Environment{host, recordsets_, library_}} {
    const auto store =
        SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
    CreateSchema(*store);
    store->Execute("INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('01', 'Centro')");
    ClassOrvendal component(state_);
    component.Orvendal(std::make_shared<Session>(store, MakeDictionaries(language)), "01", "1", "1");
    Form().BtnAnuloSuper.Visible(true);
    Form().LblSupervisor.Visible(true);
  }
  ~CaptionScreen() { Close(); }
  CaptionScreen(const CaptionScreen&) = delete;
  CaptionScreen& operator=(const CaptionScreen&) = delete;

  FrmOrvendalciales& Form() { return *state_.form; }
  void Close() {
    if (state_.form) state_.form->Unload();
  }

 private:
  class Session final : public DatosClase {
   public:
    Session(ConnectionRef connection, Dictionaries words)
        : connection_(std::move(connection)), words_(std::move(words)) {}
    void RellenarSesion(const SessionArguments& session) override {
      session.Conexion = connection_;
      session.AnchoBase = 15360;
      session.AltoBase = 11520;
      session.DiccGeneral = words_.general;
      session.DiccAcciones = words_.acciones;
      session.DiccPantallas = words_.pantallas;
    }

   private:
    ConnectionRef connection_;
    Dictionaries words_;
  };

  PlainLibrary library_;
  SqliteRecordsetFactory recordsets_;
  ComponentState state_;
};

}  // namespace orvendal
