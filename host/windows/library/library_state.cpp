#include "host/windows/library/library_state.h"

#include <filesystem>

#include "adapters/ado/ado_identity.h"
#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/bstr.h"
#include "adapters/automation/call_out.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/create_object.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/module_lifetime.h"
#include "adapters/win32/module_use.h"
#include "data_objects.h"
#include "host/error_words.h"
#include "host/sample/made_store.h"
#include "host/store/default_store.h"
#include "host/store/host_store.h"
#include "host/store/private_file.h"
#include "host/text/utf8_path.h"
#include "host/windows/user_language.h"

namespace orvendal {
namespace {

LibraryState* state = nullptr;  // a plain pointer: nothing may run when the process unmaps the module

Win32HostOptions NamedHost() {
  Win32HostOptions options;
  options.application_title = "Orvendal";
  return options;
}

/// A new object of ADO's, opened.
ConnectionRef OpenedConnection(const std::string& connection_string) {
  const auto connection =
      CreateObject(ado::kConnectionClass, CLSCTX_INPROC_SERVER).Query<::_Connection>(ado::kConnection);
  if (!connection) RaiseNoSuchInterface();
  const BstrCell text(connection_string);
  const BstrCell nothing("");
  Ask([&] { return connection->Open(text.Get(), nothing.Get(), nothing.Get(), kCommandUnspecified); });
  return WrapConnection(connection.Get());
}

}  // namespace

/// The system's own boxes, in front of whatever window of this thread the user is in.
class LibraryState::BoxMessages final : public MessagePresenter {
 public:
  explicit BoxMessages(Win32WindowHost& windows) : windows_(windows) {}
  std::int32_t Present(const std::string& text, std::int32_t style, const std::string& title) override {
    return windows_.ShowMessage(text, style, title);
  }

 private:
  Win32WindowHost& windows_;
};

LibraryState::LibraryState()
    : windows_(NamedHost()),
      messages_(std::make_unique<BoxMessages>(windows_)),
      language_(LanguageOfUser()),
      context_{windows_, *messages_, WordsOf(language_), recordsets_} {}

LibraryState::~LibraryState() = default;

bool LibraryState::IsMine() const {
  return thread_ == GetCurrentThreadId();
}

LibraryState& LibraryState::Of() {
  if (state == nullptr) state = new LibraryState;
  if (!state->IsMine()) {
    ForgetErrorInformation();
    throw ErrorOfResult(RPC_E_WRONG_THREAD);
  }
  return *state;
}

bool LibraryState::LetGoIfUnused() noexcept {
  if (!module_lifetime::IsFree()) return false;
  if (state != nullptr && !state->IsMine()) return false;
  {
    // A connection that goes may ask again whether the module can.
    const module_lifetime::Hold hold;
    delete std::exchange(state, nullptr);
  }
  return module_lifetime::IsFree() && !ModuleIsInUse();
}

void LibraryState::EndSession() noexcept {
  if (state != nullptr && state->IsMine()) state->UseConnection(nullptr);
}

void LibraryState::SetLanguage(Language language) {
  language_ = language;
  context_.words = WordsOf(language);
}

void LibraryState::OpenConnection(const std::string& connection_string) {
  context_.connection = OpenedConnection(connection_string);
  context_.store_name = connection_string;
  context_.reopen_store = [this, connection_string]() -> ConnectionRef {
    try {
      return OpenedConnection(connection_string);
    } catch (const RuntimeError& error) {
      throw StoreUnavailable(DescriptionInWords(context_.words, error.Description(), context_.store_name));
    }
  };
}

void LibraryState::OpenStore(std::string file, const std::string& provider) {
  if (file.empty()) {
    file = DefaultStore();
    MakePrivateFile(file);
  }
  const std::string path = TextOf(std::filesystem::absolute(PathOf(file)));
  // Made, and looked at, by the store's own means: they know why a file cannot be used.
  OpenOrMakeStore({path, Dialect::kSqlServer, windows_.UserRegion(), context_.words},
                  windows_.SystemClock().Today())
      ->Close();
  OpenConnection("Provider=" + provider + ";Data Source=\"" + path + "\"");
  context_.store_name = path;
  context_.reopen_store = [this, path, reopen = context_.reopen_store]() -> ConnectionRef {
    OpenExistingStore({path, Dialect::kSqlServer, windows_.UserRegion(), context_.words})->Close();
    return reopen();
  };
}

void LibraryState::UseConnection(ConnectionRef connection) {
  context_.connection = std::move(connection);
  context_.store_name.clear();
  context_.reopen_store = nullptr;
}

}  // namespace orvendal
