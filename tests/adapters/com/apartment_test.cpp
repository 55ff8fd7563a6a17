#include <thread>

#include "DllOrvendal.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/com/identity.h"
#include "tests/adapters/com/fake_host.h"
#include "tests/adapters/com/tested_dll.h"

namespace orvendal {
namespace {

/// Makes an object of the class on the calling thread and calls it once; whether its host was asked.
HRESULT CallOnce(const LoadedDll& dll, FakeHost* host) {
  ComPtr<IClassFactory> factory;
  EXPECT_EQ(dll.GetClassObject(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
  ComPtr<_ClassOrvendal> object;
  EXPECT_EQ(factory->CreateInstance(nullptr, identity::kInterface, object.ReceiveVoid()), S_OK);
  _DatosClase* session = host;
  BSTR text = nullptr;
  VARIANT_BOOL answer = VARIANT_TRUE;
  return object->Orvendal(&session, &text, &text, &text, &answer);
}

TEST(ApartmentTest, AThreadThatEndedDoesNotKeepTheNextOneOut) {
  const LoadedDll dll;
  const auto host = MakeFake<FakeHost>();
  host->fill = [](const FillArguments&) { return E_ACCESSDENIED; };
  for (int round = 1; round <= 3; ++round) {
    HRESULT result = S_OK;
    std::thread([&] {
      CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
      result = CallOnce(dll, host.Get());
      CoUninitialize();
    }).join();
    EXPECT_EQ(result, E_ACCESSDENIED) << "the host's own answer";
    EXPECT_EQ(host->times_asked, round);
  }
}

TEST(ApartmentTest, AThreadThatLivesKeepsTheOthersOut) {
  CoInitialize(nullptr);
  const LoadedDll dll;
  const auto host = MakeFake<FakeHost>();
  host->fill = [](const FillArguments&) { return E_ACCESSDENIED; };
  EXPECT_EQ(CallOnce(dll, host.Get()), E_ACCESSDENIED);
  HRESULT result = S_OK;
  HRESULT could_go = S_OK;
  std::thread([&] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    result = CallOnce(dll, host.Get());
    could_go = dll.Call("DllCanUnloadNow");
    CoUninitialize();
  }).join();
  EXPECT_EQ(result, RPC_E_WRONG_THREAD);
  EXPECT_EQ(could_go, S_FALSE);
  EXPECT_EQ(host->times_asked, 1);
  EXPECT_EQ(dll.Call("DllCanUnloadNow"), S_OK);
  EXPECT_EQ(host->References(), 1U);
  CoUninitialize();
}

TEST(ApartmentTest, AHostThatEndsComInTheMiddleOfTheCallComesBackToCodeThatIsStillThere) {
  CoInitialize(nullptr);
  {
    const LoadedDll dll;
    ASSERT_EQ(dll.Call("DllRegisterServer"), S_OK);
  }
  ComPtr<_ClassOrvendal> object;
  ASSERT_EQ(CoCreateInstance(identity::kClass, nullptr, CLSCTX_INPROC_SERVER, identity::kInterface,
                             object.ReceiveVoid()),
            S_OK);
  const auto host = MakeFake<FakeHost>();
  host->fill = [](const FillArguments&) {
    CoUninitialize();
    return E_ACCESSDENIED;
  };
  _DatosClase* session = host.Get();
  BSTR text = nullptr;
  VARIANT_BOOL answer = VARIANT_TRUE;
  EXPECT_EQ(object->Orvendal(&session, &text, &text, &text, &answer), E_ACCESSDENIED);
  EXPECT_EQ(answer, VARIANT_FALSE);
  object.Reset();
  CoInitialize(nullptr);
  const LoadedDll again;
  EXPECT_EQ(again.Call("DllCanUnloadNow"), S_OK);
  EXPECT_EQ(host->References(), 1U);
  EXPECT_EQ(again.Call("DllUnregisterServer"), S_OK);
  CoUninitialize();
}

}  // namespace
}  // namespace orvendal
