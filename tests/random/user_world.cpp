#include "tests/random/user_world.h"

#include "adapters/headless/robot.h"

namespace orvendal {

class UserWorld::Messages final : public MessagePresenter {
 public:
  explicit Messages(UserWorld& world) : world_(world) {}
  std::int32_t Present(const std::string&, std::int32_t style, const std::string&) override {
    ++world_.messages;
    return world_.on_message ? world_.on_message(style) : message::kOk;
  }

 private:
  UserWorld& world_;
};

UserWorld::UserWorld(const Options& options, InputScript& script)
    : host(*options.region, clock),
      messages_(std::make_unique<Messages>(*this)),
      context_(ContextFor(options, host, *messages_, library_recordsets_)),
      dictionaries_(MakeDictionaries(options.language)),
      library_(stand_in_, [&script](const std::string& line) { script.Answer(line); }) {
  context_.store_name = kStoreInMemory;
  OpenStoreOf(context_, ChooseStore(options, kStoreInMemory, context_.words), options, clock.Today());
  context_.reopen_store = [this, reopen = context_.reopen_store] {
    ++library_.times_reopened;
    return reopen();
  };
  recordsets.OnOpen([this](const OpenedStatement& statement) {
    if (statement.text.starts_with("SELECT HistOrvendalcial.IdSucursal")) ++loads;
  });
  ExpectDialog();
}

UserWorld::~UserWorld() = default;

void UserWorld::ExpectDialog() {
  host.QueueDialog([this](Form& dialog) {
    const ObjectRef alive = dialog.shared_from_this();
    ++dialogs;
    ExpectDialog();
    if (on_dialog) on_dialog(dialog);
    for (int tries = 0; dialog.Visible() && tries < 3; ++tries) Robot(dialog).Key(key::kEscape);
  });
}

void UserWorld::Call(const std::string& sucursal, const std::string& puesto, const std::string& turno) {
  context_.sucursal = sucursal;
  context_.puesto = puesto;
  context_.turno = turno;
  ClassOrvendal component(state_);
  component.Orvendal(std::make_shared<SampleSession>(context_, dictionaries_), sucursal, puesto, turno);
}

std::shared_ptr<FrmOrvendalciales> UserWorld::Screen() const {
  return state_.form && state_.form->IsLoaded() ? state_.form : nullptr;
}

SqliteConnection& UserWorld::Store() {
  return EmbeddedStore(context_.connection);
}

std::vector<std::string> UserWorld::Column(const std::string& sql) {
  SqliteStatement statement(Store(), sql);
  std::vector<std::string> values;
  while (statement.Step()) values.push_back(statement.TextAt(0));
  return values;
}

}  // namespace orvendal
