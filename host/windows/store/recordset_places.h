#pragma once

#include "host/windows/store/data_object.h"

namespace orvendal {

/// The members of _Recordset that the embedded store does not provide. Each answers 3251, with an empty
/// result.
class RecordsetPlaces : public DataObject<::_Recordset> {
 public:
  HRESULT STDMETHODCALLTYPE get_Properties(IDispatch** result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_Bookmark(VARIANT* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE put_Bookmark(VARIANT) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE putref_Source(IDispatch*) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE Delete(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE GetRows(LONG, VARIANT, VARIANT, VARIANT* result) noexcept override {
    return Refuse(result);
  }
  HRESULT STDMETHODCALLTYPE Move(ADO_LONGPTR, VARIANT) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE Requery(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE _xResync(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_AbsolutePage(ADO_LONGPTR* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE put_AbsolutePage(ADO_LONGPTR) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_Filter(VARIANT* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE put_Filter(VARIANT) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_PageCount(ADO_LONGPTR* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_PageSize(LONG* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE put_PageSize(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_Sort(BSTR* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE put_Sort(BSTR) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_Status(LONG* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE _xClone(::_Recordset** result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE UpdateBatch(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE CancelBatch(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE NextRecordset(VARIANT*, ::_Recordset** result) noexcept override {
    return Refuse(result);
  }
  HRESULT STDMETHODCALLTYPE Supports(LONG, VARIANT_BOOL* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE get_MarshalOptions(LONG* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE put_MarshalOptions(LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_DataSource(IUnknown** result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE putref_DataSource(IUnknown*) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE _xSave(BSTR, LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_ActiveCommand(IDispatch** result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE put_StayInSync(VARIANT_BOOL) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_StayInSync(VARIANT_BOOL* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE GetString(LONG, LONG, BSTR, BSTR, BSTR, BSTR* result) noexcept override {
    return Refuse(result);
  }
  HRESULT STDMETHODCALLTYPE get_DataMember(BSTR* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE put_DataMember(BSTR) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE CompareBookmarks(VARIANT, VARIANT, LONG* result) noexcept override {
    return Refuse(result);
  }
  HRESULT STDMETHODCALLTYPE Clone(LONG, ::_Recordset** result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE Resync(LONG, LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE Seek(VARIANT, LONG) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE put_Index(BSTR) noexcept override { return NotProvided(); }
  HRESULT STDMETHODCALLTYPE get_Index(BSTR* result) noexcept override { return Refuse(result); }
  HRESULT STDMETHODCALLTYPE Save(VARIANT, LONG) noexcept override { return NotProvided(); }

 protected:
  using DataObject::DataObject;
};

}  // namespace orvendal
