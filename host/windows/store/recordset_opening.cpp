#include <limits>

#include "adapters/automation/bstr.h"
#include "adapters/automation/variant.h"
#include "host/windows/store/recordset_object.h"
#include "platform/data/ado_error.h"

// How a recordset comes to its rows: what a client sets before the opening, the opening itself, the closing.

namespace orvendal {
namespace {

constexpr std::int32_t kNoCommand = -2147217908;  // 80040E0C

constexpr LONG kUnspecified = -1;
constexpr LONG kText = 1;
constexpr LONG kTable = 2;
constexpr LONG kUnknown = 8;
constexpr LONG kTableDirect = 512;

/// The statement that a command of this type stands for.
std::string StatementOf(const std::string& text, LONG options) {
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
    throw RuntimeError(kNoCommand, "Command text was not set for the command object.");
  }
  switch (options) {
    case kUnspecified:
    case 0:
    case kText:
    case kUnknown:
      return text;
    case kTable:
    case kTableDirect:
      return "SELECT * FROM " + text;
    default:
      RaiseNotProvided();
  }
}

void RequireBetween(LONG value, LONG least, LONG most) {
  if (value < least || value > most) throw AdoError(ado_error::kInvalidArgument);
}

std::string TextOf(const VARIANT& argument) {
  std::string text;
  if (FAILED(ReadText(argument, LOCALE_USER_DEFAULT, text))) throw AdoError(ado_error::kInvalidArgument);
  return text;
}

}  // namespace

ComPtr<RecordsetObject> RecordsetObject::OfCommand(ConnectionObject& connection, const std::string& command,
                                                   LONG options) {
  auto rows = ComPtr<RecordsetObject>::Adopt(new RecordsetObject);
  rows->connection_ = ComPtr<ConnectionObject>(&connection);
  connection.get_CursorLocation(&rows->cursor_location_);
  rows->OpenRows(command, options);
  return rows;
}

void RecordsetObject::OpenRows(const std::string& text, LONG options) {
  RequireClosed();
  if (!connection_) throw AdoError(ado_error::kInvalidConnection);
  const std::shared_ptr<SqliteConnection> store = connection_->Store();
  const bool dynamic = cursor_ == cursor_type::kDynamic && cursor_location_ == cursor_location::kServer;
  ++opening_;
  rows_.Open(StatementOf(text, options), store, dynamic ? CursorType::kDynamic : CursorType::kStatic,
             lock_ == lock_type::kReadOnly ? LockType::kReadOnly : LockType::kOptimistic,
             kCommandUnspecified);
}

HRESULT RecordsetObject::Open(VARIANT source, VARIANT connection, LONG cursor, LONG lock,
                              LONG options) noexcept {
  return Do([&] {
    RequireClosed();
    if (cursor != kUnspecified) {
      RequireBetween(cursor, cursor_type::kForwardOnly, cursor_type::kStatic);
      cursor_ = cursor;
    }
    if (lock != kUnspecified) {
      RequireBetween(lock, lock_type::kReadOnly, lock_type::kBatchOptimistic);
      lock_ = lock;
    }
    if (!IsOmitted(source)) source_ = TextOf(source);
    if (!IsOmitted(connection)) ConnectTo(connection);
    OpenRows(source_, options);
  });
}

HRESULT RecordsetObject::Close() noexcept {
  return Do([&] {
    // ADO does not close over a row that is neither posted nor cancelled.
    if (rows_.EditMode() != 0) throw AdoError(ado_error::kIllegalOperation);
    rows_.Close();
    ++opening_;
  });
}

HRESULT RecordsetObject::get_State(LONG* result) noexcept {
  return Give(result, [&] { return LONG{rows_.State()}; });
}

// A connection, the text of one that is then the recordset's own, or nothing.
void RecordsetObject::ConnectTo(const VARIANT& connection) {
  RequireClosed();
  if (V_VT(&connection) == VT_EMPTY || V_VT(&connection) == VT_NULL) return connection_.Reset();
  ComPtr<IUnknown> object;
  if (SUCCEEDED(ReadObject(connection, object))) {
    ComPtr<ConnectionObject> own = ConnectionObject::Behind(object.Get());
    if (object && !own) throw AdoError(ado_error::kInvalidArgument);
    connection_ = std::move(own);
    return;
  }
  auto own = ComPtr<ConnectionObject>::Adopt(new ConnectionObject);
  own->OpenBy(TextOf(connection));
  connection_ = std::move(own);
}

HRESULT RecordsetObject::put_ActiveConnection(VARIANT connection) noexcept {
  return Do([&] { ConnectTo(connection); });
}

HRESULT RecordsetObject::putref_ActiveConnection(IDispatch* connection) noexcept {
  VARIANT argument;
  VariantInit(&argument);
  V_VT(&argument) = VT_DISPATCH;
  V_DISPATCH(&argument) = connection;
  return put_ActiveConnection(argument);
}

HRESULT RecordsetObject::get_ActiveConnection(VARIANT* result) noexcept {
  return Give(result, [&] {
    VARIANT connection;
    VariantInit(&connection);
    WriteObject(connection, ComPtr<IDispatch>(connection_.Get()));
    return connection;
  });
}

HRESULT RecordsetObject::get_Source(VARIANT* result) noexcept {
  return Give(result, [&] {
    VARIANT source;
    VariantInit(&source);
    WriteText(source, source_);
    return source;
  });
}

HRESULT RecordsetObject::put_Source(BSTR source) noexcept {
  return Do([&] {
    RequireClosed();
    source_ = TextOfBstr(source);
  });
}

LONG RecordsetObject::CursorInUse() const {
  if (!IsOpen()) return cursor_;
  if (cursor_location_ == cursor_location::kClient || cursor_ == cursor_type::kKeyset) {
    return cursor_type::kStatic;
  }
  const bool keyset = cursor_ == cursor_type::kDynamic && GetDialect() == Dialect::kJet;
  return keyset ? cursor_type::kKeyset : cursor_;
}

HRESULT RecordsetObject::get_CursorType(LONG* result) noexcept {
  return Give(result, [&] { return CursorInUse(); });
}

HRESULT RecordsetObject::put_CursorType(LONG type) noexcept {
  return Do([&] {
    RequireClosed();
    RequireBetween(type, cursor_type::kForwardOnly, cursor_type::kStatic);
    cursor_ = type;
  });
}

HRESULT RecordsetObject::get_LockType(LONG* result) noexcept {
  return Give(result, [&] {
    const bool optimistic = IsOpen() && lock_ != lock_type::kReadOnly;
    return optimistic ? lock_type::kOptimistic : lock_;
  });
}

HRESULT RecordsetObject::put_LockType(LONG type) noexcept {
  return Do([&] {
    RequireClosed();
    RequireBetween(type, lock_type::kReadOnly, lock_type::kBatchOptimistic);
    lock_ = type;
  });
}

HRESULT RecordsetObject::get_CursorLocation(LONG* result) noexcept {
  return Give(result, [&] { return cursor_location_; });
}

HRESULT RecordsetObject::put_CursorLocation(LONG location) noexcept {
  return Do([&] {
    RequireClosed();
    RequireBetween(location, cursor_location::kServer, cursor_location::kClient);
    cursor_location_ = location;
  });
}

HRESULT RecordsetObject::get_CacheSize(LONG* result) noexcept {
  return Give(result, [&] { return cache_size_; });
}

HRESULT RecordsetObject::put_CacheSize(LONG size) noexcept {
  return Do([&] {
    RequireBetween(size, 1, std::numeric_limits<LONG>::max());
    cache_size_ = size;
  });
}

HRESULT RecordsetObject::get_MaxRecords(ADO_LONGPTR* result) noexcept {
  return Give(result, [] { return ADO_LONGPTR{0}; });
}

HRESULT RecordsetObject::put_MaxRecords(ADO_LONGPTR count) noexcept {
  return Do([&] {
    RequireClosed();
    if (count != 0) RaiseNotProvided();  // 0 is all of them
  });
}

}  // namespace orvendal
