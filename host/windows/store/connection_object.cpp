#include "host/windows/store/connection_object.h"

#include <sqlite3.h>

#include <limits>

#include "adapters/automation/bstr.h"
#include "adapters/automation/variant.h"
#include "host/windows/store/open_store.h"
#include "host/windows/store/recordset_object.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

constexpr GUID kIdentifiers[] = {ado::kAdo,          ado::kNewerAdo,
                                 ado::kConnection15, ado::kNewerConnection15,
                                 ado::kConnection,   ado::kNewerConnection};
constexpr DataObjectKind kKind{L"ADODB.Connection", kIdentifiers};

// By which the module knows its own connections: the object's own address comes back.
constexpr GUID kOwnConnection = {
    0xC1D8F3A4, 0x7B0E, 0x4E55, {0x9A, 0x3B, 0x5E, 0x0D, 0x61, 0x28, 0xC7, 0x19}};

constexpr std::int32_t kInTransaction = 3246;
constexpr std::int32_t kTransactionExists = -2147168237;  // 8004D013
constexpr std::int32_t kNoTransaction = -2147168242;      // 8004D00E

constexpr LONG kAsynchronously = 0x10;
constexpr LONG kNoRecords = 0x80;
constexpr LONG kServerCursors = 2;
constexpr LONG kClientCursors = 3;

constexpr const char* kDefaultProvider = "MSDASQL";

void RequireSeconds(LONG seconds) {
  if (seconds < 0) throw AdoError(ado_error::kInvalidArgument);
}

}  // namespace

ConnectionObject::ConnectionObject() noexcept : DataObject(kKind) {}

ConnectionObject::~ConnectionObject() {
  if (IsOpen()) store_->Close();
}

ComPtr<ConnectionObject> ConnectionObject::Behind(IUnknown* object) {
  void* own = nullptr;
  if (!object || FAILED(object->QueryInterface(kOwnConnection, &own))) return {};
  return ComPtr<ConnectionObject>::Adopt(static_cast<ConnectionObject*>(own));
}

void* ConnectionObject::Find(REFIID iid) noexcept {
  return iid == kOwnConnection ? this : DataObject::Find(iid);
}

std::shared_ptr<SqliteConnection> ConnectionObject::Store() const {
  if (!IsOpen()) throw AdoError(ado_error::kInvalidConnection);
  return store_;
}

SqliteConnection& ConnectionObject::OpenedStore() const {
  if (!IsOpen()) throw AdoError(ado_error::kObjectClosed);
  return *store_;
}

void ConnectionObject::RequireClosed() const {
  if (IsOpen()) throw AdoError(ado_error::kObjectOpen);
}

void ConnectionObject::OpenBy(const std::string& connection_string) {
  RequireClosed();
  if (!connection_string.empty()) connection_string_ = connection_string;
  ConnectionSettings settings = ReadConnectionString(connection_string_);
  if (settings.provider.empty()) settings.provider = provider_;
  store_ = OpenStore(settings);
  ApplyCommandTimeout();
}

void ConnectionObject::ApplyCommandTimeout() {
  constexpr int kMilliseconds = 1000;
  constexpr int kLongest = std::numeric_limits<int>::max();
  const bool bounded = command_timeout_ > 0 && command_timeout_ < kLongest / kMilliseconds;
  if (!IsOpen()) return;
  const int milliseconds = bounded ? static_cast<int>(command_timeout_) * kMilliseconds : 0;
  store_->BusyTimeout(bounded ? milliseconds : kLongest);
  // A client that asks for nothing gives its statements longer than the wait for another program.
  if (command_timeout_set_) store_->CommandTimeout(milliseconds);
}

HRESULT ConnectionObject::Open(BSTR text, BSTR /*user*/, BSTR /*password*/, LONG options) noexcept {
  return Do([&] {
    if (options != -1 && (options & kAsynchronously) != 0) RaiseNotProvided();
    OpenBy(TextOfBstr(text));
  });
}

HRESULT ConnectionObject::Close() noexcept {
  return Do([&] {
    OpenedStore();
    if (in_transaction_) {
      throw RuntimeError(kInTransaction,
                         "Connection object cannot be explicitly closed while in a transaction.");
    }
    store_->Close();
    store_.reset();
  });
}

HRESULT ConnectionObject::get_State(LONG* result) noexcept {
  return Give(result, [&] { return LONG{IsOpen() ? kStateOpen : kStateClosed}; });
}

HRESULT ConnectionObject::get_Provider(BSTR* result) noexcept {
  return Give(result, [&] {
    if (IsOpen()) return MakeBstr(store_->Provider());
    return MakeBstr(provider_.empty() ? kDefaultProvider : provider_);
  });
}

HRESULT ConnectionObject::put_Provider(BSTR text) noexcept {
  return Do([&] {
    RequireClosed();
    provider_ = TextOfBstr(text);
  });
}

HRESULT ConnectionObject::get_ConnectionString(BSTR* result) noexcept {
  return Give(result, [&] { return MakeBstr(connection_string_); });
}

HRESULT ConnectionObject::put_ConnectionString(BSTR text) noexcept {
  return Do([&] {
    RequireClosed();
    const std::string given = TextOfBstr(text);
    const ConnectionSettings settings = ReadConnectionString(given);
    connection_string_ = given;
    if (!settings.provider.empty()) provider_ = settings.provider;
  });
}

HRESULT ConnectionObject::Execute(BSTR command, VARIANT* affected, LONG options,
                                  ::_Recordset** result) noexcept {
  return Do({result}, [&] {
    *result = nullptr;
    SqliteConnection& store = OpenedStore();
    const bool unspecified = options == kCommandUnspecified;
    const int before = sqlite3_total_changes(store.Handle());
    ComPtr<RecordsetObject> rows =
        RecordsetObject::OfCommand(*this, TextOfBstr(command), unspecified ? options : options & ~kNoRecords);
    if (affected) {
      VariantInit(affected);
      const int changes = sqlite3_total_changes(store.Handle()) - before;
      WriteLong(*affected, rows->IsOpen() ? -1 : changes);
    }
    if (unspecified || !(options & kNoRecords)) *result = rows.Detach();
  });
}

HRESULT ConnectionObject::BeginTrans(LONG* result) noexcept {
  return Give(result, [&] {
    SqliteConnection& store = OpenedStore();
    if (in_transaction_) {
      throw RuntimeError(kTransactionExists, "Cannot start more transactions on this session.");
    }
    store.Execute("BEGIN");
    in_transaction_ = true;
    return LONG{1};
  });
}

void ConnectionObject::EndTransaction(const char* statement) {
  SqliteConnection& store = OpenedStore();
  if (!in_transaction_) throw RuntimeError(kNoTransaction, "No transaction is active.");
  // A commit that another program holds up leaves the transaction as it is, to be tried again.
  if (sqlite3_get_autocommit(store.Handle()) == 0) store.Execute(statement);
  in_transaction_ = false;
}

HRESULT ConnectionObject::CommitTrans() noexcept {
  return Do([&] { EndTransaction("COMMIT"); });
}

HRESULT ConnectionObject::RollbackTrans() noexcept {
  return Do([&] { EndTransaction("ROLLBACK"); });
}

HRESULT ConnectionObject::get_CommandTimeout(LONG* result) noexcept {
  return Give(result, [&] { return command_timeout_; });
}

HRESULT ConnectionObject::put_CommandTimeout(LONG seconds) noexcept {
  return Do([&] {
    RequireSeconds(seconds);
    command_timeout_ = seconds;
    command_timeout_set_ = true;
    ApplyCommandTimeout();
  });
}

HRESULT ConnectionObject::get_ConnectionTimeout(LONG* result) noexcept {
  return Give(result, [&] { return connection_timeout_; });
}

HRESULT ConnectionObject::put_ConnectionTimeout(LONG seconds) noexcept {
  return Do([&] {
    RequireClosed();
    RequireSeconds(seconds);
    connection_timeout_ = seconds;
  });
}

HRESULT ConnectionObject::get_CursorLocation(LONG* result) noexcept {
  return Give(result, [&] { return cursor_location_; });
}

HRESULT ConnectionObject::put_CursorLocation(LONG location) noexcept {
  return Do([&] {
    if (location != kServerCursors && location != kClientCursors) throw AdoError(ado_error::kInvalidArgument);
    cursor_location_ = location;
  });
}

HRESULT ConnectionObject::get_Version(BSTR* result) noexcept {
  return Give(result, [] { return MakeBstr("2.8"); });
}

HRESULT ConnectionObject::get_DefaultDatabase(BSTR* result) noexcept {
  return Give(result, [&] { return MakeBstr(OpenedStore().Path()); });
}

HRESULT ConnectionObject::Cancel() noexcept {
  return Do([&] { OpenedStore(); });  // nothing ever runs on
}

HRESULT ConnectionObject::get_Properties(IDispatch** result) noexcept {
  return Refuse(result);
}

HRESULT ConnectionObject::get_Errors(IDispatch** result) noexcept {
  return Refuse(result);
}

HRESULT ConnectionObject::put_DefaultDatabase(BSTR /*text*/) noexcept {
  return NotProvided();
}

HRESULT ConnectionObject::get_IsolationLevel(LONG* result) noexcept {
  return Refuse(result);
}

HRESULT ConnectionObject::put_IsolationLevel(LONG /*level*/) noexcept {
  return NotProvided();
}

HRESULT ConnectionObject::get_Attributes(LONG* result) noexcept {
  return Refuse(result);
}

HRESULT ConnectionObject::put_Attributes(LONG /*attributes*/) noexcept {
  return NotProvided();
}

HRESULT ConnectionObject::get_Mode(LONG* result) noexcept {
  return Refuse(result);
}

HRESULT ConnectionObject::put_Mode(LONG /*mode*/) noexcept {
  return NotProvided();
}

HRESULT ConnectionObject::OpenSchema(LONG /*schema*/, VARIANT /*restrictions*/, VARIANT /*id*/,
                                     ::_Recordset** result) noexcept {
  return Refuse(result);
}

}  // namespace orvendal
