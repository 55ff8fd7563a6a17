#include "host/windows/library/session_object.h"

#include <atomic>

#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/in_out.h"
#include "adapters/automation/variant.h"
#include "host/sample/session.h"
#include "host/windows/library/library_state.h"
#include "host/windows/library/message_loop.h"

namespace orvendal {
namespace {

constexpr std::int32_t kInvalidPropertyValue = 380;

std::atomic<int> session_objects{0};

const char* ProviderOf(const std::string& dialect) {
  return dialect == "jet" ? "Microsoft.Jet.OLEDB.4.0" : "SQLOLEDB.1";
}

const char* NameOf(Language language) {
  if (language == Language::kCatalan) return "ca";
  return language == Language::kEnglish ? "en" : "es";
}

template <typename Reference>
void ReplaceByStores(IDispatch** place, const Reference& reference) {
  Replace(*place, ComPtr<IDispatch>(Unwrap(reference)));
}

HostContext& Session() {
  return LibraryState::Of().Context();
}

}  // namespace

SessionObject::SessionObject() noexcept {
  ++session_objects;
}

SessionObject::~SessionObject() {
  if (--session_objects == 0) LibraryState::EndSession();
}

HRESULT SessionObject::RellenarSesion(IDispatch** conexion, IDispatch** objeto1, IDispatch** objeto2,
                                      IDispatch** objeto3, IDispatch** objeto4, IDispatch** form1,
                                      IDispatch** form2, LONG* ancho_base, LONG* alto_base,
                                      double* dato_pantalla, IDispatch** general, IDispatch** acciones,
                                      IDispatch** pantallas, BSTR* cadena_sesion,
                                      BSTR* cod_sucursal) noexcept {
  const std::initializer_list<const void*> references = {
      conexion,  objeto1,       objeto2, objeto3,  objeto4,   form1,         form2,       ancho_base,
      alto_base, dato_pantalla, general, acciones, pantallas, cadena_sesion, cod_sucursal};
  return Do(references, [&] {
    LibraryState& state = LibraryState::Of();
    HostContext& session = state.Context();
    TextInOut text(cadena_sesion);
    TextInOut branch(cod_sucursal);
    if (!session.connection) state.OpenStore("", ProviderOf(dialect_));
    const Dictionaries dictionaries =
        SelectDictionaries(session.recordsets, session.connection, state.GetLanguage());
    if (!branch_.empty()) branch.value = branch_;
    // Somebody who asks for the connection alone, as the search does, names no branch.
    if (!branch.value.empty()) session.sucursal = branch.value;
    text.value = SessionText(session);

    ReplaceByStores(conexion, session.connection);
    *ancho_base = session.ancho_base;
    *alto_base = session.alto_base;
    *dato_pantalla = session.dato_pantalla.Number();
    ReplaceByStores(general, dictionaries.general);
    ReplaceByStores(acciones, dictionaries.acciones);
    ReplaceByStores(pantallas, dictionaries.pantallas);
    text.Give();
    branch.Give();
  });
}

HRESULT SessionObject::get_Dialect(BSTR* value) noexcept {
  return Give(value, [&] { return MakeBstr(dialect_); });
}

HRESULT SessionObject::put_Dialect(BSTR value) noexcept {
  return Do([&] {
    const std::string dialect = TextOfBstr(value);
    if (dialect != "jet" && dialect != "sqlserver") throw RuntimeError(kInvalidPropertyValue);
    dialect_ = dialect;
  });
}

HRESULT SessionObject::OpenStore(BSTR file) noexcept {
  return Do([&] { LibraryState::Of().OpenStore(TextOfBstr(file), ProviderOf(dialect_)); });
}

HRESULT SessionObject::OpenConnection(BSTR connection_string) noexcept {
  return Do([&] { LibraryState::Of().OpenConnection(TextOfBstr(connection_string)); });
}

HRESULT SessionObject::get_Connection(IDispatch** value) noexcept {
  return Give(value, [] { return ComPtr<IDispatch>(Unwrap(Session().connection)).Detach(); });
}

HRESULT SessionObject::putref_Connection(IDispatch* value) noexcept {
  return Do([&] { LibraryState::Of().UseConnection(WrapConnection(value)); });
}

HRESULT SessionObject::get_StoreName(BSTR* value) noexcept {
  return Give(value, [&] { return MakeBstr(Session().store_name); });
}

HRESULT SessionObject::get_Language(BSTR* value) noexcept {
  return Give(value, [&] { return MakeBstr(NameOf(LibraryState::Of().GetLanguage())); });
}

HRESULT SessionObject::put_Language(BSTR value) noexcept {
  return Do([&] {
    const std::optional<Language> language = LanguageNamed(TextOfBstr(value));
    if (!language) throw RuntimeError(kInvalidPropertyValue);
    LibraryState::Of().SetLanguage(*language);
  });
}

HRESULT SessionObject::get_BaseWidth(LONG* value) noexcept {
  return Give(value, [&] { return LONG{Session().ancho_base}; });
}

HRESULT SessionObject::put_BaseWidth(LONG value) noexcept {
  return Do([&] { Session().ancho_base = value; });
}

HRESULT SessionObject::get_BaseHeight(LONG* value) noexcept {
  return Give(value, [&] { return LONG{Session().alto_base}; });
}

HRESULT SessionObject::put_BaseHeight(LONG value) noexcept {
  return Do([&] { Session().alto_base = value; });
}

HRESULT SessionObject::get_Branch(BSTR* value) noexcept {
  return Give(value, [&] { return MakeBstr(branch_); });
}

HRESULT SessionObject::put_Branch(BSTR value) noexcept {
  return Do([&] { branch_ = TextOfBstr(value); });
}

HRESULT SessionObject::get_Workstation(BSTR* value) noexcept {
  return Give(value, [&] { return MakeBstr(Session().puesto); });
}

HRESULT SessionObject::put_Workstation(BSTR value) noexcept {
  return Do([&] { Session().puesto = TextOfBstr(value); });
}

HRESULT SessionObject::get_Shift(BSTR* value) noexcept {
  return Give(value, [&] { return MakeBstr(Session().turno); });
}

HRESULT SessionObject::put_Shift(BSTR value) noexcept {
  return Do([&] { Session().turno = TextOfBstr(value); });
}

HRESULT SessionObject::Pump(LONG milliseconds) noexcept {
  return Do([&] { PumpMessages(milliseconds); });
}

HRESULT SessionObject::get_ScreenIsOpen(VARIANT_BOOL* value) noexcept {
  return Give(value, [] { return FlagOf(HasScreen()); });
}

}  // namespace orvendal
