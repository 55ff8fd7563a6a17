#include <array>
#include <cstdlib>
#include <optional>
#include <thread>

#include "DllOrvendal.h"
#include "adapters/com/identity.h"
#include "data_objects.h"
#include "tests/adapters/com/fake_host.h"
#include "tests/host/windows/library/library_fixture.h"

namespace orvendal {
namespace {

constexpr int kFirstLoads = 5;  // what the system itself makes at first stays
constexpr int kReloads = 200;
// A module that keeps its runtime's pool leaves a hundred times as much.
constexpr std::size_t kGroupsOfALoad = 1024;  // bytes

/// What a module could leave behind in the process that unloads it.
struct Left {
  std::size_t bytes = 0;
  std::size_t blocks = 0;
  int handles = 0;
  DWORD thread_slot = 0;  // the first free one

  bool operator==(const Left&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Left& left) {
  return out << left.bytes << " bytes in " << left.blocks << " blocks, " << left.handles
             << " handles, thread slot " << left.thread_slot;
}

int HandlesOfProcess() {
  constexpr ULONG_PTR kStep = 4, kFar = 0x4000;
  int handles = 0;
  for (ULONG_PTR value = kStep; value < kFar; value += kStep) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags)) ++handles;
  }
  return handles;
}

/// From Wine 9 on small blocks lie in groups, of which there are more and more, though less and less so,
/// whoever takes them; on older ones every byte counts.
bool HeapsPutBlocksIntoGroups() {
  const auto version = reinterpret_cast<const char*(CDECL*)()>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version")));
  return version == nullptr || std::atoi(version()) >= 9;
}

Left LeftNow() {
  Left left;
  std::array<HANDLE, 64> heaps;
  const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  for (DWORD index = 0; index < count; ++index) {
    PROCESS_HEAP_ENTRY entry;
    entry.lpData = nullptr;
    HeapLock(heaps[index]);
    while (HeapWalk(heaps[index], &entry)) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) == 0) continue;
      left.bytes += entry.cbData;
      ++left.blocks;
    }
    HeapUnlock(heaps[index]);
  }
  left.handles = HandlesOfProcess();
  left.thread_slot = TlsAlloc();
  TlsFree(left.thread_slot);
  return left;
}

/// A thread that was in a module and lives on when that is unloaded.
class Bystander {
 public:
  Bystander() : thread_([this] { Work(); }) {}
  ~Bystander() {
    Run(nullptr);
    thread_.join();
    CloseHandle(start_);
    CloseHandle(done_);
  }
  template <typename Action>
  void Do(const Action& action) {
    Run([](const void* what) { (*static_cast<const Action*>(what))(); }, &action);
  }

 private:
  void Run(void (*action)(const void*), const void* what = nullptr) {
    action_ = action;
    what_ = what;
    SetEvent(start_);
    if (action) WaitForSingleObject(done_, INFINITE);
  }
  void Work() {
    for (;;) {
      WaitForSingleObject(start_, INFINITE);
      if (!action_) return;
      action_(what_);
      SetEvent(done_);
    }
  }

  HANDLE start_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  HANDLE done_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  void (*action_)(const void*) = nullptr;
  const void* what_ = nullptr;
  std::thread thread_;
};

class ReloadTest : public LibraryTest {
 protected:
  /// Loads a module, uses it as `use` does, and unloads it, over and over.
  template <typename Use>
  void ExpectNothingLeft(const std::wstring& original, const Use& use) {
    // What the library and its store are needed for otherwise stays loaded from its own place.
    const std::wstring file = original + L".copy.dll";
    ASSERT_TRUE(CopyFileW(original.c_str(), file.c_str(), FALSE));
    const auto once = [&] {
      const HMODULE module = LoadLibraryW(file.c_str());
      ASSERT_NE(module, nullptr);
      use(module);
      ASSERT_EQ(Entry<HRESULT WINAPI()>(module, "DllCanUnloadNow")(), S_OK);
      FreeLibrary(module);
      ASSERT_EQ(GetModuleHandleW(file.c_str()), nullptr);
    };
    for (int load = 0; load < kFirstLoads; ++load) once();
    const Left before = LeftNow();
    for (int load = 0; load < kReloads; ++load) once();
    Left after = LeftNow();
    if (HeapsPutBlocksIntoGroups() && after.bytes < before.bytes + kGroupsOfALoad * kReloads) {
      after.bytes = before.bytes;
      after.blocks = before.blocks;
    }
    EXPECT_EQ(after, before);
    EXPECT_TRUE(DeleteFileW(file.c_str()));
  }

  template <typename Function>
  static Function* Entry(HMODULE module, const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
  }
  template <typename Interface>
  static ComPtr<Interface> MakeIn(HMODULE module, REFCLSID class_id, REFIID iid) {
    ComPtr<IClassFactory> factory;
    ComPtr<Interface> object;
    const auto get = Entry<HRESULT WINAPI(REFCLSID, REFIID, void**)>(module, "DllGetClassObject");
    EXPECT_EQ(get(class_id, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    EXPECT_EQ(factory->CreateInstance(nullptr, iid, object.ReceiveVoid()), S_OK);
    return object;
  }

  Bystander bystander;
};

TEST_F(ReloadTest, TheComponentLeavesNothingBehindHoweverOftenItIsLoaded) {
  const auto host = MakeFake<FakeHost>();
  host->fill = [](const FillArguments&) { return E_FAIL; };
  ExpectNothingLeft(FileOfBuild(L"ORVENDAL_COMPONENT_DLL"), [&](HMODULE module) {
    const auto component = MakeIn<_ClassOrvendal>(module, identity::kClass, identity::kInterface);
    const auto call = [&] {
      _DatosClase* session = host.Get();
      BSTR text = nullptr;
      VARIANT_BOOL answer = VARIANT_FALSE;
      return component->Orvendal(&session, &text, &text, &text, &answer);
    };
    EXPECT_EQ(call(), E_FAIL);
    bystander.Do([&] { EXPECT_EQ(call(), RPC_E_WRONG_THREAD); });
    SetErrorInfo(0, nullptr);
    bystander.Do([] { SetErrorInfo(0, nullptr); });
  });
}

TEST_F(ReloadTest, TheLibraryLeavesNothingBehindHoweverOftenItIsLoaded) {
  const BstrCell right(ConnectionString());
  const BstrCell wrong("Provider=SQLOLEDB.1;Data Source=nowhere.db");
  const BstrCell file(File());
  ExpectNothingLeft(FileOfBuild(L"ORVENDAL_DLL"), [&](HMODULE module) {
    const auto session = MakeIn<_SampleSession>(module, __uuidof(::DatosClase), __uuidof(_SampleSession));
    EXPECT_EQ(session->OpenConnection(right.Get()), S_OK);
    EXPECT_LT(session->OpenConnection(wrong.Get()), 0);
    EXPECT_EQ(session->OpenStore(file.Get()), S_OK);
    bystander.Do([&] { EXPECT_EQ(session->OpenConnection(right.Get()), RPC_E_WRONG_THREAD); });
    SetErrorInfo(0, nullptr);
    bystander.Do([] { SetErrorInfo(0, nullptr); });
  });
}

TEST_F(ReloadTest, TheStoreLeavesNothingBehindHoweverOftenItIsLoaded) {
  const BstrCell right(ConnectionString());
  const BstrCell wrong("Provider=SQLOLEDB.1;Data Source=nowhere.db");
  const BstrCell nothing("");
  const BstrCell statement("SELECT * FROM Sucursales WHERE Nombre LIKE 'C%'");
  ExpectNothingLeft(FileOfBuild(L"ORVENDAL_STORE_DLL"), [&](HMODULE module) {
    const auto connection = MakeIn<::_Connection>(module, ado::kConnectionClass, ado::kConnection);
    EXPECT_LT(connection->Open(wrong.Get(), nothing.Get(), nothing.Get(), -1), 0);
    EXPECT_EQ(connection->Open(right.Get(), nothing.Get(), nothing.Get(), -1), S_OK);
    ComPtr<::_Recordset> rows;
    EXPECT_EQ(connection->Execute(statement.Get(), nullptr, -1, rows.Receive()), S_OK);
    VARIANT_BOOL at_end = VARIANT_TRUE;
    EXPECT_EQ(rows->get_EOF(&at_end), S_OK);
    EXPECT_EQ(at_end, VARIANT_FALSE);
    rows.Reset();
    bystander.Do([&] {
      EXPECT_LT(connection->Open(right.Get(), nothing.Get(), nothing.Get(), -1), 0);
      SetErrorInfo(0, nullptr);
    });
    SetErrorInfo(0, nullptr);
  });
}

}  // namespace
}  // namespace orvendal
