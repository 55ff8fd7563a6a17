#include <optional>

#include "adapters/ado/ado_recordset_factory.h"
#include "adapters/automation/class_factory.h"
#include "adapters/automation/com_ptr.h"
#include "data_objects.h"
#include "platform/data/memory_recordset.h"
#include "tests/adapters/ado/ado_fixture.h"
#include "tests/adapters/ado/registered_class.h"

namespace orvendal::ado_testing {
namespace {

class Wrapping : public AdoTest {
 protected:
  template <typename Object>
  ComPtr<IUnknown> Make(std::vector<GUID> answers) {
    auto* const made = new Object(provider);
    made->answers = std::move(answers);
    return ComPtr<IUnknown>::Adopt(made->Unknown());
  }
  static ULONG References(const ComPtr<IUnknown>& object) {
    object->AddRef();
    return object->Release();
  }
};

TEST_F(Wrapping, ConnectionsAreTakenByEveryIdentifierOfTheirInterface) {
  for (const GUID& iid :
       {ado::kConnection, ado::kNewerConnection, ado::kConnection15, ado::kNewerConnection15}) {
    const auto object = Make<FakeConnection>({iid});
    EXPECT_EQ(WrapConnection(object.Get())->Provider(), "SQLOLEDB.1");
    EXPECT_EQ(References(object), 1U);
  }
}

TEST_F(Wrapping, RecordsetsAreTakenByEveryIdentifierOfTheirInterface) {
  for (const GUID& iid :
       {ado::kRecordset, ado::kNewerRecordset, ado::kRecordset21, ado::kNewerRecordset21, ado::kRecordset20,
        ado::kNewerRecordset20, ado::kRecordset15, ado::kNewerRecordset15}) {
    const auto object = Make<FakeRecordset>({iid});
    EXPECT_EQ(WrapRecordset(object.Get())->State(), kStateOpen);
    EXPECT_EQ(References(object), 1U);
  }
}

TEST_F(Wrapping, TheIdentifiersAreThoseOfTheInterfaces) {
  EXPECT_EQ(ado::kConnection, __uuidof(_Connection));
  EXPECT_EQ(ado::kConnection15, __uuidof(Connection15));
  EXPECT_EQ(ado::kRecordset, __uuidof(_Recordset));
  EXPECT_EQ(ado::kRecordset21, __uuidof(Recordset21));
  EXPECT_EQ(ado::kRecordset20, __uuidof(Recordset20));
  EXPECT_EQ(ado::kRecordset15, __uuidof(Recordset15));
  wchar_t text[40];
  ASSERT_NE(StringFromGUID2(ado::kNewerRecordset, text, 40), 0);
  EXPECT_STREQ(text, L"{00001556-0000-0010-8000-00AA006D2EA4}");
  ASSERT_NE(StringFromGUID2(ado::kRecordsetClass, text, 40), 0);
  EXPECT_STREQ(text, L"{00000535-0000-0010-8000-00AA006D2EA4}");
}

TEST_F(Wrapping, AnObjectOfAnotherKindIsAMismatch) {
  const auto link = Make<FakeConnection>({ado::kConnection});
  const auto rows = Make<FakeRecordset>({ado::kRecordset});
  const auto nothing = Make<FakeRecordset>({});
  EXPECT_EQ(NumberOf([&] { WrapConnection(rows.Get()); }), error_number::kTypeMismatch);
  EXPECT_EQ(NumberOf([&] { WrapRecordset(link.Get()); }), error_number::kTypeMismatch);
  EXPECT_EQ(NumberOf([&] { WrapRecordset(nothing.Get()); }), error_number::kTypeMismatch);
  auto* const liar = new FakeRecordset(provider);
  liar->lies = true;
  EXPECT_EQ(NumberOf([&] { WrapRecordset(liar->Unknown()); }), error_number::kTypeMismatch);
  liar->Unknown()->Release();
}

TEST_F(Wrapping, NothingStaysNothing) {
  EXPECT_EQ(WrapConnection(nullptr), nullptr);
  EXPECT_EQ(WrapRecordset(nullptr), nullptr);
  EXPECT_EQ(Unwrap(ConnectionRef()), nullptr);
  EXPECT_EQ(Unwrap(RecordsetRef()), nullptr);
}

TEST_F(Wrapping, TheVeryObjectComesBack) {
  const auto link = Make<FakeConnection>({ado::kNewerConnection});
  const auto rows = Make<FakeRecordset>({ado::kNewerRecordset});
  EXPECT_EQ(static_cast<IUnknown*>(Unwrap(WrapConnection(link.Get()))), link.Get());
  EXPECT_EQ(static_cast<IUnknown*>(Unwrap(WrapRecordset(rows.Get()))), rows.Get());
}

TEST_F(Wrapping, AReferenceHoldsItsObject) {
  auto rows = Make<FakeRecordset>({ado::kRecordset});
  RecordsetRef held = WrapRecordset(rows.Get());
  IUnknown* const inside = rows.Get();
  rows.Reset();
  EXPECT_EQ(static_cast<IUnknown*>(Unwrap(held)), inside);
  EXPECT_EQ(held->State(), kStateOpen);
}

TEST_F(Wrapping, WhatIsNotOfAdoHasNoObjectOutside) {
  class Elsewhere final : public Connection {
    std::string Provider() const override { return "other"; }
  };
  const ConnectionRef elsewhere = std::make_shared<Elsewhere>();
  EXPECT_EQ(NumberOf([&] { Unwrap(elsewhere); }), error_number::kTypeMismatch);
  const RecordsetRef memory = std::make_shared<MemoryRecordset>(std::vector<MemoryRecordset::NamedValue>());
  EXPECT_EQ(NumberOf([&] { Unwrap(memory); }), error_number::kTypeMismatch);
  connection = elsewhere;
  EXPECT_EQ(NumberOf([&] { OpenRows(); }), error_number::kTypeMismatch);
  EXPECT_TRUE(provider.calls.empty());
}

// None: the class fails to make its object.
FakeProvider* provider_of_class = nullptr;
GUID answer_of_class = {};

IUnknown* MakeRecordset() noexcept {
  if (!provider_of_class) return nullptr;
  auto* const made = new FakeRecordset(*provider_of_class);
  made->answers = {answer_of_class};
  return made->Unknown();
}

class Factory : public Wrapping {
 protected:
  ~Factory() override { provider_of_class = nullptr; }
  /// ADO's Recordset class makes recordsets that answer to `answer`.
  void Know(FakeProvider* of_class, const GUID& answer) {
    provider_of_class = of_class;
    answer_of_class = answer;
    ComPtr<IUnknown> factory;
    constexpr CreatableClass kClasses[] = {{ado::kRecordsetClass, MakeRecordset}};
    ASSERT_EQ(GetClassFactory(kClasses, ado::kRecordsetClass, IID_IUnknown, factory.ReceiveVoid()), S_OK);
    known_.emplace(ado::kRecordsetClass, factory.Get());
    ASSERT_EQ(known_->Result(), S_OK);
  }
  void TearDown() override {
    known_.reset();
    Wrapping::TearDown();
  }
  AdoRecordsetFactory factory;

 private:
  ComThread com_;
  std::optional<RegisteredClass> known_;
};

TEST_F(Factory, EachRecordsetIsANewObjectOfAdosClass) {
  Know(&provider, ado::kRecordset);
  const RecordsetRef one = factory.NewRecordset();
  const RecordsetRef other = factory.NewRecordset();
  EXPECT_NE(Unwrap(one), Unwrap(other));
  EXPECT_EQ(RawObject::alive, 4);
  provider.state = kStateClosed;
  EXPECT_EQ(one->State(), kStateClosed);
}

TEST_F(Factory, AClassOfTheNewerIdentifiersServes) {
  Know(&provider, ado::kNewerRecordset);
  EXPECT_EQ(factory.NewRecordset()->State(), kStateOpen);
}

TEST_F(Factory, WhereTheClassFailsNothingCanBeCreated) {
  Know(nullptr, {});
  const Raised raised = RaisedBy([this] { factory.NewRecordset(); });
  EXPECT_EQ(raised.number, 429);
  EXPECT_EQ(raised.description, "ActiveX component can't create object");
}

TEST_F(Factory, AClassThatMakesSomethingElseIsAnError) {
  Know(&provider, ado::kConnection);
  EXPECT_EQ(NumberOf([this] { factory.NewRecordset(); }), 430);
  EXPECT_EQ(RawObject::alive, 2);
}

}  // namespace
}  // namespace orvendal::ado_testing
