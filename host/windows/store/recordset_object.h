#pragma once

#include <string>

#include "adapters/sqlite/sqlite_recordset.h"
#include "host/windows/store/connection_object.h"
#include "host/windows/store/recordset_places.h"

namespace orvendal {

class FieldsObject;

namespace cursor_type {
inline constexpr LONG kForwardOnly = 0;
inline constexpr LONG kKeyset = 1;
inline constexpr LONG kDynamic = 2;
inline constexpr LONG kStatic = 3;
}  // namespace cursor_type
namespace lock_type {
inline constexpr LONG kReadOnly = 1;
inline constexpr LONG kOptimistic = 3;
inline constexpr LONG kBatchOptimistic = 4;
}  // namespace lock_type
namespace cursor_location {
inline constexpr LONG kServer = 2;
inline constexpr LONG kClient = 3;
}  // namespace cursor_location

/// ADO's Recordset over the embedded store. A static cursor reads its rows at the opening, a dynamic one when
/// they are asked for; a keyset, and a forward-only cursor but for its count and positions, are as static
/// ones. Locks other than read-only are optimistic. While it is open, CursorType and LockType say what the
/// client got: with Jet a keyset where it asked for a dynamic cursor.
class RecordsetObject final : public RecordsetPlaces {
 public:
  RecordsetObject() noexcept;

  /// The rows of a command, forward-only and read-only; closed if it has none. Raises the store's error.
  static ComPtr<RecordsetObject> OfCommand(ConnectionObject& connection, const std::string& command,
                                           LONG options);
  bool IsOpen() const { return rows_.State() == kStateOpen; }

  // For its fields. They raise what the recordset raises.
  sqlite::SqliteRecordset& Rows() { return rows_; }
  /// Which of its openings this is.
  unsigned Opening() const { return opening_; }
  Dialect GetDialect() const;
  /// By name or by number from 0. Raises 3265 if there is no such field.
  std::size_t FieldAt(const VARIANT& index) const;
  void Forget(const FieldsObject* fields);

  HRESULT STDMETHODCALLTYPE get_AbsolutePosition(ADO_LONGPTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_AbsolutePosition(ADO_LONGPTR position) noexcept override;
  HRESULT STDMETHODCALLTYPE putref_ActiveConnection(IDispatch* connection) noexcept override;
  HRESULT STDMETHODCALLTYPE put_ActiveConnection(VARIANT connection) noexcept override;
  HRESULT STDMETHODCALLTYPE get_ActiveConnection(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_BOF(VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CacheSize(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_CacheSize(LONG size) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CursorType(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_CursorType(LONG type) noexcept override;
  HRESULT STDMETHODCALLTYPE get_EOF(VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Fields(::Fields** result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_LockType(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_LockType(LONG type) noexcept override;
  HRESULT STDMETHODCALLTYPE get_MaxRecords(ADO_LONGPTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_MaxRecords(ADO_LONGPTR count) noexcept override;
  HRESULT STDMETHODCALLTYPE get_RecordCount(ADO_LONGPTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Source(BSTR source) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Source(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE AddNew(VARIANT fields, VARIANT values) noexcept override;
  HRESULT STDMETHODCALLTYPE CancelUpdate() noexcept override;
  HRESULT STDMETHODCALLTYPE Close() noexcept override;
  HRESULT STDMETHODCALLTYPE MoveNext() noexcept override;
  HRESULT STDMETHODCALLTYPE MovePrevious() noexcept override;
  HRESULT STDMETHODCALLTYPE MoveFirst() noexcept override;
  HRESULT STDMETHODCALLTYPE MoveLast() noexcept override;
  HRESULT STDMETHODCALLTYPE Open(VARIANT source, VARIANT connection, LONG cursor, LONG lock,
                                 LONG options) noexcept override;
  HRESULT STDMETHODCALLTYPE Update(VARIANT fields, VARIANT values) noexcept override;
  HRESULT STDMETHODCALLTYPE get_EditMode(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_State(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CursorLocation(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_CursorLocation(LONG location) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Collect(VARIANT index, VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Collect(VARIANT index, VARIANT value) noexcept override;
  HRESULT STDMETHODCALLTYPE Find(BSTR criteria, LONG skip, LONG direction, VARIANT start) noexcept override;
  HRESULT STDMETHODCALLTYPE Cancel() noexcept override;

 private:
  HRESULT Call(const DispatchCall& call) override;
  void RequireClosed() const;
  void RequireOpen() const;
  /// Counts and positions are not known with a forward-only cursor.
  bool CountsRows() const;
  void ConnectTo(const VARIANT& connection);
  void OpenRows(const std::string& text, LONG options);
  LONG CursorInUse() const;

  sqlite::SqliteRecordset rows_;
  ComPtr<ConnectionObject> connection_;
  FieldsObject* fields_ = nullptr;  // counted by its clients; it takes itself off
  std::string source_;
  LONG cursor_;
  LONG lock_;
  LONG cursor_location_;
  LONG cache_size_ = 1;
  unsigned opening_ = 0;
};

}  // namespace orvendal
