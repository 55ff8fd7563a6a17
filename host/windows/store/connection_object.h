#pragma once

#include <memory>
#include <string>

#include "adapters/sqlite/sqlite_store.h"
#include "host/windows/store/data_object.h"

namespace orvendal {

class RecordsetObject;

/// ADO's Connection over one file of the embedded store. It opens at once and in place, commits each
/// statement by itself outside a transaction, and has one level of transactions. CommandTimeout is how many
/// seconds a statement waits for another program that holds the file, and may run: 2 and 30 until it is set;
/// 0 is without end.
///
/// Invariant: open from Open until Close or the last reference; a transaction that is open then is rolled
/// back.
class ConnectionObject final : public DataObject<::_Connection> {
 public:
  ConnectionObject() noexcept;

  /// The object behind an interface that a client passed, if it is one of this module.
  static ComPtr<ConnectionObject> Behind(IUnknown* object);
  /// The open store; raises 3709 if the connection is closed.
  std::shared_ptr<SqliteConnection> Store() const;
  /// As the method of the same name, with no name and no password. Raises 3705 if it is open.
  void OpenBy(const std::string& connection_string);

  HRESULT STDMETHODCALLTYPE get_Properties(IDispatch** result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_ConnectionString(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_ConnectionString(BSTR text) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CommandTimeout(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_CommandTimeout(LONG seconds) noexcept override;
  HRESULT STDMETHODCALLTYPE get_ConnectionTimeout(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_ConnectionTimeout(LONG seconds) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Version(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE Close() noexcept override;
  HRESULT STDMETHODCALLTYPE Execute(BSTR command, VARIANT* affected, LONG options,
                                    ::_Recordset** result) noexcept override;
  HRESULT STDMETHODCALLTYPE BeginTrans(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CommitTrans() noexcept override;
  HRESULT STDMETHODCALLTYPE RollbackTrans() noexcept override;
  HRESULT STDMETHODCALLTYPE Open(BSTR text, BSTR user, BSTR password, LONG options) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Errors(IDispatch** result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_DefaultDatabase(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_DefaultDatabase(BSTR text) noexcept override;
  HRESULT STDMETHODCALLTYPE get_IsolationLevel(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_IsolationLevel(LONG level) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Attributes(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Attributes(LONG attributes) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CursorLocation(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_CursorLocation(LONG location) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Mode(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Mode(LONG mode) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Provider(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Provider(BSTR text) noexcept override;
  HRESULT STDMETHODCALLTYPE get_State(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE OpenSchema(LONG schema, VARIANT restrictions, VARIANT id,
                                       ::_Recordset** result) noexcept override;
  HRESULT STDMETHODCALLTYPE Cancel() noexcept override;

 private:
  ~ConnectionObject() override;

  void* Find(REFIID iid) noexcept override;
  bool IsOpen() const { return store_ && store_->IsOpen(); }
  void RequireClosed() const;
  SqliteConnection& OpenedStore() const;
  void ApplyCommandTimeout();
  void EndTransaction(const char* statement);

  std::shared_ptr<SqliteConnection> store_;
  std::string connection_string_;
  std::string provider_;  // as set; empty until then
  bool in_transaction_ = false;
  LONG command_timeout_ = 2;
  bool command_timeout_set_ = false;
  LONG connection_timeout_ = 15;
  LONG cursor_location_ = 2;
};

}  // namespace orvendal
