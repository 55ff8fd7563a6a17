#include "host/script/world.h"

#include "adapters/headless/robot.h"
#include "host/script/parser.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

// Input to the workstation's panel; Esc closes it.
void UsePanel(Form& panel, FormInput& input, bool reconnect) {
  Robot hands(panel, input);
  if (reconnect) hands.Click(hands.Find("CmdReconectar"));
  hands.Key(key::kEscape);
}

void ChooseSession(Form& dialog, FormInput& input, const ScriptWorld::SessionChoice& choice) {
  Robot hands(dialog, input);
  auto& branches = dynamic_cast<MSFlexGrid&>(hands.Find("MSFSucursales"));
  int row = 1;
  while (row < branches.Rows() && !EqualsIgnoringCase(branches.TextMatrix(row, 0), choice.sucursal)) ++row;
  if (row == branches.Rows()) throw ScriptStop("no existe la sucursal " + choice.sucursal);
  hands.ClickCell(branches, row, 0);
  const auto write = [&hands](const char* box, const std::string& text) {
    hands.Click(hands.Find(box));
    hands.Key('A', shift_mask::kControl);
    hands.Key(key::kDelete);
    hands.Type(text);
  };
  write("TxtPuesto", choice.puesto);
  write("TxtTurno", choice.turno);
  hands.Click(hands.Find("CmdAceptar"));
}

}  // namespace

class ScriptWorld::Messages final : public MessagePresenter {
 public:
  explicit Messages(ScriptWorld& world) : world_(world) {}
  std::int32_t Present(const std::string& text, std::int32_t style, const std::string& title) override {
    return world_.Dialogs().Present(text, style, title);
  }

 private:
  ScriptWorld& world_;
};

ScriptWorld::ScriptWorld(const Options& options, const MakeScriptWindows& make_windows,
                         const WrapScriptLibrary& wrap_library)
    : windows(make_windows(*options.region, clock)),
      options_(options),
      messages_(std::make_unique<Messages>(*this)),
      context_(ContextFor(options, windows->Host(), *messages_, library_recordsets_)),
      dictionaries_(MakeDictionaries(options.language)),
      wrapped_library_(wrap_library ? wrap_library(library_, windows->Host(), clock) : nullptr),
      state_(Environment{windows->Host(), recordsets, wrapped_library_ ? *wrapped_library_ : library_}) {
  context_.store_name = options.store.value_or(kStoreInMemory);
  if (options.display) windows->SetScreen(options.display->width, options.display->height);
  library_.OpenOwnDialogs([this](const std::string& operation) { AnswerDialog(operation); });
}

ScriptWorld::~ScriptWorld() = default;

SqliteConnection& ScriptWorld::Store() {
  if (!context_.connection) {
    const ChosenStore chosen = ChooseStore(options_, kStoreInMemory, context_.words);
    OpenStoreOf(context_, chosen, options_, clock.Today());
  }
  return EmbeddedStore(context_.connection);
}

bool ScriptWorld::Call(const std::string& sucursal, const std::string& puesto, const std::string& turno) {
  Store();
  context_.sucursal = sucursal;
  context_.puesto = puesto;
  context_.turno = turno;
  ClassOrvendal component(state_);
  return component.Orvendal(std::make_shared<SampleSession>(context_, dictionaries_), sucursal, puesto,
                            turno);
}

std::shared_ptr<FrmOrvendalciales> ScriptWorld::Screen() const {
  return state_.form && state_.form->IsLoaded() ? state_.form : nullptr;
}

// A panel or dialog that nothing was prepared for is closed as it came up, with nothing changed. One that
// does not come up, because the store fails, takes its answer with it.
void ScriptWorld::AnswerDialog(const std::string& operation) {
  FormInput& input = windows->Input();
  if (operation == "AccionPuesto") {
    const bool reconnect = !panel_answers_.empty() && panel_answers_.front();
    if (!panel_answers_.empty()) panel_answers_.pop_front();
    windows->AnswerNextDialog([&input, reconnect](Form& panel) { UsePanel(panel, input, reconnect); });
    return;
  }
  std::optional<SessionChoice> choice;
  if (!session_answers_.empty()) {
    choice = session_answers_.front();
    session_answers_.pop_front();
  }
  windows->AnswerNextDialog([&input, choice](Form& dialog) {
    if (choice) {
      ChooseSession(dialog, input, *choice);
    } else {
      Robot(dialog, input).Key(key::kEscape);
    }
  });
}

}  // namespace orvendal
