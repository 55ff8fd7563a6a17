#include "tests/adapters/ado/ado_fixture.h"

namespace orvendal::ado_testing {
namespace {

class Errors : public AdoTest {
 protected:
  /// Every operation by the name that the objects know it under.
  std::map<std::string, std::function<void()>> Operations() {
    return {{"Provider", [this] { connection->Provider(); }},
            {"Open", [this] { OpenRows(); }},
            {"Close", [this] { recordset->Close(); }},
            {"State", [this] { recordset->State(); }},
            {"EOF", [this] { recordset->AtEnd(); }},
            {"MoveNext", [this] { recordset->MoveNext(); }},
            {"RecordCount", [this] { recordset->RecordCount(); }},
            {"Find", [this] { recordset->Find("a = 1", 0, SearchDirection::kForward); }},
            {"AbsolutePosition", [this] { recordset->AbsolutePosition(1); }},
            {"Fields", [this] { Read("Codigo"); }},
            {"Item", [this] { Read("Codigo"); }},
            {"Value", [this] { Read("Codigo"); }},
            {"AddNew", [this] { recordset->AddNew(); }},
            {"Collect", [this] { recordset->Collect("Codigo", "1"); }},
            {"Update", [this] { recordset->Update(); }},
            {"CancelUpdate", [this] { recordset->CancelUpdate(); }}};
  }
};

TEST_F(Errors, EachOperationHandsOnTheProvidersNumberAndText) {
  provider.values = {{"Codigo", Long(1)}};
  for (const auto& [name, operation] : Operations()) {
    provider.failures = {{name, {static_cast<HRESULT>(0x80040E14), L"Sintaxis de «ñ»"}}};
    Raised raised = RaisedBy(operation);
    EXPECT_EQ(raised.number, ado_error::kSyntax) << name;
    EXPECT_EQ(raised.description, "Sintaxis de «ñ»") << name;
    provider.failures = {{name, {static_cast<HRESULT>(0x800A0BCD), L"BOF o EOF"}}};
    raised = RaisedBy(operation);
    EXPECT_EQ(raised.number, ado_error::kEitherBofOrEof) << name;
    EXPECT_EQ(raised.description, "BOF o EOF") << name;
  }
}

TEST_F(Errors, TextThatAnEarlierCallLeftIsNotTakenForThisOnes) {
  for (const auto& [name, operation] : Operations()) {
    ICreateErrorInfo* made = nullptr;
    ASSERT_EQ(CreateErrorInfo(&made), S_OK);
    wchar_t stale[] = L"stale";
    made->SetDescription(stale);
    IErrorInfo* info = nullptr;
    ASSERT_EQ(made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)), S_OK);
    SetErrorInfo(0, info);
    info->Release();
    made->Release();
    provider.values = {{"Codigo", Long(1)}};
    provider.failures = {{name, {E_FAIL}}};
    const Raised raised = RaisedBy(operation);
    EXPECT_EQ(raised.number, ado_error::kUnspecified) << name;
    EXPECT_NE(raised.description, "stale") << name;
    EXPECT_FALSE(raised.description.empty()) << name;
  }
}

TEST_F(Errors, AnUnknownFieldIsNotInTheCollection) {
  provider.values = {{"Codigo", Long(1)}};
  EXPECT_EQ(NumberOf([this] { Read("Precio"); }), ado_error::kItemNotFound);
  EXPECT_EQ(Read("Codigo"), Value(1)) << "and the others are there as before";
}

TEST_F(Errors, AProviderThatGivesNoObjectWhereOneIsDueIsAnError) {
  provider.null_objects = true;
  EXPECT_EQ(NumberOf([this] { Read("Codigo"); }), error_number::kObjectNotSet);
  EXPECT_EQ(NumberOf([this] { recordset->FieldCount(); }), error_number::kObjectNotSet);
  provider.null_objects = false;
  provider.meanwhile["Fields"] = [] {};
  provider.meanwhile["Item"] = [this] { provider.null_objects = true; };
  EXPECT_EQ(NumberOf([this] { Read("Codigo"); }), error_number::kObjectNotSet);
}

TEST_F(Errors, AFieldWithoutAValueOfItsTypeIsAMismatch) {
  VARIANT object = {};
  V_VT(&object) = VT_DISPATCH;
  VARIANT code = {};
  V_VT(&code) = VT_ERROR;
  V_ERROR(&code) = DISP_E_OVERFLOW;
  provider.values = {{"objeto", object}, {"error", code}};
  EXPECT_EQ(NumberOf([this] { Read("objeto"); }), error_number::kTypeMismatch);
  EXPECT_EQ(NumberOf([this] { Read("error"); }), error_number::kTypeMismatch);
}

TEST_F(Errors, AFieldReadAfterItsStatementIsGoneIsNotInTheCollection) {
  provider.values = {{"Codigo", Long(1)}};
  OpenRows();
  const Field field = recordset->Fields("Codigo");
  recordset->Close();
  EXPECT_EQ(NumberOf([&field] { field.Value(); }), ado_error::kItemNotFound);
}

TEST_F(Errors, ATextThatIsNoNumberIsRefusedBeforehandAsItsAssignmentWouldBe) {
  for (const char* text : {"-", ",", "muchos", " ", ""}) {
    SCOPED_TRACE(text);
    const Raised raised = RaisedBy([&] { connection->CheckNumber(text); });
    EXPECT_EQ(raised.number, ado_error::kDataConversion);
    EXPECT_EQ(raised.description, AdoError(ado_error::kDataConversion).Description());
  }
  for (const char* text : {"5", "-7", " 12 "})
    EXPECT_EQ(NumberOf([&] { connection->CheckNumber(text); }), 0) << text;
  EXPECT_TRUE(provider.calls.empty()) << "the provider is not asked";
}

}  // namespace
}  // namespace orvendal::ado_testing
