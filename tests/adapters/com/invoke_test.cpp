#include "tests/adapters/com/invoke_client.h"

#include "adapters/com/identity.h"
#include "tests/adapters/com/com_world.h"

namespace orvendal {
namespace {

constexpr HRESULT kError91 = static_cast<HRESULT>(0x800A005B);

class InvokeTest : public ComWorld {
 protected:
  HRESULT CallWith(std::vector<VARIANT> arguments, std::vector<DISPID> names = {}) {
    client.emplace(component.Get());
    return client->Call(L"Orvendal", DISPATCH_METHOD, std::move(arguments), std::move(names));
  }
  VARIANT HostObject() const { return Argument(static_cast<IDispatch*>(host.Get())); }
  void TearDown() override {
    client.reset();
    for (BSTR text : {branch, station, turn}) SysFreeString(text);
    ComWorld::TearDown();
  }

  BSTR branch = SysAllocString(L"02");
  BSTR station = SysAllocString(L"P1");
  BSTR turn = SysAllocString(L"T1");
  std::optional<InvokeClient> client;
};

TEST_F(InvokeTest, TakesArgumentsByValueAndGivesABoolean) {
  EXPECT_EQ(CallWith({HostObject(), Argument(branch), Argument(station), Argument(turn)}), S_OK);
  EXPECT_EQ(V_VT(&client->result), VT_BOOL);
  EXPECT_EQ(V_BOOL(&client->result), VARIANT_FALSE);
  EXPECT_EQ(form().LblSucursal.Tag(), "02");
}

TEST_F(InvokeTest, TakesArgumentsByReferenceAndWritesBackToNone) {
  IDispatch* session = host.Get();
  const ULONG references = host->References();
  EXPECT_EQ(CallWith({Reference(&session), Reference(&branch), Reference(&station), Reference(&turn)}), S_OK);
  EXPECT_EQ(form().LblSucursal.Tag(), "02");
  EXPECT_EQ(session, host.Get());
  EXPECT_STREQ(branch, L"02");
  EXPECT_EQ(host->References(), references + 1) << "the session holds one reference";
}

TEST_F(InvokeTest, TakesReferencesToVariantsAsScriptsPassThem) {
  VARIANT session = HostObject();
  VARIANT suc = Argument(branch);
  VARIANT puest = OfType(VT_EMPTY);
  VARIANT shift = Argument(LONG{7});
  EXPECT_EQ(CallWith({Reference(&session), Reference(&suc), Reference(&puest), Reference(&shift)}), S_OK);
  EXPECT_EQ(form().LblSucursal.Tag(), "02");
  EXPECT_EQ(V_VT(&suc), VT_BSTR);
  EXPECT_EQ(V_VT(&puest), VT_EMPTY);
  EXPECT_EQ(V_VT(&shift), VT_I4);
}

TEST_F(InvokeTest, TakesNamedArguments) {
  EXPECT_EQ(CallWith({HostObject(), Argument(turn), Argument(branch), Argument(station)}, {3, 1, 2}), S_OK);
  EXPECT_EQ(form().LblSucursal.Tag(), "02");
}

TEST_F(InvokeTest, NumbersBecomeTexts) {
  EXPECT_EQ(CallWith({HostObject(), Argument(LONG{12}), Argument(LONG{1}), Argument(LONG{2})}), S_OK);
  EXPECT_EQ(form().LblSucursal.Tag(), "12");
}

TEST_F(InvokeTest, ResultAndExceptionMayBeUnwanted) {
  VARIANT arguments[] = {Argument(turn), Argument(station), Argument(branch), HostObject()};
  DISPPARAMS parameters = {arguments, nullptr, 4, 0};
  EXPECT_EQ(component->Invoke(0x60030000, IID_NULL, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters,
                              nullptr, nullptr, nullptr),
            S_OK);
  arguments[3] = Argument(static_cast<IDispatch*>(nullptr));
  EXPECT_EQ(
      component->Invoke(0x60030000, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
      DISP_E_EXCEPTION);
}

TEST_F(InvokeTest, WrongCountsAreToldSo) {
  EXPECT_EQ(CallWith({}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(CallWith({HostObject(), Argument(branch), Argument(station)}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(CallWith({HostObject(), Argument(branch), Argument(station), Argument(turn), Argument(turn)}),
            DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(host->times_asked, 0);
}

TEST_F(InvokeTest, WrongTypesAreToldSoWithTheirPlace) {
  EXPECT_EQ(CallWith({Argument(branch), Argument(branch), Argument(station), Argument(turn)}),
            DISP_E_TYPEMISMATCH);
  EXPECT_EQ(client->wrong, 3U);
  EXPECT_EQ(CallWith({HostObject(), Argument(branch), OfType(VT_NULL), Argument(turn)}), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(client->wrong, 1U);
  VARIANT array = OfType(VT_ARRAY | VT_BSTR);
  EXPECT_EQ(CallWith({HostObject(), array, Argument(station), Argument(turn)}), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(client->wrong, 2U);
  EXPECT_EQ(host->times_asked, 0);
}

TEST_F(InvokeTest, AnObjectThatIsNoHostIsAMismatch) {
  const auto stranger = MakeFake<PlainObject>();
  EXPECT_EQ(CallWith({Argument(static_cast<IDispatch*>(stranger.Get())), Argument(branch), Argument(station),
                      Argument(turn)}),
            DISP_E_TYPEMISMATCH);
  EXPECT_EQ(client->wrong, 3U);
  EXPECT_EQ(stranger->References(), 1U);
}

TEST_F(InvokeTest, ArgumentsLeftOutAreNotOptional) {
  EXPECT_EQ(CallWith({HostObject(), Argument(branch), Omitted(), Argument(turn)}), DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(client->wrong, 1U);
  EXPECT_EQ(CallWith({HostObject(), Argument(branch), Argument(turn)}, {1, 3}), DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(InvokeTest, UnknownAndDoubleNamesAreNotFound) {
  EXPECT_EQ(CallWith({HostObject(), Argument(branch), Argument(station), Argument(turn)}, {1, 2, 9}),
            DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(client->wrong, 0U);
  EXPECT_EQ(CallWith({HostObject(), Argument(branch), Argument(station), Argument(turn)}, {1, 1, 3}),
            DISP_E_PARAMNOTFOUND);
}

TEST_F(InvokeTest, AFailureComesWithNumberSourceAndDescription) {
  EXPECT_EQ(CallWith({Argument(static_cast<IDispatch*>(nullptr)), Argument(branch), Argument(station),
                      Argument(turn)}),
            DISP_E_EXCEPTION);
  EXPECT_EQ(client->exception.scode, kError91);
  EXPECT_EQ(client->exception.wCode, 0);
  EXPECT_EQ(client->Source(), "DllOrvendal");
  EXPECT_EQ(client->Description(), "Object variable or With block variable not set");
}

TEST_F(InvokeTest, KnowsItsNamesWithoutRegardToCase) {
  const wchar_t* given[] = {L"ORVENDAL", L"datosclase", L"Suc", L"PUEST", L"turn"};
  DISPID ids[5] = {};
  auto** names = const_cast<LPOLESTR*>(given);
  EXPECT_EQ(component->GetIDsOfNames(IID_NULL, names, 5, LOCALE_USER_DEFAULT, ids), S_OK);
  EXPECT_EQ(ids[0], 0x60030000);
  for (DISPID place = 0; place < 4; ++place) EXPECT_EQ(ids[place + 1], place);
}

TEST_F(InvokeTest, UnknownNamesAreToldSo) {
  const wchar_t* given[] = {L"Orvendal", L"Suc", L"Nada"};
  DISPID ids[3] = {};
  EXPECT_EQ(component->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(given), 3, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[1], 1);
  EXPECT_EQ(ids[2], DISPID_UNKNOWN);
  EXPECT_EQ(component->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(given) + 2, 1, 0, ids),
            DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[0], DISPID_UNKNOWN);
  EXPECT_EQ(component->GetIDsOfNames(IID_IDispatch, const_cast<LPOLESTR*>(given), 1, 0, ids),
            DISP_E_UNKNOWNINTERFACE);
}

TEST_F(InvokeTest, UnknownMembersAndOtherUsesAreNotFound) {
  DISPPARAMS none = {};
  EXPECT_EQ(component->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(
      component->Invoke(0x60030000, IID_NULL, 0, DISPATCH_PROPERTYPUT, &none, nullptr, nullptr, nullptr),
      DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(
      component->Invoke(0x60030000, IID_IDispatch, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
      DISP_E_UNKNOWNINTERFACE);
  ComPtr<ITypeInfo> info;
  EXPECT_EQ(component->GetTypeInfo(1, 0, info.Receive()), DISP_E_BADINDEX);
}

}  // namespace
}  // namespace orvendal
