#include "tests/adapters/com/com_world.h"

#include "adapters/automation/bstr.h"
#include "adapters/com/component_factory.h"
#include "adapters/com/component_module.h"
#include "adapters/com/identity.h"
#include "adapters/com/module_parts.h"
#include "form/columns.h"
#include "tests/adapters/com/text_balance.h"

namespace orvendal {
namespace {

struct Hidden {
  FixedClock* clock = nullptr;
  HeadlessHost** windows = nullptr;
};
Hidden hidden;

std::intptr_t NoWindow(WindowHost& /*windows*/, const Form& /*form*/) {
  return 4711;
}

}  // namespace

ModuleParts MakeModuleParts() {
  auto windows = std::make_unique<HeadlessHost>(Region::Spanish(), *hidden.clock);
  *hidden.windows = windows.get();
  ModuleParts parts;
  parts.windows = std::move(windows);
  parts.recordsets = std::make_unique<SqliteRecordsetFactory>();
  parts.store = std::make_unique<FakeStoreBridge>();
  parts.native_window = NoWindow;
  return parts;
}

ComWorld::ComWorld() {
  CoInitialize(nullptr);
  FakesAlive() = 0;
  ForgetLiveTexts();
  hidden = {&source.clock, &windows};
  library.emplace(behaviour);
  host = MakeFake<FakeHost>();
  connection = MakeFake<StoreHandle>(ConnectionRef(source.connection));
  host->fill = [this](const FillArguments& session) { return FillSession(session); };
  ComPtr<IClassFactory> factory;
  EXPECT_EQ(GetComponentFactory(identity::kClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
  EXPECT_EQ(factory->CreateInstance(nullptr, identity::kInterface, component.ReceiveVoid()), S_OK);
}

ComWorld::~ComWorld() {
  library.reset();
  CoUninitialize();
}

void ComWorld::TearDown() {
  if (windows && windows->ActiveForm()) {
    behaviour.let_go = nullptr;
    behaviour.show = [](BSTR*, LONG*, BSTR*, LONG* answer) {
      *answer = message::kNo;
      return S_OK;
    };
    CloseForm();
  }
  EXPECT_TRUE(LetEverythingGo()) << "something keeps the module";
  EXPECT_EQ(LiveTexts(), 0U) << "texts were not freed";
  EXPECT_EQ(FakesAlive(), 0) << "references of the host or the library were not given back";
}

bool ComWorld::CanModuleGo() {
  const bool free = ComponentModule::Instance().LetGoIfUnused();
  if (free) windows = nullptr;
  return free;
}

bool ComWorld::LetEverythingGo() {
  component.Reset();
  const bool free = CanModuleGo();
  host.Reset();
  connection.Reset();
  return free;
}

HRESULT ComWorld::FillSession(const FillArguments& session) const {
  Replace<IDispatch>(session.connection, connection.Get());
  *session.width = 15360;
  *session.height = 11520;
  Replace<IDispatch>(session.general, MakeFake<StoreHandle>(RecordsetRef(source.session->general)).Get());
  Replace<IDispatch>(session.actions, MakeFake<StoreHandle>(RecordsetRef(source.session->actions)).Get());
  Replace<IDispatch>(session.screens, MakeFake<StoreHandle>(RecordsetRef(source.session->screens)).Get());
  Replace(session.chain, L"cadena");
  return S_OK;
}

HRESULT ComWorld::Open(const wchar_t* branch, const wchar_t* workstation, const wchar_t* shift) {
  BSTR suc = SysAllocString(branch);
  BSTR puest = SysAllocString(workstation);
  BSTR turn = SysAllocString(shift);
  _DatosClase* session = host.Get();
  VARIANT_BOOL answer = VARIANT_TRUE;
  const HRESULT result = component->Orvendal(&session, &suc, &puest, &turn, &answer);
  EXPECT_EQ(answer, VARIANT_FALSE);
  EXPECT_EQ(session, host.Get());
  EXPECT_STREQ(suc, branch);
  EXPECT_STREQ(puest, workstation);
  EXPECT_STREQ(turn, shift);
  SysFreeString(suc);
  SysFreeString(puest);
  SysFreeString(turn);
  return result;
}

void ComWorld::CloseForm() const {
  const Rect bar = form().Barra1.Bounds();
  const Rect part = form().Barra1.CloseButton();
  hands().ClickAt({bar.left + part.left + part.width / 2, bar.top + part.top + part.height / 2});
}

void ComWorld::EnterLine(const std::string& code, const std::string& quantity) const {
  Robot robot = hands();
  if (!form().TxtMSF.Visible()) {
    robot.ClickCell(form().MSFProductos, 1, column::kCode);
    robot.DoubleClickCell(form().MSFProductos, 1, column::kCode);
  }
  robot.Type(code + "\n" + quantity + "\n");
}

std::vector<std::string> ComWorld::CallsOf(const std::string& operation) const {
  std::vector<std::string> found;
  for (const std::string& call : behaviour.calls) {
    if (call.rfind(operation, 0) == 0) found.push_back(call);
  }
  return found;
}

}  // namespace orvendal
