// The smallest host of the screen: opens a connection of ADO, gives the component a session object of its
// own, and keeps the message loop running until the screen is closed.
//   host.exe "Provider=SQLOLEDB.1;Data Source=server;Initial Catalog=chain;Integrated Security=SSPI" [BRANCH]
// The headers are made from the interface definitions beside this file, for example with
//   midl DllTrevano.idl        widl -h -o DllTrevano.h DllTrevano.idl

#include <windows.h>

#include <oleauto.h>
#include <shellapi.h>

#include <string>

#include "DllOrvendal.h"
#include "DllTrevano.h"
#include "data_objects.h"

namespace {

constexpr GUID kConnectionClass = {0x514, 0, 0x10, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};
constexpr GUID kRecordsetClass = {0x535, 0, 0x10, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};
constexpr GUID kConnectionInterface = {0x550, 0, 0x10, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};
constexpr GUID kRecordsetInterface = {0x556, 0, 0x10, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};

constexpr LONG kStatic = 3;
constexpr LONG kReadOnly = 1;
constexpr LONG kUnspecified = -1;

// The screen's texts. Each dictionary is a recordset that stands on one record; its fields are the keys.
constexpr const wchar_t* kGeneral =
    L"SELECT 'Cancel' AS [Cancelar], 'Search' AS [Buscar], 'Details' AS [Datos de Interes], 'Stylist' AS "
    L"[Estilista], "
    L"'Date' AS [Fecha], 'Code' AS [Codigo], 'Description' AS [Descripcion], 'Branch' AS [Sucursal]";
constexpr const wchar_t* kActions = L"SELECT 'Supervisor' AS [Supervisor], 'Delete Line' AS [Borrar Linea]";
constexpr const wchar_t* kScreens = L"SELECT 'Orvendal' AS [Orvendalciales]";

class Text {
 public:
  explicit Text(const wchar_t* text) : text_(SysAllocString(text)) {}
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  ~Text() { SysFreeString(text_); }
  operator BSTR() const { return text_; }
  BSTR* Address() { return &text_; }

 private:
  BSTR text_;
};

/// Every argument is in-out: what stands there belongs to the caller, and who replaces it frees it.
void Replace(IDispatch** place, IDispatch* object) {
  object->AddRef();
  if (*place) (*place)->Release();
  *place = object;
}

void Replace(BSTR* place, const wchar_t* text) {
  SysReAllocString(place, text);
}

/// The connection and the dictionaries, opened once and handed out at every call of the component.
class Session final : public _DatosClase {
 public:
  HRESULT Open(const wchar_t* connection_string) {
    HRESULT result = CoCreateInstance(kConnectionClass, nullptr, CLSCTX_INPROC_SERVER, kConnectionInterface,
                                      reinterpret_cast<void**>(&connection_));
    if (FAILED(result)) return result;
    result = connection_->Open(Text(connection_string), Text(L""), Text(L""), kUnspecified);
    const wchar_t* const statements[] = {kGeneral, kActions, kScreens};
    for (int index = 0; index < 3 && SUCCEEDED(result); ++index) {
      result = Select(statements[index], &dictionaries_[index]);
    }
    return result;
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch && iid != __uuidof(_DatosClase)) return E_NOINTERFACE;
    AddRef();
    *object = static_cast<_DatosClase*>(this);
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  // The component calls at places, never by name.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }

  HRESULT STDMETHODCALLTYPE Reservada1() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RellenarSesion(IDispatch** connection, IDispatch**, IDispatch**, IDispatch**,
                                           IDispatch**, IDispatch**, IDispatch**, LONG* base_width,
                                           LONG* base_height, double*, IDispatch** general,
                                           IDispatch** actions, IDispatch** screens, BSTR* session_text,
                                           BSTR*) override {
    constexpr LONG kTwipsPerPixel = 15;
    Replace(connection, connection_);
    Replace(general, dictionaries_[0]);
    Replace(actions, dictionaries_[1]);
    Replace(screens, dictionaries_[2]);
    *base_width = 1024 * kTwipsPerPixel;
    *base_height = 768 * kTwipsPerPixel;
    Replace(session_text, L"smallest host");
    return S_OK;
  }

 private:
  ~Session() {
    for (_Recordset* const dictionary : dictionaries_) {
      if (dictionary) dictionary->Release();
    }
    if (connection_) connection_->Release();
  }

  HRESULT Select(const wchar_t* statement, _Recordset** dictionary) {
    HRESULT result = CoCreateInstance(kRecordsetClass, nullptr, CLSCTX_INPROC_SERVER, kRecordsetInterface,
                                      reinterpret_cast<void**>(dictionary));
    if (FAILED(result)) return result;
    const Text text(statement);
    VARIANT source;
    V_VT(&source) = VT_BSTR;
    V_BSTR(&source) = text;
    VARIANT connection;
    V_VT(&connection) = VT_DISPATCH;
    V_DISPATCH(&connection) = connection_;
    return (*dictionary)->Open(source, connection, kStatic, kReadOnly, kUnspecified);
  }

  ULONG references_ = 1;
  _Connection* connection_ = nullptr;
  _Recordset* dictionaries_[3] = {};
};

/// What the system or the component says of a failed call.
std::wstring Explanation(HRESULT result) {
  wchar_t number[32];
  wsprintfW(number, L"%08lX", static_cast<unsigned long>(result));
  std::wstring text = number;
  IErrorInfo* info = nullptr;
  if (GetErrorInfo(0, &info) == S_OK) {
    BSTR description = nullptr;
    if (SUCCEEDED(info->GetDescription(&description)) && description)
      text += std::wstring(L": ") + description;
    SysFreeString(description);
    info->Release();
  }
  return text;
}

BOOL CALLBACK FindVisible(HWND window, LPARAM found) {
  if (!IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<bool*>(found) = true;
  return FALSE;
}

bool AWindowIsOpen() {
  bool open = false;
  EnumThreadWindows(GetCurrentThreadId(), FindVisible, reinterpret_cast<LPARAM>(&open));
  return open;
}

HRESULT CallComponent(_DatosClase* session, const wchar_t* branch) {
  _ClassOrvendal* component = nullptr;
  HRESULT result = CoCreateInstance(__uuidof(ClassOrvendal), nullptr, CLSCTX_INPROC_SERVER,
                                    __uuidof(_ClassOrvendal), reinterpret_cast<void**>(&component));
  if (FAILED(result)) return result;
  Text suc(branch);
  Text puest(L"1");
  Text turn(L"1");
  VARIANT_BOOL nothing = VARIANT_FALSE;  // the answer is always False
  result = component->Orvendal(&session, suc.Address(), puest.Address(), turn.Address(), &nothing);
  component->Release();
  return result;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  // The screen lives in this thread's message loop, so the apartment has to be a single-threaded one.
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  auto* const session = new Session;
  HRESULT result = session->Open(count > 1 ? words[1] : L"");
  if (SUCCEEDED(result)) result = CallComponent(session, count > 2 ? words[2] : L"01");
  session->Release();
  LocalFree(words);
  if (FAILED(result)) {
    MessageBoxW(nullptr, Explanation(result).c_str(), L"Stock count", MB_ICONERROR);
  } else {
    MSG message;
    while (AWindowIsOpen() && GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  // Lets the component drop what it keeps of the session, the connection among it.
  CoFreeUnusedLibrariesEx(0, 0);
  CoUninitialize();
  return FAILED(result) ? 1 : 0;
}
