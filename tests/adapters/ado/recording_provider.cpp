#include "tests/adapters/ado/recording_provider.h"

#include <oledb.h>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"
#include "tests/adapters/automation/counted_fake.h"

namespace orvendal::ado_testing {
namespace {

constexpr GUID kProviderClass = {
    0x9A1C6B00, 0x3C52, 0x4B7E, {0x91, 0x0D, 0x5A, 0x27, 0xC4, 0x66, 0x18, 0xE3}};
constexpr const wchar_t* kClassKey = L"CLSID\\{9A1C6B00-3C52-4B7E-910D-5A27C46618E3}";
constexpr const wchar_t* kNameKey = L"OrvendalRecordingProvider.1";

/// The identifiers of the data providers' interfaces differ in one number alone.
constexpr GUID Identity(unsigned long number) {
  return {number, 0x2A1C, 0x11CE, {0xAD, 0xE5, 0x00, 0xAA, 0x00, 0x44, 0x77, 0x3D}};
}
constexpr GUID kCreateCommand = Identity(0x0C733A1D);
constexpr GUID kCommandText = Identity(0x0C733A27);
constexpr GUID kCreateSession = Identity(0x0C733A5D);
constexpr GUID kCommand = Identity(0x0C733A63);
constexpr GUID kOpenRowset = Identity(0x0C733A69);
constexpr GUID kProperties = Identity(0x0C733A8A);
constexpr GUID kInitialize = Identity(0x0C733A8B);

template <typename... Interfaces>
class Recorded : public CountedFake<Interfaces...> {
 public:
  explicit Recorded(std::shared_ptr<ProviderLog> log) : log_(std::move(log)) {}

 protected:
  const std::shared_ptr<ProviderLog>& Log() const { return log_; }
  void Note(std::string call) const { log_->calls.push_back(std::move(call)); }

 private:
  std::shared_ptr<ProviderLog> log_;
};

template <typename Object>
HRESULT GiveNew(const std::shared_ptr<ProviderLog>& log, REFIID iid, IUnknown** object) {
  const auto made = ComPtr<Object>::Adopt(new Object(log));
  return made->QueryInterface(iid, reinterpret_cast<void**>(object));
}

class Command final : public Recorded<ICommandText> {
 public:
  using Recorded::Recorded;
  void* Find(REFIID iid) override {
    return iid == kCommand || iid == kCommandText ? static_cast<ICommandText*>(this) : nullptr;
  }
  HRESULT STDMETHODCALLTYPE Cancel() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Execute(IUnknown*, REFIID, DBPARAMS*, DBROWCOUNT* affected,
                                    IUnknown** rows) override {
    Note("run " + text_);
    if (affected) *affected = 0;
    if (rows) *rows = nullptr;
    return Log()->answer;
  }
  HRESULT STDMETHODCALLTYPE GetDBSession(REFIID, IUnknown** session) override {
    *session = nullptr;
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE GetCommandText(GUID*, LPOLESTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetCommandText(REFGUID, LPCOLESTR text) override {
    text_ = Utf8Text(text);
    return S_OK;
  }

 private:
  std::string text_;
};

class Session final : public Recorded<IDBCreateCommand, IOpenRowset> {
 public:
  using Recorded::Recorded;
  void* Find(REFIID iid) override {
    if (iid == kCreateCommand) return static_cast<IDBCreateCommand*>(this);
    return iid == kOpenRowset ? static_cast<IOpenRowset*>(this) : nullptr;
  }
  HRESULT STDMETHODCALLTYPE CreateCommand(IUnknown*, REFIID iid, IUnknown** command) override {
    return GiveNew<Command>(Log(), iid, command);
  }
  HRESULT STDMETHODCALLTYPE OpenRowset(IUnknown*, DBID*, DBID*, REFIID, ULONG, DBPROPSET*,
                                       IUnknown** rows) override {
    *rows = nullptr;
    return E_NOTIMPL;
  }
};

class Source final : public Recorded<IDBInitialize, IDBProperties, IDBCreateSession> {
 public:
  using Recorded::Recorded;
  void* Find(REFIID iid) override {
    if (iid == kInitialize) return static_cast<IDBInitialize*>(this);
    if (iid == kProperties) return static_cast<IDBProperties*>(this);
    return iid == kCreateSession ? static_cast<IDBCreateSession*>(this) : nullptr;
  }
  HRESULT STDMETHODCALLTYPE Initialize() override {
    Note("open");
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Uninitialize() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetProperties(ULONG, const DBPROPIDSET*, ULONG* count,
                                          DBPROPSET** sets) override {
    *count = 0;
    *sets = nullptr;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetPropertyInfo(ULONG, const DBPROPIDSET*, ULONG* count, DBPROPINFOSET** sets,
                                            OLECHAR** descriptions) override {
    *count = 0;
    *sets = nullptr;
    if (descriptions) *descriptions = nullptr;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE SetProperties(ULONG count, DBPROPSET* sets) override {
    for (ULONG set = 0; set < count; ++set) {
      for (ULONG index = 0; index < sets[set].cProperties; ++index) {
        const VARIANT& value = sets[set].rgProperties[index].vValue;
        if (V_VT(&value) == VT_BSTR) Note("with " + TextOfBstr(V_BSTR(&value)));
      }
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE CreateSession(IUnknown*, REFIID iid, IUnknown** session) override {
    return GiveNew<Session>(Log(), iid, session);
  }
};

class Factory final : public Recorded<IClassFactory> {
 public:
  using Recorded::Recorded;
  void* Find(REFIID iid) override {
    return iid == IID_IClassFactory ? static_cast<IClassFactory*>(this) : nullptr;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
    if (outer) return CLASS_E_NOAGGREGATION;
    return GiveNew<Source>(Log(), iid, reinterpret_cast<IUnknown**>(object));
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

void Write(const std::wstring& key, const std::wstring& text) {
  RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

}  // namespace

RecordingProvider::RecordingProvider() {
  const std::wstring class_key = kClassKey;
  Write(std::wstring(kNameKey) + L"\\CLSID", class_key.substr(class_key.find(L'{')));
  Write(class_key + L"\\ProgID", kNameKey);
  Write(class_key + L"\\OLE DB Provider", kNameKey);
  const auto factory = ComPtr<Factory>::Adopt(new Factory(log_));
  class_ = std::make_unique<RegisteredClass>(kProviderClass, factory.Get());
}

RecordingProvider::~RecordingProvider() {
  RegDeleteTreeW(HKEY_CLASSES_ROOT, kNameKey);
  RegDeleteTreeW(HKEY_CLASSES_ROOT, kClassKey);
}

}  // namespace orvendal::ado_testing
