#include "tests/host/windows/library/library_fixture.h"

#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/variant.h"
#include "platform/data/recordset.h"
#include "tests/adapters/com/registry_snapshot.h"

namespace orvendal {
namespace {

struct NamedClass {
  const wchar_t* name;
  GUID identifier;
};
const NamedClass kClasses[] = {
    {L"DatosClase", __uuidof(::DatosClase)},
    {L"Herramientas", __uuidof(::Herramientas)},
    {L"Mensajes", __uuidof(::Mensajes)},
    {L"CambioSesion", __uuidof(::CambioSesion)},
    {L"BuscadorProductos", __uuidof(::BuscadorProductos)},
    {L"SelectorEmpleado", __uuidof(::SelectorEmpleado)},
    {L"Recalculo", __uuidof(::Recalculo)},
};

HRESULT Numbered(int number) {
  return static_cast<HRESULT>(0x800A0000U + static_cast<unsigned>(number));
}

TEST_F(LibraryTest, MakesEachOfItsClassesAndNoOther) {
  for (const NamedClass& known : kClasses) {
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(dll.GetClassObject(known.identifier, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    ComPtr<IProvideClassInfo> object;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IProvideClassInfo, object.ReceiveVoid()), S_OK);
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(object->GetClassInfo(info.Receive()), S_OK);
    BstrCell name;
    info->GetDocumentation(MEMBERID_NIL, name.InOut(), nullptr, nullptr, nullptr);
    EXPECT_EQ(name.Text(), Utf8Text(known.name));
  }
  ComPtr<IUnknown> none;
  EXPECT_EQ(dll.GetClassObject(CLSID_NULL, IID_IClassFactory, none.ReceiveVoid()), CLASS_E_CLASSNOTAVAILABLE);
}

TEST_F(LibraryTest, KeepsThePlacesThatNobodyUses) {
  const auto tools = Make<_Herramientas>(__uuidof(::Herramientas));
  EXPECT_EQ(tools->Reservada1(), E_NOTIMPL);
  EXPECT_EQ(tools->Reservada4(), E_NOTIMPL);
  EXPECT_EQ(tools->Reservada15(), E_NOTIMPL);
  EXPECT_EQ(Make<_Recalculo>(__uuidof(::Recalculo))->Reservada14(), E_NOTIMPL);
  EXPECT_EQ(Make<_DatosClase>(__uuidof(::DatosClase))->Reservada1(), E_NOTIMPL);
  Variant value;
  EXPECT_EQ(Make<_SelectorEmpleado>(__uuidof(::SelectorEmpleado))->get_Reservada6(value.Address()),
            E_NOTIMPL);
}

TEST_F(LibraryTest, FillsTheSessionAndReplacesWhatItOwns) {
  Session()->put_Language(BstrCell("ca").Get());
  Session()->put_Branch(BstrCell("01").Get());
  Session()->put_Workstation(BstrCell("7").Get());
  Session()->put_BaseWidth(12000);
  ComPtr<_DatosClase> contract;
  ASSERT_EQ(Session()->QueryInterface(__uuidof(_DatosClase), contract.ReceiveVoid()), S_OK);

  CountedBox stale(L"", 0, 0);
  ComPtr<IDispatch> connection(&stale);
  ComPtr<IDispatch> untouched[6] = {ComPtr<IDispatch>(&stale)};
  ComPtr<IDispatch> general;
  ComPtr<IDispatch> actions;
  ComPtr<IDispatch> screens;
  LONG width = 1;
  LONG height = 1;
  double on_screen = 3;
  BstrCell chain("old");
  BstrCell branch("0999");
  ASSERT_EQ(contract->RellenarSesion(connection.InOut(), untouched[0].InOut(), untouched[1].InOut(),
                                     untouched[2].InOut(), untouched[3].InOut(), untouched[4].InOut(),
                                     untouched[5].InOut(), &width, &height, &on_screen, general.InOut(),
                                     actions.InOut(), screens.InOut(), chain.InOut(), branch.InOut()),
            S_OK);
  EXPECT_EQ(stale.references, 2U);  // its own and the one in the argument that was left alone
  EXPECT_EQ(untouched[0].Get(), &stale);
  EXPECT_EQ(WrapConnection(connection.Get())->Provider(), "SQLOLEDB.1");
  EXPECT_EQ(width, 12000);
  EXPECT_EQ(height, 11520);
  EXPECT_EQ(WrapRecordset(general.Get())->Fields("Codigo").Value().Text(), "Codi");
  EXPECT_EQ(WrapRecordset(actions.Get())->Fields("Borrar Linea").Value().Text(), "Esborrar");
  EXPECT_EQ(WrapRecordset(screens.Get())->Fields("Orvendalciales").Value().Text(), "Orvendal");
  EXPECT_EQ(branch.Text(), "01");
  EXPECT_EQ(chain.Text(), "Sucursal=01;Puesto=7;Turno=1");

  Session()->put_Branch(nullptr);
  BstrCell no_branch;
  ASSERT_EQ(contract->RellenarSesion(connection.InOut(), untouched[0].InOut(), untouched[1].InOut(),
                                     untouched[2].InOut(), untouched[3].InOut(), untouched[4].InOut(),
                                     untouched[5].InOut(), &width, &height, &on_screen, general.InOut(),
                                     actions.InOut(), screens.InOut(), chain.InOut(), no_branch.InOut()),
            S_OK);
  EXPECT_EQ(chain.Text(), "Sucursal=01;Puesto=7;Turno=1");
  untouched[0].Reset();
}

TEST_F(LibraryTest, FiltersTheKeysOfAQuantity) {
  CountedBox box(L"1234567", 7, 0);
  CountedBox selected(L"1234567", 0, 7);
  // Each key is another hand's: without messages all of them come at the same time.
  const auto filtered = [&](CountedBox& caja, SHORT key, bool decimals) {
    const auto tools = Make<_Herramientas>(__uuidof(::Herramientas));
    ComPtr<IDispatch> argument(&caja);
    VARIANT_BOOL option = decimals ? VARIANT_TRUE : VARIANT_FALSE;
    SHORT result = -1;
    EXPECT_EQ(tools->FiltrarTecla(argument.InOut(), &key, &option, &result), S_OK);
    return result;
  };
  EXPECT_EQ(filtered(selected, '8', true), '8');
  EXPECT_EQ(filtered(box, 'x', true), 0);
  EXPECT_NE(filtered(box, '.', true), 0);
  EXPECT_EQ(filtered(box, '.', false), 0);
  EXPECT_EQ(filtered(box, 8, true), 8);
  EXPECT_EQ(box.Start(), 7);
  EXPECT_EQ(filtered(box, '8', true), 0);
  EXPECT_EQ(box.Text(), L"1234567");
  EXPECT_EQ(box.Start(), 0);
  EXPECT_EQ(box.Length(), 7);
  EXPECT_EQ(box.references, 1U);
}

TEST_F(LibraryTest, ABarCodeScannedIntoAQuantityGivesBackWhatTheBoxShowed) {
  const auto tools = Make<_Herramientas>(__uuidof(::Herramientas));
  CountedBox box(L"12", 0, 2);
  ComPtr<IDispatch> argument(&box);
  VARIANT_BOOL decimals = VARIANT_TRUE;
  SHORT result = -1;
  for (const char character : std::string("8412345678905\r")) {
    SHORT key = character;
    ASSERT_EQ(tools->FiltrarTecla(argument.InOut(), &key, &decimals, &result), S_OK);
    if (result == 0) continue;
    const bool selected = box.Length() > 0;
    box.Type((selected ? std::wstring() : box.Text()) + static_cast<wchar_t>(result));
  }
  EXPECT_EQ(box.Text(), L"12");
  EXPECT_EQ(box.Length(), 2);
  EXPECT_EQ(result, 0) << "the reader's Enter";
  argument.Reset();
}

TEST_F(LibraryTest, AtEnterALoneMarkIsNoQuantity) {
  const auto tools = Make<_Herramientas>(__uuidof(::Herramientas));
  CountedBox box(L"-", 0, 0);
  ComPtr<IDispatch> argument(&box);
  VARIANT_BOOL decimals = VARIANT_TRUE;
  SHORT key = 13;
  SHORT result = -1;
  ASSERT_EQ(tools->FiltrarTecla(argument.InOut(), &key, &decimals, &result), S_OK);
  EXPECT_EQ(box.Text(), L"");
  EXPECT_EQ(result, 0);
  argument.Reset();
}

TEST_F(LibraryTest, LetsGoOfAForm) {
  CountedBox form(L"", 0, 0);
  ComPtr<IDispatch> argument(&form);
  EXPECT_EQ(Make<_Herramientas>(__uuidof(::Herramientas))->LiberarForm(argument.InOut()), S_OK);
  EXPECT_EQ(argument.Get(), nullptr);
  EXPECT_EQ(form.references, 1U);
}

TEST_F(LibraryTest, WritesDatesAsTheStoreTakesThem) {
  const auto tools = Make<_Herramientas>(__uuidof(::Herramientas));
  BstrCell date("2026-11-16 10:30:00");
  BstrCell mode("D");
  unsigned char option = 1;
  BstrCell day;
  EXPECT_EQ(tools->FormatoFecha(date.InOut(), &option, mode.InOut(), mode.InOut(), day.InOut()), S_OK);
  EXPECT_EQ(day.Text().find("10:30"), std::string::npos);
  DATE moment = 46342.5;
  BstrCell text;
  EXPECT_EQ(tools->FechaHoraTexto(&moment, text.InOut()), S_OK);
  EXPECT_EQ(text.Text(), day.Text() + " 12:00:00");
}

TEST_F(LibraryTest, KeepsJournalAndStockInTheStoreItIsGiven) {
  ComPtr<IDispatch> connection = Connection();
  IDispatch* const given = connection.Get();
  BstrCell session("who");
  BstrCell statement("DELETE");
  BstrCell branch("01");
  BstrCell product("P1");
  BstrCell nothing("");
  const auto tools = Make<_Herramientas>(__uuidof(::Herramientas));
  EXPECT_EQ(tools->RegistrarSentencia(session.InOut(), connection.InOut(), statement.InOut()), S_OK);
  const auto recalculation = Make<_Recalculo>(__uuidof(::Recalculo));
  EXPECT_EQ(
      recalculation->RecalcularProducto(connection.InOut(), branch.InOut(), product.InOut(), nothing.InOut()),
      S_OK);
  EXPECT_EQ(connection.Get(), given);
  EXPECT_EQ(Read("SELECT Sesion || Sentencia FROM Diario"), "whoDELETE");
  EXPECT_EQ(Read("SELECT Stock FROM ProdSucStock WHERE IdSucursal = '01' AND IdProducto = 'P1'"), "7.5");
}

TEST_F(LibraryTest, TellsWhyItFails) {
  const auto recalculation = Make<_Recalculo>(__uuidof(::Recalculo));
  ComPtr<IDispatch> connection;
  BstrCell text("01");
  EXPECT_EQ(recalculation->RecalcularProducto(connection.InOut(), text.InOut(), text.InOut(), text.InOut()),
            Numbered(3709));
  EXPECT_EQ(ErrorText().substr(0, 12), "DllTrevano: ");
  CountedBox box(L"", 0, 0);
  ComPtr<IDispatch> no_connection(&box);
  EXPECT_EQ(
      recalculation->RecalcularProducto(no_connection.InOut(), text.InOut(), text.InOut(), text.InOut()),
      Numbered(13));
  EXPECT_EQ(recalculation->RecalcularProducto(nullptr, text.InOut(), text.InOut(), text.InOut()), E_POINTER);
  EXPECT_EQ(box.references, 2U);
  ComPtr<ISupportErrorInfo> support;
  ASSERT_EQ(recalculation->QueryInterface(IID_ISupportErrorInfo, support.ReceiveVoid()), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(_Recalculo)), S_OK);
  no_connection.Reset();
}

TEST_F(LibraryTest, KeepsThePropertiesOfThePicker) {
  const auto picker = Make<_SelectorEmpleado>(__uuidof(::SelectorEmpleado));
  VARIANT_BOOL flag = VARIANT_TRUE;
  EXPECT_EQ(picker->get_Aceptado(&flag), S_OK);
  EXPECT_EQ(flag, VARIANT_FALSE);
  picker->put_ParaNuevo(VARIANT_TRUE);
  EXPECT_EQ(picker->get_ParaNuevo(&flag), S_OK);
  EXPECT_EQ(flag, VARIANT_TRUE);
  picker->put_Nombre(BstrCell("Íñigo").Get());
  BstrCell name;
  EXPECT_EQ(picker->get_Nombre(name.InOut()), S_OK);
  EXPECT_EQ(name.Text(), "Íñigo");
}

TEST_F(LibraryTest, IsFoundByItsNamesAndLeavesNothingInTheRegistry) {
  const RegistrySnapshot before = SnapshotOfClasses();
  ASSERT_EQ(dll.Call("DllRegisterServer"), S_OK);
  for (const NamedClass& known : kClasses) {
    CLSID found{};
    EXPECT_EQ(CLSIDFromProgID((std::wstring(L"DllTrevano.") + known.name).c_str(), &found), S_OK);
    EXPECT_TRUE(found == known.identifier) << Utf8Text(known.name);
  }
  ASSERT_EQ(dll.Call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(SnapshotOfClasses(), before);
}

TEST_F(LibraryTest, CanGoWhenNobodyHoldsAnythingOfIt) {
  EXPECT_EQ(dll.Call("DllCanUnloadNow"), S_OK);
  {
    const auto tools = Make<_Herramientas>(__uuidof(::Herramientas));
    EXPECT_EQ(dll.Call("DllCanUnloadNow"), S_FALSE);
    BstrCell date("16/11/2026");
    unsigned char option = 1;
    BstrCell text;
    EXPECT_EQ(tools->FormatoFecha(date.InOut(), &option, date.InOut(), date.InOut(), text.InOut()), S_OK);
  }
  EXPECT_EQ(dll.Call("DllCanUnloadNow"), S_OK);
}

}  // namespace
}  // namespace orvendal
