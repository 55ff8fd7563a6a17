#include "tests/adapters/automation/handed_out.h"

#include <oleacc.h>

#include "DllOrvendal.h"
#include "adapters/automation/variant.h"
#include "data_objects.h"
#include "tests/adapters/com/fake_library.h"
#include "tests/adapters/com/invoke_client.h"
#include "tests/host/windows/library/library_fixture.h"

namespace orvendal {

class HandedOutWorld::World final : public LibraryTest {
 public:
  World() : component_module_(LoadLibraryW(FileOfBuild(L"ORVENDAL_COMPONENT_DLL").c_str())) {
    component_ = Made<_ClassOrvendal>(component_module_, __uuidof(::ClassOrvendal));
    // The screen hands out its form when it closes; a library that keeps it sees it loaded again.
    OpenScreen();
    behaviour_.let_go = [this](IDispatch** form) {
      form_ = ComPtr<IDispatch>(*form);
      return S_OK;
    };
    SendMessageW(Screen(), WM_CLOSE, 0, 0);
    behaviour_.let_go = nullptr;
    OpenScreen();
    controls_ = Got(form_.Get(), L"Controls");
    control_ = Got(form_.Get(), L"TxtEmpleado");
    connection_ = Connection().Query<::_Connection>(ado::kConnection);
    connection_->Execute(BstrCell("SELECT * FROM Sucursales").Get(), nullptr, -1, recordset_.Receive());
    recordset_->get_Fields(fields_.Receive());
    VARIANT first;
    VariantInit(&first);
    V_VT(&first) = VT_I4;
    V_I4(&first) = 0;
    fields_->get_Item(first, field_.Receive());
  }
  ~World() override {
    SendMessageW(Screen(), WM_CLOSE, 0, 0);
    for (ComPtr<IDispatch>* const kept : {&form_, &controls_, &control_}) kept->Reset();
    field_.Reset();
    fields_.Reset();
    recordset_.Reset();
    connection_.Reset();
    component_.Reset();
    const auto can_unload = reinterpret_cast<HRESULT(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(component_module_, "DllCanUnloadNow")));
    EXPECT_EQ(can_unload(), S_OK) << "something of it is still out";
  }
  void TestBody() override {}

  HandedOut Of(Handed what) {
    switch (what) {
      case Handed::kComponentFactory:
        return {Factory(component_module_, __uuidof(::ClassOrvendal))};
      case Handed::kLibraryFactory:
        return {Factory(dll.Module(), __uuidof(::Mensajes))};
      case Handed::kStoreFactory:
        return {Factory(GetModuleHandleW(L"OrvendalStore.dll"), ado::kConnectionClass)};
      case Handed::kClassOrvendal:
        return {ComPtr<IUnknown>(component_.Get()), L"Orvendal", 4};
      case Handed::kConnectionPoints: {
        const auto container = component_.Query<IConnectionPointContainer>(IID_IConnectionPointContainer);
        ComPtr<IEnumConnectionPoints> points;
        container->EnumConnectionPoints(points.Receive());
        return {ComPtr<IUnknown>(points.Get())};
      }
      case Handed::kForm:
        return {ComPtr<IUnknown>(form_.Get()), L"Name", 0, L"Caption"};
      case Handed::kControls:
        return {ComPtr<IUnknown>(controls_.Get()), L"Count"};
      case Handed::kControl:
        return {ComPtr<IUnknown>(control_.Get()), L"Name", 0, L"Left"};
      case Handed::kControlsInTurn:
        return {InTurn(controls_.Get())};
      case Handed::kAccessible: {
        const LRESULT answer = SendMessageW(Screen(), WM_GETOBJECT, 0, OBJID_CLIENT);
        ComPtr<IAccessible> accessible;
        ObjectFromLresult(answer, __uuidof(IAccessible), 0, accessible.ReceiveVoid());
        return {ComPtr<IUnknown>(accessible.Get()), L"accChildCount"};
      }
      case Handed::kDatosClase:
        return {Make<IUnknown>(__uuidof(::DatosClase)), L"Branch", 0, L"Dialect"};
      case Handed::kHerramientas:
        return {Make<IUnknown>(__uuidof(::Herramientas)), L"FechaHoraTexto", 1};
      case Handed::kMensajes:
        return {Make<IUnknown>(__uuidof(::Mensajes)), L"Mostrar", 3};
      case Handed::kCambioSesion:
        return {Make<IUnknown>(__uuidof(::CambioSesion)), L"AbrirCambio", 8};
      case Handed::kBuscadorProductos:
        return {Make<IUnknown>(__uuidof(::BuscadorProductos)), L"Buscar", 7};
      case Handed::kSelectorEmpleado:
        return {Make<IUnknown>(__uuidof(::SelectorEmpleado)), L"Codigo", 0, L"ParaNuevo"};
      case Handed::kRecalculo:
        return {Make<IUnknown>(__uuidof(::Recalculo)), L"RecalcularProducto", 4};
      case Handed::kConnection:
        return {ComPtr<IUnknown>(connection_.Get()), L"State", 0, L"CommandTimeout"};
      case Handed::kRecordset:
        return {ComPtr<IUnknown>(recordset_.Get()), L"State", 0, L"CacheSize"};
      case Handed::kFields:
        return {ComPtr<IUnknown>(fields_.Get()), L"Count"};
      case Handed::kField:
        return {ComPtr<IUnknown>(field_.Get()), L"Name", 0, L"Value"};
      case Handed::kFieldsInTurn:
        return {InTurn(fields_.Get())};
    }
    return {};
  }

 private:
  static ComPtr<IUnknown> Factory(HMODULE module, REFCLSID class_id) {
    ComPtr<IUnknown> factory;
    const auto get = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    EXPECT_EQ(get(class_id, IID_IUnknown, factory.ReceiveVoid()), S_OK);
    return factory;
  }
  template <typename Interface>
  static ComPtr<Interface> Made(HMODULE module, REFCLSID class_id) {
    ComPtr<Interface> made;
    const auto factory = Factory(module, class_id).Query<IClassFactory>(IID_IClassFactory);
    EXPECT_EQ(factory->CreateInstance(nullptr, __uuidof(Interface), made.ReceiveVoid()), S_OK);
    return made;
  }
  static ComPtr<IDispatch> Got(IDispatch* object, const wchar_t* member) {
    InvokeClient client(object);
    EXPECT_EQ(client.Get(member), S_OK);
    return ComPtr<IDispatch>(V_DISPATCH(&client.result));
  }
  static ComPtr<IUnknown> InTurn(IDispatch* collection) {
    DISPPARAMS none{};
    Variant walk;
    EXPECT_EQ(collection->Invoke(DISPID_NEWENUM, IID_NULL, 0, DISPATCH_PROPERTYGET | DISPATCH_METHOD, &none,
                                 walk.Address(), nullptr, nullptr),
              S_OK);
    return ComPtr<IUnknown>(V_UNKNOWN(&walk.Get()));
  }
  static HWND Screen() { return FindWindowW(L"OrvendalForm", nullptr); }
  void OpenScreen() {
    _DatosClase* session = Session();
    BstrCell branch("01");
    BstrCell nothing;
    VARIANT_BOOL answer = VARIANT_TRUE;
    EXPECT_EQ(component_->Orvendal(&session, branch.InOut(), nothing.InOut(), nothing.InOut(), &answer), S_OK)
        << ErrorText();
  }

  HMODULE component_module_;
  LibraryBehaviour behaviour_;
  FakeLibrary library_{behaviour_};
  ComPtr<_ClassOrvendal> component_;
  ComPtr<IDispatch> form_;
  ComPtr<IDispatch> controls_;
  ComPtr<IDispatch> control_;
  ComPtr<::_Connection> connection_;
  ComPtr<::_Recordset> recordset_;
  ComPtr<::Fields> fields_;
  ComPtr<::Field> field_;
};

HandedOutWorld::HandedOutWorld() : world_(std::make_unique<World>()) {}
HandedOutWorld::~HandedOutWorld() = default;

HandedOut HandedOutWorld::Of(Handed what) const {
  return world_->Of(what);
}

namespace {

struct NamedClass {
  Handed what;
  const char* name;
  unsigned manners;
};

constexpr NamedClass kAll[] = {
    {Handed::kComponentFactory, "ComponentFactory", kFactory},
    {Handed::kLibraryFactory, "LibraryFactory", kFactory},
    {Handed::kStoreFactory, "StoreFactory", kFactory},
    {Handed::kClassOrvendal, "ClassOrvendal", kCalledByNames | kCalledByTable},
    {Handed::kConnectionPoints, "ConnectionPoints", kAny},
    {Handed::kForm, "Form", kCalledByNames | kAskedAlone},
    {Handed::kControls, "Controls", kCalledByNames | kAskedAlone},
    {Handed::kControl, "Control", kCalledByNames | kAskedAlone},
    {Handed::kControlsInTurn, "ControlsInTurn", kEnumeration},
    {Handed::kAccessible, "Accessible", kCalledByNames | kAskedAlone | kCalledByTable | kEnumeration},
    {Handed::kDatosClase, "DatosClase", kCalledByNames | kAskedAlone | kCalledByTable},
    {Handed::kHerramientas, "Herramientas", kCalledByNames | kCalledByTable},
    {Handed::kMensajes, "Mensajes", kCalledByNames | kCalledByTable},
    {Handed::kCambioSesion, "CambioSesion", kCalledByNames | kCalledByTable},
    {Handed::kBuscadorProductos, "BuscadorProductos", kCalledByNames | kCalledByTable},
    {Handed::kSelectorEmpleado, "SelectorEmpleado", kCalledByNames | kAskedAlone | kCalledByTable},
    {Handed::kRecalculo, "Recalculo", kCalledByNames | kCalledByTable},
    {Handed::kConnection, "Connection", kCalledByNames | kAskedAlone | kCalledByTable},
    {Handed::kRecordset, "Recordset", kCalledByNames | kAskedAlone | kCalledByTable},
    {Handed::kFields, "Fields", kCalledByNames | kAskedAlone | kCalledByTable},
    {Handed::kField, "Field", kCalledByNames | kAskedAlone | kCalledByTable},
    {Handed::kFieldsInTurn, "FieldsInTurn", kEnumeration},
};

}  // namespace

std::string NameOf(Handed what) {
  for (const NamedClass& known : kAll) {
    if (known.what == what) return known.name;
  }
  return {};
}

std::vector<Handed> AllOf(unsigned manner) {
  std::vector<Handed> all;
  for (const NamedClass& known : kAll) {
    if ((known.manners & manner) == manner) all.push_back(known.what);
  }
  return all;
}

}  // namespace orvendal
