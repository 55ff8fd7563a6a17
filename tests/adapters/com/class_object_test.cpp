#include "adapters/com/component_factory.h"
#include "adapters/com/identity.h"
#include "tests/adapters/com/com_world.h"

namespace orvendal {
namespace {

class ClassObjectTest : public ComWorld {};

TEST_F(ClassObjectTest, OpensTheScreenAndReturnsFalse) {
  EXPECT_EQ(Open(), S_OK);
  ASSERT_NE(windows->ActiveForm(), nullptr);
  EXPECT_TRUE(form().Visible());
  EXPECT_EQ(form().LblSucursal.Tag(), "01");
}

TEST_F(ClassObjectTest, ASecondObjectShowsTheSameForm) {
  Open();
  const Form* const first = windows->ActiveForm();
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(GetComponentFactory(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
  ASSERT_EQ(factory->CreateInstance(nullptr, identity::kInterface, component.ReceiveVoid()), S_OK);
  EXPECT_EQ(Open(), S_OK);
  EXPECT_EQ(windows->ActiveForm(), first);
  EXPECT_EQ(host->times_asked, 2);
}

TEST_F(ClassObjectTest, EveryInterfaceLeadsToTheSameObjectAndBack) {
  ComPtr<IUnknown> unknown;
  ASSERT_EQ(component->QueryInterface(IID_IUnknown, unknown.ReceiveVoid()), S_OK);
  for (const IID& iid : {IID_IDispatch, identity::kInterface, IID_ISupportErrorInfo, IID_IProvideClassInfo,
                         IID_IConnectionPointContainer}) {
    ComPtr<IUnknown> other;
    ASSERT_EQ(component->QueryInterface(iid, other.ReceiveVoid()), S_OK);
    ComPtr<IUnknown> back;
    ASSERT_EQ(other->QueryInterface(IID_IUnknown, back.ReceiveVoid()), S_OK);
    EXPECT_EQ(back.Get(), unknown.Get());
  }
}

TEST_F(ClassObjectTest, RefusesOtherInterfacesAndClearsThePointer) {
  void* other = this;
  EXPECT_EQ(component->QueryInterface(IID_IStream, &other), E_NOINTERFACE);
  EXPECT_EQ(other, nullptr);
  EXPECT_EQ(component->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ClassObjectTest, TheFactoryRefusesAggregationAndOtherClasses) {
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(GetComponentFactory(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
  void* made = this;
  EXPECT_EQ(factory->CreateInstance(host.Get(), IID_IUnknown, &made), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(made, nullptr);
  made = this;
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStream, &made), E_NOINTERFACE);
  EXPECT_EQ(made, nullptr);
  made = this;
  EXPECT_EQ(GetComponentFactory(identity::kInterface, IID_IClassFactory, &made), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(made, nullptr);
}

TEST_F(ClassObjectTest, SaysThatItsFunctionReportsErrors) {
  ComPtr<ISupportErrorInfo> support;
  ASSERT_EQ(component->QueryInterface(IID_ISupportErrorInfo, support.ReceiveVoid()), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(identity::kInterface), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IDispatch), S_FALSE);
}

TEST_F(ClassObjectTest, HasNoConnectionPoints) {
  ComPtr<IConnectionPointContainer> container;
  ASSERT_EQ(component->QueryInterface(IID_IConnectionPointContainer, container.ReceiveVoid()), S_OK);
  ComPtr<IConnectionPoint> point;
  EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, point.Receive()), CONNECT_E_NOCONNECTION);
  ComPtr<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.Receive()), S_OK);
  ULONG fetched = 7;
  EXPECT_EQ(points->Next(1, point.Receive(), &fetched), S_FALSE);
  EXPECT_EQ(fetched, 0U);
}

TEST_F(ClassObjectTest, RefusesNullPointersInTheVtableCall) {
  BSTR text = nullptr;
  _DatosClase* session = host.Get();
  VARIANT_BOOL answer = VARIANT_TRUE;
  EXPECT_EQ(component->Orvendal(nullptr, &text, &text, &text, &answer), E_POINTER);
  EXPECT_EQ(component->Orvendal(&session, nullptr, &text, &text, &answer), E_POINTER);
  EXPECT_EQ(component->Orvendal(&session, &text, nullptr, &text, &answer), E_POINTER);
  EXPECT_EQ(component->Orvendal(&session, &text, &text, nullptr, &answer), E_POINTER);
  EXPECT_EQ(component->Orvendal(&session, &text, &text, &text, nullptr), E_POINTER);
  EXPECT_EQ(host->times_asked, 0);
}

TEST_F(ClassObjectTest, TakesNullTextsForEmptyOnes) {
  BSTR text = nullptr;
  _DatosClase* session = host.Get();
  VARIANT_BOOL answer = VARIANT_TRUE;
  EXPECT_EQ(component->Orvendal(&session, &text, &text, &text, &answer), S_OK);
  EXPECT_EQ(text, nullptr);
  EXPECT_EQ(form().LblSucursal.Tag(), "");
}

TEST_F(ClassObjectTest, WithoutASessionObjectItIsError91) {
  BSTR text = nullptr;
  _DatosClase* session = nullptr;
  VARIANT_BOOL answer = VARIANT_TRUE;
  EXPECT_EQ(component->Orvendal(&session, &text, &text, &text, &answer), static_cast<HRESULT>(0x800A005B));
  EXPECT_EQ(answer, VARIANT_FALSE);
}

TEST_F(ClassObjectTest, AHostMayLetGoOfTheObjectWhileItRuns) {
  host->fill = [this](const FillArguments& session) {
    component.Detach()->Release();
    return FillSession(session);
  };
  BSTR text = nullptr;
  _DatosClase* session = host.Get();
  VARIANT_BOOL answer = VARIANT_TRUE;
  _ClassOrvendal* const raw = component.Get();
  EXPECT_EQ(raw->Orvendal(&session, &text, &text, &text, &answer), S_OK);
  EXPECT_NE(windows->ActiveForm(), nullptr);
}

}  // namespace
}  // namespace orvendal
