#pragma once

#include "host/windows/store/recordset_object.h"

namespace orvendal {

/// The fields of a recordset as it stands: none while it is closed, others after another opening. Keeps the
/// recordset alive.
class FieldsObject final : public DataObject<::Fields> {
 public:
  explicit FieldsObject(RecordsetObject& recordset) noexcept;

  HRESULT STDMETHODCALLTYPE get_Count(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE _NewEnum(IUnknown** result) noexcept override;
  HRESULT STDMETHODCALLTYPE Refresh() noexcept override;
  HRESULT STDMETHODCALLTYPE get_Item(VARIANT index, ::Field** result) noexcept override;

  // Not provided.
  HRESULT STDMETHODCALLTYPE _Append(BSTR, LONG, ADO_LONGPTR, LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE Delete(VARIANT) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE Append(BSTR, LONG, ADO_LONGPTR, LONG, VARIANT) noexcept override {
    return NotProvided();
  }
  HRESULT STDMETHODCALLTYPE Update() noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE Resync(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE CancelUpdate() noexcept override { return NotProvided(); }

 private:
  ~FieldsObject() override;
  HRESULT Call(const DispatchCall& call) override;

  ComPtr<RecordsetObject> recordset_;
};

/// One field, whose value follows the current row. Keeps the recordset alive; once that is closed, everything
/// here raises 3420.
class FieldObject final : public DataObject<::Field> {
 public:
  FieldObject(RecordsetObject& recordset, std::size_t index) noexcept;

  HRESULT STDMETHODCALLTYPE get_DefinedSize(ADO_LONGPTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Name(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Type(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Value(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Value(VARIANT value) noexcept override;

  // Not provided.
  HRESULT STDMETHODCALLTYPE get_Properties(IDispatch** result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_ActualSize(ADO_LONGPTR* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_Attributes(LONG* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_Precision(unsigned char* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_NumericScale(unsigned char* result) noexcept override {
    return Refuse(result);
  }
  HRESULT STDMETHODCALLTYPE AppendChunk(VARIANT) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE GetChunk(LONG, VARIANT* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_OriginalValue(VARIANT* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_UnderlyingValue(VARIANT* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_DataFormat(IUnknown** result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE putref_DataFormat(IUnknown*) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE put_Precision(unsigned char) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE put_NumericScale(unsigned char) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE put_Type(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE put_DefinedSize(ADO_LONGPTR) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE put_Attributes(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_Status(LONG* result) noexcept override { return Refuse(result); }

 private:
  /// The rows of the opening that the field belongs to.
  sqlite::SqliteRecordset& Rows() const;

  ComPtr<RecordsetObject> recordset_;
  std::size_t index_;
  unsigned opening_;
};

}  // namespace orvendal
