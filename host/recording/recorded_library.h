#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/recording/recorder.h"
#include "platform/library/library.h"

namespace orvendal {

/// The library of a program that is recorded: tells the recorder what its dialogs were answered, and lets
/// another library answer in its place while a script is replayed. Objects that it has made follow both.
class RecordedLibrary final : public Library {
 public:
  /// `inner` and `host` outlive it.
  RecordedLibrary(Library& inner, WindowHost& host) : inner_(inner), host_(host) {}

  /// Told of from now on; nullptr for nobody.
  void Record(Recorder* recorder) { recorder_ = recorder; }
  /// Answers from now on in place of the library inside; nullptr ends it.
  void Replace(Library* replacement) { replacement_ = replacement; }
  /// How often the host has opened the store anew; without it no panel is known to have done so.
  std::function<int()> times_reopened;

  std::unique_ptr<Herramientas> NewHerramientas() override;
  std::unique_ptr<Mensajes> NewMensajes() override;
  std::unique_ptr<CambioSesion> NewCambioSesion() override;
  std::unique_ptr<Recalculo> NewRecalculo() override;
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override;
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override;

 private:
  friend class RecordedHerramientas;
  friend class RecordedMensajes;
  friend class RecordedCambioSesion;
  friend class RecordedBuscador;
  friend class RecordedSelector;

  void Answer(const std::string& line) {
    if (recorder_ != nullptr) recorder_->Answer(line);
  }
  /// Runs a dialog; one that fails is recorded as failing.
  void RunDialog(const char* operation, const std::function<void()>& dialog);

  Library& inner_;
  WindowHost& host_;
  Recorder* recorder_ = nullptr;
  Library* replacement_ = nullptr;
};

}  // namespace orvendal
