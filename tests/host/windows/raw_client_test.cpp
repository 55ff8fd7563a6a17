#include <thread>

#include "adapters/ado/ado_recordset_factory.h"
#include "adapters/ado/ado_wrappers.h"
#include "host/sample/dictionaries.h"
#include "host/windows/user_language.h"
#include "host/words.h"
#include "tests/host/windows/library/library_fixture.h"
#include "tests/host/windows/program/hands.h"

namespace orvendal {
namespace {

// What the client knows of the component is written down here, as a host in C would have it: identifiers, and
// functions at their places.
constexpr GUID kComponentClass = {
    0x5DFDE722, 0xC9BD, 0x4BF4, {0xB2, 0xDA, 0x20, 0xEC, 0x56, 0x00, 0x10, 0x07}};
constexpr GUID kComponentInterface = {
    0x4F7B0BBB, 0xE42D, 0x4070, {0x90, 0x98, 0x19, 0x44, 0xA4, 0x09, 0x46, 0x1D}};
constexpr GUID kSessionInterface = {
    0xE1E51C00, 0xF9A7, 0x4D53, {0x88, 0xE1, 0xDB, 0x77, 0x2D, 0x14, 0x09, 0x76}};
constexpr std::size_t kOrvendal = 7;

using OrvendalFunction = HRESULT(STDMETHODCALLTYPE*)(void* self, void** session, BSTR* branch,
                                                     BSTR* workstation, BSTR* shift, VARIANT_BOOL* result);

/// A session object made of nothing but a table of functions.
struct RawSession {
  const void* const* table;
  ULONG references = 1;
  int fillings = 0;
  IDispatch* connection = nullptr;
  IDispatch* dictionaries[3] = {};

  static RawSession& Of(void* self) { return *static_cast<RawSession*>(self); }
  static HRESULT STDMETHODCALLTYPE Query(void* self, const GUID& iid, void** object) {
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch && iid != kSessionInterface) return E_NOINTERFACE;
    ++Of(self).references;
    *object = self;
    return S_OK;
  }
  static ULONG STDMETHODCALLTYPE AddReference(void* self) { return ++Of(self).references; }
  static ULONG STDMETHODCALLTYPE Release(void* self) { return --Of(self).references; }
  static HRESULT STDMETHODCALLTYPE Nothing() { return E_NOTIMPL; }
  static void Give(IDispatch** place, IDispatch* object) {
    if (*place) (*place)->Release();
    object->AddRef();
    *place = object;
  }
  static HRESULT STDMETHODCALLTYPE Fill(void* self, IDispatch** connection, IDispatch**, IDispatch**,
                                        IDispatch**, IDispatch**, IDispatch**, IDispatch**, LONG* width,
                                        LONG* height, double*, IDispatch** general, IDispatch** actions,
                                        IDispatch** screens, BSTR* chain, BSTR*) {
    RawSession& session = Of(self);
    ++session.fillings;
    Give(connection, session.connection);
    Give(general, session.dictionaries[0]);
    Give(actions, session.dictionaries[1]);
    Give(screens, session.dictionaries[2]);
    *width = 15360;
    *height = 11520;
    SysReAllocString(chain, L"raw");
    return S_OK;
  }
};

template <typename Function>
const void* Place(Function* function) {
  return reinterpret_cast<const void*>(function);
}

/// A DLL of the sample world, some of whose classes this process knows.
class Dll {
 public:
  explicit Dll(const wchar_t* variable) : module_(LoadLibraryW(FileOfBuild(variable).c_str())) {}
  ComPtr<IUnknown> Factory(REFCLSID class_id) const {
    ComPtr<IUnknown> factory;
    const auto get = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(GetProcAddress(module_, "DllGetClassObject")));
    EXPECT_EQ(get(class_id, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    return factory;
  }
  HRESULT CanUnloadNow() const {
    return reinterpret_cast<HRESULT(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(module_, "DllCanUnloadNow")))();
  }

 private:
  HMODULE module_;
};

class RawClientTest : public LibraryTest {
 protected:
  RawClientTest() {
    for (const GUID& identifier :
         {__uuidof(::Herramientas), __uuidof(::Mensajes), __uuidof(::CambioSesion),
          __uuidof(::BuscadorProductos), __uuidof(::SelectorEmpleado), __uuidof(::Recalculo)}) {
      classes_.push_back(
          std::make_unique<ado_testing::RegisteredClass>(identifier, library_.Factory(identifier).Get()));
    }
    session.table = table_;
    connection_ = Connection();
    session.connection = connection_.Get();
    dictionaries_ = SelectDictionaries(recordsets_, WrapConnection(connection_.Get()), Language::kEnglish);
    session.dictionaries[0] = Unwrap(dictionaries_.general);
    session.dictionaries[1] = Unwrap(dictionaries_.acciones);
    session.dictionaries[2] = Unwrap(dictionaries_.pantallas);
    Session()->put_Language(BstrCell("en").Get());
  }

  HRESULT CallComponent(VARIANT_BOOL& result) {
    ComPtr<IClassFactory> factory =
        component_.Factory(kComponentClass).Query<IClassFactory>(IID_IClassFactory);
    void* object = nullptr;
    EXPECT_EQ(factory->CreateInstance(nullptr, kComponentInterface, &object), S_OK);
    const auto orvendal = reinterpret_cast<OrvendalFunction>((*static_cast<void***>(object))[kOrvendal]);
    void* host = &session;
    BstrCell branch("01");
    BstrCell workstation("7");
    BstrCell shift("2");
    const HRESULT called =
        orvendal(object, &host, branch.InOut(), workstation.InOut(), shift.InOut(), &result);
    EXPECT_EQ(host, &session);
    EXPECT_EQ(branch.Text(), "01");
    static_cast<IUnknown*>(object)->Release();
    return called;
  }

  /// What the component keeps of the session goes when nobody needs it any more.
  HRESULT LetComponentGo() const { return component_.CanUnloadNow(); }

  bool ScreenIsOpen() {
    VARIANT_BOOL open = VARIANT_FALSE;
    EXPECT_EQ(Session()->get_ScreenIsOpen(&open), S_OK);
    return open != VARIANT_FALSE;
  }

  RawSession session{nullptr};

 private:
  const void* const table_[9] = {
      Place(RawSession::Query),   Place(RawSession::AddReference), Place(RawSession::Release),
      Place(RawSession::Nothing), Place(RawSession::Nothing),      Place(RawSession::Nothing),
      Place(RawSession::Nothing), Place(RawSession::Nothing),      Place(RawSession::Fill)};
  Dll component_{L"ORVENDAL_COMPONENT_DLL"};
  Dll library_{L"ORVENDAL_DLL"};
  std::vector<std::unique_ptr<ado_testing::RegisteredClass>> classes_;
  AdoRecordsetFactory recordsets_;
  ComPtr<IDispatch> connection_;
  Dictionaries dictionaries_;
};

/// The text of the message box that comes up; presses the button.
std::wstring AnswerMessageBox(int button) {
  constexpr int kText = 0xFFFF;
  for (int turn = 0; turn < 400; ++turn, Sleep(50)) {
    const HWND box = FindWindowW(L"#32770", nullptr);
    const HWND label = box != nullptr ? GetDlgItem(box, kText) : nullptr;
    if (label == nullptr || !IsWindowVisible(box)) continue;
    wchar_t text[500] = L"";
    SendMessageW(label, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
    return text;
  }
  return L"no message came";
}

TEST_F(RawClientTest, IsToldAnErrorOfTheStoreInTheWordsOfItsUser) {
  Write("DROP TABLE ProdSucStock");
  VARIANT_BOOL result = VARIANT_TRUE;
  ASSERT_EQ(CallComponent(result), S_OK) << ErrorText();
  std::wstring trouble;
  std::wstring told;
  std::thread hands([&] {
    trouble = UseScreen({L"window", L"Orvendal", L"click", L"457", L"211", L"window", L"Choose a Stylist",
                         L"type", L"zoe", L"key", L"return", L"window", L"Orvendal", L"double", L"125",
                         L"339", L"type", L"P1"});
    PostMessageW(FindWindowW(L"OrvendalForm", L"Orvendal"), WM_KEYDOWN, VK_RETURN, 1);
    told = AnswerMessageBox(IDOK);
    if (trouble.empty()) trouble = UseScreen({L"window", L"Orvendal", L"key", L"escape", L"close"});
    AnswerMessageBox(IDNO);  // the line is not saved
  });
  for (int turn = 0; turn < 1200 && ScreenIsOpen(); ++turn) EXPECT_EQ(Session()->Pump(50), S_OK);
  hands.join();
  EXPECT_EQ(Utf8Text(trouble), "");
  EXPECT_EQ(Utf8Text(told),
            "Error -2147217865: " + Fill(WordsOf(LanguageOfUser()).table_missing, {"", "ProdSucStock"}));
  EXPECT_EQ(LetComponentGo(), S_OK);
}

TEST_F(RawClientTest, CountsThroughTheTablesOfFunctionsAlone) {
  VARIANT_BOOL result = VARIANT_TRUE;
  ASSERT_EQ(CallComponent(result), S_OK) << ErrorText();
  EXPECT_EQ(result, VARIANT_FALSE);
  EXPECT_TRUE(ScreenIsOpen());
  result = VARIANT_TRUE;
  EXPECT_EQ(CallComponent(result), S_OK);
  EXPECT_EQ(result, VARIANT_FALSE);
  EXPECT_EQ(session.fillings, 2);

  std::wstring trouble;
  std::thread hands([&trouble] {
    trouble =
        UseScreen({L"window", L"Orvendal", L"click",  L"457",    L"211",    L"window",   L"Choose a Stylist",
                   L"type",   L"zoe",      L"key",    L"return", L"window", L"Orvendal", L"double",
                   L"125",    L"339",      L"type",   L"P1",     L"key",    L"return",   L"type",
                   L"12",     L"key",      L"return", L"click",  L"703",    L"71",       L"close",
                   L"gone",   L"Orvendal"});
  });
  for (int turn = 0; turn < 1200 && ScreenIsOpen(); ++turn) EXPECT_EQ(Session()->Pump(50), S_OK);
  hands.join();
  EXPECT_EQ(Utf8Text(trouble), "");
  EXPECT_EQ(Read("SELECT StockActual FROM HistOrvendalcial WHERE IdEmpleado = 'E9' AND IdProducto = 'P1'"),
            "12");
  EXPECT_EQ(Read("SELECT Stock FROM ProdSucStock WHERE IdSucursal = '01' AND IdProducto = 'P1'"), "12");
  EXPECT_EQ(Read("SELECT Sesion FROM Diario"), "raw");
  EXPECT_GT(session.references, 1U);
  EXPECT_EQ(LetComponentGo(), S_OK);
  EXPECT_EQ(session.references, 1U);
}

}  // namespace
}  // namespace orvendal
