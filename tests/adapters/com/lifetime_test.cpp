#include <thread>

#include "adapters/com/component_factory.h"
#include "adapters/com/component_module.h"
#include "adapters/com/identity.h"
#include "tests/adapters/com/com_world.h"
#include "tests/adapters/com/invoke_client.h"

namespace orvendal {
namespace {

class LifetimeTest : public ComWorld {
 protected:
  bool CanGo() { return CanModuleGo(); }
  ComPtr<IClassFactory> Factory() const {
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(GetComponentFactory(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    return factory;
  }
};

TEST_F(LifetimeTest, AnObjectKeepsTheModule) {
  EXPECT_FALSE(CanGo());
  component.Reset();
  EXPECT_TRUE(CanGo());
}

TEST_F(LifetimeTest, TheFactoryAndItsLocksKeepTheModule) {
  component.Reset();
  ComPtr<IClassFactory> factory = Factory();
  EXPECT_FALSE(CanGo());
  factory->LockServer(TRUE);
  factory->LockServer(TRUE);
  factory.Reset();
  EXPECT_FALSE(CanGo());
  factory = Factory();
  factory->LockServer(FALSE);
  factory.Reset();
  EXPECT_FALSE(CanGo());
  factory = Factory();
  factory->LockServer(FALSE);
  factory.Reset();
  EXPECT_TRUE(CanGo());
}

TEST_F(LifetimeTest, AnUnlockTooManyTakesTheModuleFromNobody) {
  ComPtr<IClassFactory> factory = Factory();
  EXPECT_EQ(factory->LockServer(FALSE), E_UNEXPECTED);
  factory->LockServer(TRUE);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  EXPECT_EQ(factory->LockServer(FALSE), E_UNEXPECTED);
  factory.Reset();
  EXPECT_FALSE(CanGo()) << "the object is still there";
  component.Reset();
  EXPECT_TRUE(CanGo());
}

TEST_F(LifetimeTest, AnOpenFormKeepsTheModule) {
  Open();
  component.Reset();
  EXPECT_FALSE(CanGo());
  CloseForm();
  EXPECT_TRUE(CanGo());
}

TEST_F(LifetimeTest, AFormThatTheLibraryDidNotClearKeepsNothing) {
  behaviour.let_go = [](IDispatch**) { return S_OK; };
  Open();
  component.Reset();
  CloseForm();
  EXPECT_TRUE(CanGo());
}

TEST_F(LifetimeTest, AMinimisedAndAHiddenFormKeepTheModule) {
  Open();
  component.Reset();
  form().WindowState(WindowState::kMinimized);
  EXPECT_FALSE(CanGo());
  form().Hide();
  EXPECT_FALSE(CanGo());
  form().WindowState(WindowState::kNormal);
  form().Show();
}

TEST_F(LifetimeTest, AnObjectThatTheLibraryKeptKeepsTheModule) {
  ComPtr<IDispatch> kept;
  behaviour.let_go = [&](IDispatch** given) {
    kept = ComPtr<IDispatch>(*given);
    Replace<IDispatch>(given, nullptr);
    return S_OK;
  };
  Open();
  component.Reset();
  CloseForm();
  ASSERT_TRUE(kept);
  EXPECT_FALSE(CanGo());
  InvokeClient client(kept.Get());
  EXPECT_EQ(client.Get(L"Name"), DISP_E_EXCEPTION);
}

TEST_F(LifetimeTest, ACallThatIsUnderWayKeepsTheModule) {
  bool could_go = true;
  host->fill = [&](const FillArguments& session) {
    component.Reset();
    could_go = CanGo();
    return FillSession(session);
  };
  BSTR text = nullptr;
  _DatosClase* session = host.Get();
  VARIANT_BOOL answer = VARIANT_TRUE;
  EXPECT_EQ(component.Get()->Orvendal(&session, &text, &text, &text, &answer), S_OK);
  EXPECT_FALSE(could_go);
}

TEST_F(LifetimeTest, ALibraryThatAsksWhileTheFormGoesIsTold) {
  bool could_go = true;
  behaviour.let_go = [&](IDispatch** given) {
    Replace<IDispatch>(given, nullptr);
    could_go = CanGo();
    return S_OK;
  };
  Open();
  component.Reset();
  CloseForm();
  EXPECT_FALSE(could_go);
}

TEST_F(LifetimeTest, TheSessionLivesAsLongAsTheModuleAndIsGivenBackWithIt) {
  Open();
  CloseForm();
  EXPECT_EQ(host->References(), 2U) << "the session keeps the host after the form is gone";
  component.Reset();
  EXPECT_TRUE(CanGo());
  EXPECT_EQ(host->References(), 1U);
  EXPECT_EQ(connection->References(), 1U);
}

TEST_F(LifetimeTest, AfterTheModuleLetGoTheNextCallStartsAnew) {
  Open();
  CloseForm();
  component.Reset();
  ASSERT_TRUE(CanGo());
  ASSERT_EQ(Factory()->CreateInstance(nullptr, identity::kInterface, component.ReceiveVoid()), S_OK);
  host->fill = [&](const FillArguments& session) {
    EXPECT_EQ(*session.connection, nullptr);
    return FillSession(session);
  };
  EXPECT_EQ(Open(), S_OK);
}

TEST_F(LifetimeTest, AnotherThreadCanNeitherCallNorLetGo) {
  Open();
  HRESULT result = S_OK;
  bool could_go = true;
  std::thread other([&] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    BSTR text = nullptr;
    _DatosClase* session = host.Get();
    VARIANT_BOOL answer = VARIANT_TRUE;
    result = component->Orvendal(&session, &text, &text, &text, &answer);
    could_go = ComponentModule::Instance().LetGoIfUnused();
    CoUninitialize();
  });
  other.join();
  EXPECT_EQ(result, RPC_E_WRONG_THREAD);
  EXPECT_FALSE(could_go);
  EXPECT_EQ(host->times_asked, 1);
}

TEST_F(LifetimeTest, AThousandCallsLeaveNothingBehind) {
  for (int round = 0; round < 1000; ++round) ASSERT_EQ(Open(), S_OK);
  EXPECT_EQ(host->References(), 2U);
  EXPECT_EQ(connection->References(), 2U);
}

}  // namespace
}  // namespace orvendal
