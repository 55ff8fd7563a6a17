#include "tests/adapters/automation/handed_out.h"

#include <algorithm>
#include <cstring>

#include "adapters/automation/variant.h"
#include "tests/adapters/automation/described_interface.h"
#include "tests/adapters/com/invoke_client.h"

namespace orvendal {
namespace {

constexpr WORD kAsk = DISPATCH_PROPERTYGET | DISPATCH_METHOD;
constexpr GUID kUnheardOf = {0x6B9F31D2, 0x08C4, 0x4E57, {0x8A, 0x11, 0x52, 0x7D, 0x9C, 0x60, 0x3F, 0xE4}};

/// What a client in C hands over where it leaves an identifier out.
REFIID NoIdentifier() {
  const IID* volatile nothing = nullptr;
  return *nothing;
}

/// Clients that keep to no rule, on every class that the three DLLs hand out.
class HandedOutTest : public testing::TestWithParam<Handed> {
 protected:
  static void SetUpTestSuite() { world_ = new HandedOutWorld; }
  static void TearDownTestSuite() { delete world_; }

  const HandedOut out = world_->Of(GetParam());

 private:
  static inline HandedOutWorld* world_ = nullptr;
};

TEST_P(HandedOutTest, AnInterfaceThatIsNotThereIsRefusedAndThePointerCleared) {
  ASSERT_TRUE(out.object);
  void* other = this;
  EXPECT_EQ(out.object->QueryInterface(kUnheardOf, &other), E_NOINTERFACE);
  EXPECT_EQ(other, nullptr);
  EXPECT_EQ(out.object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  other = this;
  EXPECT_EQ(out.object->QueryInterface(NoIdentifier(), &other), E_INVALIDARG);
  EXPECT_EQ(other, nullptr);
}

TEST_P(HandedOutTest, ItsInterfacesAreOneObject) {
  const auto identity = out.object.Query<IUnknown>(IID_IUnknown);
  int known = 0;
  for (const IID& iid : {IID_IDispatch, IID_ISupportErrorInfo, IID_IProvideClassInfo, IID_IEnumVARIANT,
                         IID_IConnectionPointContainer, IID_IClassFactory, IID_IEnumConnectionPoints}) {
    const auto other = out.object.Query<IUnknown>(iid);
    if (!other) continue;
    ++known;
    EXPECT_EQ(other.Query<IUnknown>(IID_IUnknown).Get(), identity.Get());
  }
  EXPECT_GT(known, 0);
}

class EnumerationHandedOut : public HandedOutTest {};

TEST_P(EnumerationHandedOut, GivesNothingWithoutAPlaceForIt) {
  const auto walk = out.object.Query<IEnumVARIANT>(IID_IEnumVARIANT);
  ASSERT_TRUE(walk);
  ULONG fetched = 9;
  EXPECT_EQ(walk->Next(1, nullptr, &fetched), E_POINTER);
  EXPECT_EQ(fetched, 0U);
  VARIANT two[2] = {OfType(VT_EMPTY), OfType(VT_EMPTY)};
  EXPECT_EQ(walk->Next(2, two, nullptr), E_POINTER) << "nobody would know how many there are";
  EXPECT_EQ(V_VT(&two[0]), VT_EMPTY);
  EXPECT_EQ(walk->Clone(nullptr), E_POINTER);
}

class FactoryHandedOut : public HandedOutTest {};

TEST_P(FactoryHandedOut, MakesNoObjectWithoutAPlaceForIt) {
  const auto factory = out.object.Query<IClassFactory>(IID_IClassFactory);
  ASSERT_TRUE(factory);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  void* made = this;
  EXPECT_EQ(factory->CreateInstance(nullptr, NoIdentifier(), &made), E_INVALIDARG);
  EXPECT_EQ(made, nullptr);
  made = this;
  EXPECT_EQ(factory->CreateInstance(nullptr, kUnheardOf, &made), E_NOINTERFACE);
  EXPECT_EQ(made, nullptr);
}

/// Those that are called by names.
class CalledByNames : public HandedOutTest {
 protected:
  DISPID IdOf(const wchar_t* name) const {
    auto* text = const_cast<LPOLESTR>(name);
    DISPID id = DISPID_UNKNOWN;
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    return id;
  }
  HRESULT Invoke(DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result = nullptr,
                 REFIID reserved = IID_NULL) {
    wrong = 99;
    return object->Invoke(id, reserved, LOCALE_USER_DEFAULT, flags, parameters, result, nullptr, &wrong);
  }
  /// Asks for the member with so many arguments, each of which is `argument`.
  HRESULT Ask(UINT count, VARIANT argument) {
    std::vector<VARIANT> arguments(count, argument);
    DISPPARAMS parameters{arguments.data(), nullptr, count, 0};
    return Invoke(member, kAsk, &parameters);
  }
  HRESULT Assign(std::vector<VARIANT> values) {
    DISPID name = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{values.data(), &name, static_cast<UINT>(values.size()), 1};
    if (values.empty()) parameters = {};
    return Invoke(IdOf(out.property), DISPATCH_PROPERTYPUT, &parameters);
  }

  const ComPtr<IDispatch> object = out.object.Query<IDispatch>(IID_IDispatch);
  const DISPID member = IdOf(out.member);
  UINT wrong = 99;
};

TEST_P(CalledByNames, AMissingIdentifierIsTakenForTheEmptyOneAndAnotherIsRefused) {
  auto* name = const_cast<LPOLESTR>(out.member);
  DISPID id = DISPID_UNKNOWN;
  EXPECT_EQ(object->GetIDsOfNames(NoIdentifier(), &name, 1, 0, &id), S_OK);
  EXPECT_EQ(id, member);
  EXPECT_EQ(object->GetIDsOfNames(IID_IDispatch, &name, 1, 0, &id), DISP_E_UNKNOWNINTERFACE);
  DISPPARAMS none{};
  const HRESULT as_it_is = Invoke(member, kAsk, &none);
  EXPECT_EQ(Invoke(member, kAsk, &none, nullptr, NoIdentifier()), as_it_is);
  EXPECT_EQ(Invoke(member, kAsk, &none, nullptr, IID_IDispatch), DISP_E_UNKNOWNINTERFACE);
}

TEST_P(CalledByNames, WhatIsListedOfItIsWhatItIs) {
  const auto listed = [](unsigned manner) {
    const std::vector<Handed> all = AllOf(manner);
    return std::find(all.begin(), all.end(), GetParam()) != all.end();
  };
  EXPECT_EQ(listed(kAskedAlone), out.takes == 0);
  EXPECT_EQ(listed(kCalledByTable), !FunctionsOf(object.Get()).empty());
}

TEST_P(CalledByNames, NamesThatAreMissingOrUnknownHaveNoNumbers) {
  auto* known = const_cast<LPOLESTR>(out.member);
  auto* unknown = const_cast<LPOLESTR>(L"Unheard_of");
  LPOLESTR nothing = nullptr;
  DISPID ids[2] = {7, 7};
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, nullptr, 1, 0, ids), E_POINTER);
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &known, 1, 0, nullptr), E_POINTER);
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, nullptr, 0, 0, nullptr), S_OK);
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &nothing, 1, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[0], DISPID_UNKNOWN);
  ids[0] = 7;
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &unknown, 1, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[0], DISPID_UNKNOWN);
  LPOLESTR both[] = {known, nothing};
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, both, 2, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[1], DISPID_UNKNOWN);
}

TEST_P(CalledByNames, ArgumentsThatArePromisedAndNotThereAreRefused) {
  EXPECT_EQ(Invoke(member, kAsk, nullptr), E_INVALIDARG);
  DISPPARAMS promised{nullptr, nullptr, 1, 0};
  EXPECT_EQ(Invoke(member, kAsk, &promised), E_INVALIDARG);
  DISPPARAMS nameless{nullptr, nullptr, 0, 1};
  EXPECT_EQ(Invoke(member, kAsk, &nameless), E_INVALIDARG);
  DISPID name = 0;
  DISPPARAMS more_names{nullptr, &name, 0, 1};
  EXPECT_EQ(Invoke(member, kAsk, &more_names), DISP_E_BADPARAMCOUNT);
}

TEST_P(CalledByNames, TooManyAndTooFewArgumentsAreToldSo) {
  const VARIANT nothing = OfType(VT_UNKNOWN);
  EXPECT_EQ(Ask(out.takes + 1, nothing), DISP_E_BADPARAMCOUNT);
  if (out.takes > 0) {
    EXPECT_EQ(Ask(out.takes - 1, nothing), DISP_E_BADPARAMCOUNT);
  }
  if (!out.property) return;
  EXPECT_EQ(Assign({}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(Assign({Argument(LONG{1}), Argument(LONG{1})}), DISP_E_BADPARAMCOUNT);
}

TEST_P(CalledByNames, AReferenceToNothingIsAMismatch) {
  VARIANT ring;
  ring = Reference(&ring);
  for (const VARIANT& argument :
       {OfType(VT_BYREF | VT_BSTR), OfType(VT_BYREF | VT_I4), OfType(VT_BYREF | VT_VARIANT), ring}) {
    if (out.takes > 0) {
      EXPECT_EQ(Ask(out.takes, argument), DISP_E_TYPEMISMATCH) << V_VT(&argument);
      EXPECT_LT(wrong, out.takes);
    }
    if (out.property) {
      EXPECT_EQ(Assign({argument}), DISP_E_TYPEMISMATCH) << V_VT(&argument);
      EXPECT_EQ(wrong, 0U);
    }
  }
}

TEST_P(CalledByNames, AMemberThatIsNotThereIsNotFound) {
  DISPPARAMS none{};
  EXPECT_EQ(Invoke(0x7123, kAsk, &none), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Invoke(DISPID_UNKNOWN, kAsk, &none), DISP_E_MEMBERNOTFOUND);
}

class AskedAlone : public CalledByNames {};

TEST_P(AskedAlone, AnAnswerThatNobodyWantsIsNoHarmAndOneThatWasNeverSetUpIsOverwritten) {
  ASSERT_EQ(out.takes, 0U);
  DISPPARAMS none{};
  EXPECT_EQ(object->Invoke(member, IID_NULL, 0, kAsk, &none, nullptr, nullptr, nullptr), S_OK);
  VARIANT result;
  std::memset(&result, 0xA5, sizeof(result));
  EXPECT_EQ(Invoke(member, kAsk, &none, &result), S_OK);
  EXPECT_TRUE(V_VT(&result) == VT_BSTR || V_VT(&result) == VT_I4) << V_VT(&result);
  VariantClear(&result);
}

TEST_P(CalledByNames, DescriptionsNeedAPlace) {
  EXPECT_EQ(object->GetTypeInfoCount(nullptr), E_POINTER);
  EXPECT_EQ(object->GetTypeInfo(0, 0, nullptr), E_POINTER);
  auto* info = reinterpret_cast<ITypeInfo*>(this);
  EXPECT_EQ(object->GetTypeInfo(1, 0, &info), DISP_E_BADINDEX);
  EXPECT_EQ(info, nullptr);
  if (const auto provider = object.Query<IProvideClassInfo>(IID_IProvideClassInfo)) {
    EXPECT_EQ(provider->GetClassInfo(nullptr), E_POINTER);
  }
  if (const auto support = object.Query<ISupportErrorInfo>(IID_ISupportErrorInfo)) {
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(kUnheardOf), S_FALSE);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(NoIdentifier()), S_FALSE);
  }
}

class CalledByTable : public CalledByNames {};

TEST_P(CalledByTable, AnArgumentByReferenceThatIsMissingIsSaidBeforeAnythingHappens) {
  const std::vector<DescribedFunction> functions = FunctionsOf(object.Get());
  ASSERT_FALSE(functions.empty());
  // Who does not say that it explains its errors is not asked for it.
  const bool explains = static_cast<bool>(object.Query<IUnknown>(IID_ISupportErrorInfo));
  std::size_t calls = 0;
  for (const DescribedFunction& function : functions) {
    for (std::size_t place = 0; place < function.parameters.size(); ++place) {
      if (!function.parameters[place].by_reference || function.parameters[place].optional) continue;
      ++calls;
      LeaveStaleError();
      EXPECT_EQ(CallWithout(out.object.Get(), function, place), E_POINTER)
          << function.name << ", argument " << place + 1;
      if (!explains) continue;
      ComPtr<IErrorInfo> info;
      EXPECT_EQ(GetErrorInfo(0, info.Receive()), S_FALSE)
          << function.name << " is explained by another's error";
    }
  }
  EXPECT_GT(calls, 0U);
}

std::string NameOfCase(const testing::TestParamInfo<Handed>& info) {
  return NameOf(info.param);
}

INSTANTIATE_TEST_SUITE_P(Classes, HandedOutTest, testing::ValuesIn(AllOf(kAny)), NameOfCase);
INSTANTIATE_TEST_SUITE_P(Classes, EnumerationHandedOut, testing::ValuesIn(AllOf(kEnumeration)), NameOfCase);
INSTANTIATE_TEST_SUITE_P(Classes, FactoryHandedOut, testing::ValuesIn(AllOf(kFactory)), NameOfCase);
INSTANTIATE_TEST_SUITE_P(Classes, CalledByNames, testing::ValuesIn(AllOf(kCalledByNames)), NameOfCase);
INSTANTIATE_TEST_SUITE_P(Classes, AskedAlone, testing::ValuesIn(AllOf(kAskedAlone)), NameOfCase);
INSTANTIATE_TEST_SUITE_P(Classes, CalledByTable, testing::ValuesIn(AllOf(kCalledByTable)), NameOfCase);

}  // namespace
}  // namespace orvendal
