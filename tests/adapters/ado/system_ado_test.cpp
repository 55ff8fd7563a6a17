// The adapter over the ADO that the system itself has: that of Windows, or of a Wine from its version 10 on.
// Earlier ones of Wine serve too little of it; there the program says so and ends with kNotRun.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>

#include "adapters/ado/ado_identity.h"
#include "adapters/ado/ado_recordset.h"
#include "adapters/ado/ado_recordset_factory.h"
#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/bstr.h"
#include "adapters/automation/variant.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text.h"
#include "platform/data/ado_error.h"
#include "store/date_condition.h"
#include "store/statements.h"
#include "tests/adapters/ado/recording_provider.h"
#include "tests/adapters/ado/system_ado.h"
#include "tests/adapters/com/tested_dll.h"
#include "tests/support/error_of.h"

namespace orvendal::ado_testing {
namespace {

constexpr int kNotRun = 77;
constexpr int kFirstWineThatServes = 10;

// Declarations. What an interface is to its callers by place and by name, one line a member, without the
// names of types and arguments, which are everybody's own.

std::string ShownType(ITypeInfo& owner, const TYPEDESC& type);

std::string ShownReference(ITypeInfo& owner, HREFTYPE reference) {
  ComPtr<ITypeInfo> info;
  if (FAILED(owner.GetRefTypeInfo(reference, info.Receive()))) return "?";
  TYPEATTR* attributes = nullptr;
  if (FAILED(info->GetTypeAttr(&attributes))) return "?";
  std::string shown = "object";
  if (attributes->typekind == TKIND_ENUM) shown = "3";
  if (attributes->typekind == TKIND_ALIAS) shown = ShownType(*info.Get(), attributes->tdescAlias);
  info->ReleaseTypeAttr(attributes);
  return shown;
}

std::string ShownType(ITypeInfo& owner, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_USERDEFINED:
      return ShownReference(owner, type.hreftype);
    case VT_PTR:
      return ShownType(owner, *type.lptdesc) + "*";
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return "object*";
    case VT_INT:
      return std::to_string(VT_I4);
    default:
      return std::to_string(type.vt);
  }
}

std::string ShownMember(ITypeInfo& owner, const FUNCDESC& member) {
  BstrCell name;
  owner.GetDocumentation(member.memid, name.InOut(), nullptr, nullptr, nullptr);
  // A library writes a name as it first met it; callers by name ignore case.
  std::string shown = ToLower(name.Text()) + " id " + std::to_string(member.memid) + " kind " +
                      std::to_string(member.invkind) + " at " +
                      std::to_string(member.oVft / static_cast<int>(sizeof(void*))) + " (";
  for (int index = 0; index < member.cParams; ++index) {
    const ELEMDESC& argument = member.lprgelemdescParam[index];
    const bool out = (argument.paramdesc.wParamFlags & PARAMFLAG_FOUT) != 0;
    shown += (out ? " out " : " ") + ShownType(owner, argument.tdesc);
  }
  return shown + " )";
}

/// The table of functions that stands behind a dual interface.
ComPtr<ITypeInfo> TableOf(const ComPtr<ITypeInfo>& info) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> table;
  if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)) &&
      SUCCEEDED(info->GetRefTypeInfo(reference, table.Receive()))) {
    return table;
  }
  return info;
}

std::vector<std::string> MembersOf(const ComPtr<ITypeInfo>& described) {
  const ComPtr<ITypeInfo> table = TableOf(described);
  std::vector<std::string> members;
  FUNCDESC* member = nullptr;
  for (UINT index = 0; SUCCEEDED(table->GetFuncDesc(index, &member)); ++index) {
    members.push_back(ShownMember(*table.Get(), *member));
    table->ReleaseFuncDesc(member);
  }
  return members;
}

/// The type library among a file's resources, whatever its name there is; loaders look for number 1 only.
ComPtr<ITypeLib> LibraryIn(const std::wstring& file) {
  ComPtr<ITypeLib> library;
  const HMODULE module = LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  EXPECT_NE(module, nullptr) << Utf8Text(file);
  HRSRC found = nullptr;
  EnumResourceNamesW(
      module, L"TYPELIB",
      [](HMODULE inside, LPCWSTR type, LPWSTR name, LONG_PTR place) CALLBACK -> BOOL {
        *reinterpret_cast<HRSRC*>(place) = FindResourceW(inside, name, type);
        return FALSE;
      },
      reinterpret_cast<LONG_PTR>(&found));
  EXPECT_NE(found, nullptr) << Utf8Text(file);
  wchar_t folder[MAX_PATH] = L"";
  wchar_t copy[MAX_PATH] = L"";
  GetTempPathW(MAX_PATH, folder);
  GetTempFileNameW(folder, L"tlb", 0, copy);
  std::ofstream(std::filesystem::path(copy), std::ios::binary)
      .write(static_cast<const char*>(LockResource(LoadResource(module, found))),
             static_cast<std::streamsize>(SizeofResource(module, found)));
  EXPECT_EQ(LoadTypeLibEx(copy, REGKIND_NONE, library.Receive()), S_OK) << Utf8Text(file);
  DeleteFileW(copy);
  FreeLibrary(module);
  return library;
}

ComPtr<ITypeInfo> Described(const ComPtr<ITypeLib>& library, const GUID& older, const GUID& newer) {
  ComPtr<ITypeInfo> info;
  if (FAILED(library->GetTypeInfoOfGuid(newer, info.Receive())))
    library->GetTypeInfoOfGuid(older, info.Receive());
  return info;
}

class SystemAdo : public testing::Test {
 protected:
  const ComThread com;
};

TEST_F(SystemAdo, DeclaresItsInterfacesMemberByMemberAsOurs) {
  const ComPtr<ITypeLib> theirs = LibraryIn(FileOfSystemAdo());
  const ComPtr<ITypeLib> ours = LibraryIn(FileOfBuild(L"ORVENDAL_STORE_DLL"));
  ASSERT_TRUE(theirs && ours);
  const std::map<std::string, unsigned long> interfaces = {
      {"_ADO", 0x534},        {"_Collection", 0x512}, {"Connection15", 0x515}, {"_Connection", 0x550},
      {"Recordset15", 0x50E}, {"Recordset20", 0x54F}, {"Recordset21", 0x555},  {"_Recordset", 0x556},
      {"Fields15", 0x506},    {"Fields20", 0x54D},    {"Fields", 0x564},       {"Field20", 0x54C},
      {"Field", 0x569}};
  for (const auto& [name, number] : interfaces) {
    SCOPED_TRACE(name);
    const ComPtr<ITypeInfo> own = Described(ours, ado::Identity(number), ado::Identity(number));
    const ComPtr<ITypeInfo> other = Described(theirs, ado::Identity(number), ado::NewerIdentity(number));
    ASSERT_TRUE(own);
    ASSERT_TRUE(other);
    const std::vector<std::string> own_members = MembersOf(own), other_members = MembersOf(other);
    EXPECT_FALSE(own_members.empty());
    ASSERT_EQ(own_members.size(), other_members.size());
    for (std::size_t index = 0; index < own_members.size(); ++index) {
      EXPECT_EQ(own_members[index], other_members[index]);
    }
  }
}

// Dictionaries that the host makes in memory, with no connection behind them.

class FabricatedDictionary {
 public:
  explicit FabricatedDictionary(const std::vector<std::pair<std::string, std::string>>& texts) {
    constexpr LONG kVarWChar = 202;
    constexpr LONG kLongest = 60;
    constexpr LONG kNullable = 0x20;
    EXPECT_EQ(CoCreateInstance(ado::kRecordsetClass, nullptr, CLSCTX_INPROC_SERVER, ado::kRecordset,
                               recordset_.ReceiveVoid()),
              S_OK);
    ComPtr<::Fields> fields;
    EXPECT_EQ(recordset_->get_Fields(fields.Receive()), S_OK);
    const Left omitted;
    for (const auto& [key, text] : texts) {
      EXPECT_EQ(fields->Append(BstrCell(key).Get(), kVarWChar, kLongest, kNullable, omitted.Get()), S_OK)
          << key;
    }
    EXPECT_EQ(recordset_->Open(omitted.Get(), omitted.Get(), -1, -1, -1), S_OK);
    EXPECT_EQ(recordset_->AddNew(omitted.Get(), omitted.Get()), S_OK);
    for (const auto& [key, text] : texts) {
      Variant name;
      Variant value;
      WriteText(*name.Address(), key);
      WriteText(*value.Address(), text);
      ComPtr<::Field> field;
      EXPECT_EQ(fields->get_Item(name.Get(), field.Receive()), S_OK) << key;
      EXPECT_EQ(field->put_Value(value.Get()), S_OK) << key;
    }
    EXPECT_EQ(recordset_->Update(omitted.Get(), omitted.Get()), S_OK);
  }
  ::_Recordset* Get() const { return recordset_.Get(); }

 private:
  /// An argument that is left out.
  class Left : public Variant {
   public:
    Left() {
      V_VT(Address()) = VT_ERROR;
      V_ERROR(Address()) = DISP_E_PARAMNOTFOUND;
    }
  };

  ComPtr<::_Recordset> recordset_;
};

TEST_F(SystemAdo, ItsRecordsetsServeAsTheThreeDictionaries) {
  const std::vector<std::vector<std::pair<std::string, std::string>>> dictionaries = {
      {{"Cancelar", "Cancel·lar"}, {"Datos de Interes", "Datos de Interés"}, {"Fecha", "Data"}},
      {{"Supervisor", "Supervisor"}, {"Borrar Linea", "Borrar Línea"}},
      {{"Orvendalciales", "Existències €"}}};
  for (const auto& texts : dictionaries) {
    const FabricatedDictionary made(texts);
    const RecordsetRef dictionary = WrapRecordset(made.Get());
    ASSERT_TRUE(dictionary);
    EXPECT_EQ(Unwrap(dictionary), static_cast<IDispatch*>(made.Get()));
    EXPECT_EQ(dictionary->State(), kStateOpen);
    EXPECT_FALSE(dictionary->AtEnd());
    EXPECT_EQ(dictionary->FieldCount(), texts.size());
    for (std::size_t index = 0; index < texts.size(); ++index) {
      const auto& [key, text] = texts[index];
      EXPECT_EQ(dictionary->FieldName(index), key);
      EXPECT_EQ(dictionary->Fields(key).Value(), Value(text));
    }
    EXPECT_THROW(dictionary->Fields("Nada"), RuntimeError);
    dictionary->Close();
    EXPECT_EQ(dictionary->State(), kStateClosed);
  }
}

// Its connections, over a provider that takes down what it is asked.

class SystemAdoConnection : public SystemAdo {
 protected:
  SystemAdoConnection() {
    EXPECT_EQ(CoCreateInstance(ado::kConnectionClass, nullptr, CLSCTX_INPROC_SERVER, ado::kConnection,
                               object_.ReceiveVoid()),
              S_OK);
    const BstrCell text(std::string("Provider=") + RecordingProvider::kName + ";Data Source=cadena");
    const BstrCell nothing("");
    EXPECT_EQ(object_->Open(text.Get(), nothing.Get(), nothing.Get(), -1), S_OK);
    connection = WrapConnection(object_.Get());
  }

  RecordingProvider provider;
  ConnectionRef connection;
  AdoRecordsetFactory recordsets;

 private:
  ComPtr<::_Connection> object_;
};

TEST_F(SystemAdoConnection, TakesTheDeleteOfADayWordForWord) {
  ASSERT_TRUE(connection);
  EXPECT_NE(connection->Provider(), "");
  EXPECT_EQ(provider.Log().calls, (std::vector<std::string>{"with cadena", "open"}));
  provider.Log().calls.clear();
  const std::string condition = DateConditionOfSave(connection, "16/11/2026", Region::Spanish());
  const std::string statement = statements::DeleteDay("Ñ1", condition);
  const RecordsetRef recordset = recordsets.NewRecordset();
  statements::OpenForWriting(*recordset, statement, connection);
  EXPECT_EQ(provider.Log().calls, std::vector<std::string>{"run " + statement});
  EXPECT_EQ(recordset->State(), kStateClosed) << "a delete has no rows";
  statements::OpenForWriting(*recordset, statement, connection);
  EXPECT_EQ(provider.Log().calls.size(), 2U) << "and the recordset can be opened at once";
}

TEST_F(SystemAdoConnection, SaysWhatTheProviderRefusedAndStaysUsable) {
  ASSERT_TRUE(connection);
  const RecordsetRef recordset = recordsets.NewRecordset();
  provider.Log().answer = ado_error::kSyntax;
  const auto open = [&] { statements::OpenForWriting(*recordset, "DELETE", connection); };
  EXPECT_EQ(testing_support::ErrorOf(open), ado_error::kSyntax);
  EXPECT_EQ(recordset->State(), kStateClosed);
  provider.Log().answer = S_OK;
  EXPECT_NO_THROW(open());
}

}  // namespace
}  // namespace orvendal::ado_testing

int main(int count, char** words) {
  using namespace orvendal::ado_testing;
  if (const std::optional<std::string> wine = VersionOfWine()) {
    if (std::atoi(wine->c_str()) < kFirstWineThatServes) {
      std::cout << "NOT RUN: the ADO of Wine " << *wine << " serves too little; Wine " << kFirstWineThatServes
                << " or later, or Windows, is needed\n";
      return kNotRun;
    }
  }
  testing::InitGoogleTest(&count, words);
  return RUN_ALL_TESTS();
}
