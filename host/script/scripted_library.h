#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/forms/window_host.h"
#include "platform/library/library.h"

namespace orvendal {

/// A dialog or a question came up for which no answer is queued, or one that it does not offer. The text is a
/// sentence for the writer of the script.
class UnansweredQuestion : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The maker's library with its dialogs answered beforehand and every call written down. What is no dialog
/// goes to the library inside.
class ScriptedLibrary final : public Library {
 public:
  struct EmployeeAnswer {
    bool accepted = false;
    std::string code;
    std::string name;
  };
  struct ShownMessage {
    std::int32_t style = 0;
    std::string title;
    std::string text;
    std::int32_t answer = 0;
  };

  /// `inner` and `host` outlive the object.
  ScriptedLibrary(Library& inner, WindowHost& host) : inner_(inner), host_(host) {}

  void QueueEmployee(const EmployeeAnswer& answer) { employees_.push_back(answer); }
  /// "" for a search that is cancelled.
  void QueueProduct(const std::string& code) { products_.push_back(code); }
  /// Answer code of the next message with several buttons. One with a single button takes it only if it is
  /// that button's.
  void QueueAnswer(std::int32_t code) { answers_.push_back(code); }
  bool HasQueuedAnswers() const { return !employees_.empty() || !products_.empty() || !answers_.empty(); }

  /// Runs while the next dialog is up, before its answer is given.
  void DuringNextDialog(std::function<void()> action) { during_dialog_.push_back(std::move(action)); }
  /// What an operation gives back in place of the connection that it was handed, once; "Elegir",
  /// "AccionPuesto", "AbrirCambio", "RegistrarSentencia".
  void ReplaceConnection(const std::string& operation, ConnectionRef connection);
  /// The next call of the operation, such as "RecalcularProducto", fails so.
  void FailNext(const std::string& operation, const RuntimeError& error) {
    failures_.insert_or_assign(operation, error);
  }
  /// The `nth` call of any operation from now on, counted from 1, fails so.
  void FailCall(int nth, const RuntimeError& error) {
    calls_to_failure_ = nth;
    call_failure_ = error;
  }
  /// How many calls there were so far that can fail.
  int CallsThatCanFail() const { return calls_that_can_fail_; }
  /// Whether LiberarForm leaves the reference as it is.
  void KeepForm(bool keep) { keep_form_ = keep; }
  /// What AccionPuesto and AbrirCambio do instead of opening their dialogs.
  std::function<void(std::string& cod_puesto)> OnAccionPuesto;
  std::function<void(std::string& cod_sucursal, std::string& cod_puesto, std::string& cod_turno)>
      OnAbrirCambio;

  /// Makes AccionPuesto and AbrirCambio open the inner library's own dialogs, each time after `prepare`,
  /// which is told the operation.
  void OpenOwnDialogs(std::function<void(const std::string& operation)> prepare) {
    prepare_dialog_ = std::move(prepare);
  }

  /// A message that does not come from the screen: answered and kept like the others, but no library call.
  std::int32_t Present(const std::string& text, std::int32_t style, const std::string& title);

  /// Calls and messages since last asked.
  std::vector<std::string> TakeCalls();
  std::vector<ShownMessage> TakeMessages();
  const std::vector<std::string>& Calls() const { return calls_; }

  std::unique_ptr<Herramientas> NewHerramientas() override;
  std::unique_ptr<Mensajes> NewMensajes() override;
  std::unique_ptr<CambioSesion> NewCambioSesion() override;
  std::unique_ptr<Recalculo> NewRecalculo() override;
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override;
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override;

 private:
  friend class ScriptedHerramientas;
  friend class ScriptedMensajes;
  friend class ScriptedCambioSesion;
  friend class ScriptedRecalculo;
  friend class ScriptedBuscador;
  friend class ScriptedSelector;

  void Record(const std::string& call) { calls_.push_back(call); }
  void FailIfAsked(const std::string& operation);
  void ReplaceIfAsked(const std::string& operation, ConnectionRef& connection);
  void RunDuringDialog();
  std::int32_t AnswerTo(const std::string& text, std::int32_t style);

  Library& inner_;
  WindowHost& host_;
  std::deque<EmployeeAnswer> employees_;
  std::deque<std::string> products_;
  std::deque<std::int32_t> answers_;
  std::deque<std::function<void()>> during_dialog_;
  std::map<std::string, RuntimeError> failures_;
  int calls_that_can_fail_ = 0;
  int calls_to_failure_ = 0;
  std::optional<RuntimeError> call_failure_;
  std::map<std::string, ConnectionRef> replacements_;
  std::function<void(const std::string& operation)> prepare_dialog_;
  bool keep_form_ = false;
  std::vector<std::string> calls_;
  std::vector<ShownMessage> messages_;
};

}  // namespace orvendal
