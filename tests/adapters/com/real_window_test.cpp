#include <gtest/gtest.h>

#include "DllOrvendal.h"
#include "adapters/com/component_factory.h"
#include "adapters/com/component_module.h"
#include "adapters/com/identity.h"
#include "adapters/com/module_parts.h"
#include "adapters/sqlite/sqlite_store.h"
#include "adapters/win32/module_use.h"
#include "adapters/win32/win32_window_host.h"
#include "tests/adapters/com/fake_host.h"
#include "tests/adapters/com/fake_library.h"
#include "tests/adapters/com/fake_store.h"
#include "tests/adapters/com/invoke_client.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

FormDriver* world = nullptr;
Win32WindowHost* windows = nullptr;

std::intptr_t WindowOf(WindowHost& host, const Form& form) {
  return reinterpret_cast<std::intptr_t>(static_cast<Win32WindowHost&>(host).HandleOf(form));
}

std::vector<HWND> WindowsOfThread() {
  std::vector<HWND> found;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM list) CALLBACK -> BOOL {
        if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

}  // namespace

ModuleParts MakeModuleParts() {
  ModuleParts parts;
  Win32HostOptions options;
  options.clock = &world->clock;
  auto host = std::make_unique<Win32WindowHost>(std::move(options));
  windows = host.get();
  parts.windows = std::move(host);
  parts.recordsets = std::make_unique<SqliteRecordsetFactory>();
  parts.store = std::make_unique<FakeStoreBridge>();
  parts.native_window = WindowOf;
  parts.windows_in_use = ModuleIsInUse;
  return parts;
}

namespace {

/// A host with a message loop of its own calls the component, whose windows are the system's.
class RealWindowTest : public testing::Test {
 protected:
  RealWindowTest() {
    CoInitialize(nullptr);
    FakesAlive() = 0;
    world = &source;
    library.emplace(behaviour);
    connection = MakeFake<StoreHandle>(ConnectionRef(source.connection));
    host = MakeFake<FakeHost>();
    host->fill = [this](const FillArguments& session) {
      Replace<IDispatch>(session.connection, connection.Get());
      *session.width = static_cast<LONG>(windows->ScreenWidth());
      *session.height = static_cast<LONG>(windows->ScreenHeight());
      Replace<IDispatch>(session.general, MakeFake<StoreHandle>(RecordsetRef(source.session->general)).Get());
      Replace<IDispatch>(session.actions, MakeFake<StoreHandle>(RecordsetRef(source.session->actions)).Get());
      Replace<IDispatch>(session.screens, MakeFake<StoreHandle>(RecordsetRef(source.session->screens)).Get());
      return S_OK;
    };
  }
  void TearDown() override {
    EXPECT_TRUE(ComponentModule::Instance().LetGoIfUnused());
    host.Reset();
    connection.Reset();
    EXPECT_EQ(FakesAlive(), 0);
    EXPECT_TRUE(WindowsOfThread().empty());
    library.reset();
    CoUninitialize();
  }

  void Open() const {
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(GetComponentFactory(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    ComPtr<_ClassOrvendal> component;
    ASSERT_EQ(factory->CreateInstance(nullptr, identity::kInterface, component.ReceiveVoid()), S_OK);
    BSTR branch = SysAllocString(L"01");
    BSTR empty = nullptr;
    _DatosClase* session = host.Get();
    VARIANT_BOOL answer = VARIANT_TRUE;
    EXPECT_EQ(component->Orvendal(&session, &branch, &empty, &empty, &answer), S_OK);
    SysFreeString(branch);
    Pump();
  }
  static void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  static Form& Screen() { return *windows->ActiveForm(); }
  static HWND Window() { return windows->HandleOf(Screen()); }
  static void Press(WORD key) {
    PostMessageW(Window(), WM_KEYDOWN, key, 1);
    PostMessageW(Window(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Pump();
  }
  static void Close() {
    PostMessageW(Window(), WM_CLOSE, 0, 0);
    Pump();
  }

  FormDriver source;
  LibraryBehaviour behaviour;
  std::optional<FakeLibrary> library;
  ComPtr<FakeHost> host;
  ComPtr<StoreHandle> connection;
};

TEST_F(RealWindowTest, TheCallOpensAWindowAndClosingItLetsTheModuleGo) {
  Open();
  EXPECT_TRUE(IsWindowVisible(Window()));
  EXPECT_FALSE(ComponentModule::Instance().LetGoIfUnused());
  Close();
  EXPECT_EQ(windows->ActiveForm(), nullptr);
}

TEST_F(RealWindowTest, KeysOfTheHostsLoopReachTheLibrary) {
  Open();
  Press(VK_F1);
  EXPECT_EQ(behaviour.calls.back(), "AccionPuesto ''");
  Close();
}

TEST_F(RealWindowTest, WhileADialogOfTheLibraryPumpsMessagesTheScreenTakesNoInput) {
  int times = 0;
  behaviour.f1 = [&](IDispatch**, BSTR*) {
    if (++times == 1) Press(VK_F1);
    return S_OK;
  };
  Open();
  Press(VK_F1);
  EXPECT_EQ(times, 1);
  Press(VK_F1);
  EXPECT_EQ(times, 2);
  Close();
}

TEST_F(RealWindowTest, TheLibraryGetsTheWindowOfTheFormAndCanSwitchItOff) {
  HWND seen = nullptr;
  behaviour.let_go = [&](IDispatch** form) {
    InvokeClient client(*form);
    EXPECT_EQ(client.Get(L"hWnd"), S_OK);
    seen = reinterpret_cast<HWND>(static_cast<LONG_PTR>(V_I4(&client.result)));
    EXPECT_EQ(seen, Window());
    EXPECT_EQ(client.Put(L"Enabled", OfType(VT_EMPTY)), S_OK);
    EXPECT_FALSE(IsWindowEnabled(seen));
    EXPECT_EQ(client.Get(L"Enabled"), S_OK);
    EXPECT_EQ(V_BOOL(&client.result), VARIANT_FALSE);
    Replace<IDispatch>(form, nullptr);
    return S_OK;
  };
  Open();
  Close();
  EXPECT_NE(seen, nullptr);
  EXPECT_FALSE(IsWindow(seen));
}

TEST_F(RealWindowTest, ASecondCallBringsAMinimisedWindowBackMaximised) {
  Open();
  Screen().WindowState(WindowState::kMinimized);
  EXPECT_TRUE(IsIconic(Window()));
  Open();
  EXPECT_TRUE(IsZoomed(Window()));
  Close();
}

TEST_F(RealWindowTest, ASecondCallBringsBackAWindowThatTheHostHid) {
  Open();
  const RECT place = [] {
    RECT bounds{};
    GetWindowRect(Window(), &bounds);
    return bounds;
  }();
  const BOOL filled_display = IsZoomed(Window());
  ShowWindow(Window(), SW_HIDE);
  Pump();
  EXPECT_FALSE(IsWindowVisible(Window()));
  Open();
  EXPECT_TRUE(IsWindowVisible(Window()));
  EXPECT_EQ(IsZoomed(Window()), filled_display);
  EXPECT_EQ(GetActiveWindow(), Window());
  RECT now{};
  GetWindowRect(Window(), &now);
  EXPECT_TRUE(EqualRect(&now, &place));
  Press(VK_F1);
  EXPECT_EQ(behaviour.calls.back(), "AccionPuesto ''") << "and it takes keys";
  Screen().WindowState(WindowState::kMinimized);
  ShowWindow(Window(), SW_HIDE);
  Open();
  EXPECT_TRUE(IsWindowVisible(Window()));
  EXPECT_TRUE(IsZoomed(Window()));
  Close();
}

}  // namespace
}  // namespace orvendal
