#include "tests/adapters/ado/ado_fixture.h"

namespace orvendal::ado_testing {
namespace {

constexpr FakeProvider::Answer kRefused = {static_cast<HRESULT>(0x80040E21), L"Multiple-step operation"};

class PendingRow : public AdoTest {
 protected:
  PendingRow() {
    recordset->Open("SELECT *", connection, CursorType::kDynamic, LockType::kOptimistic, kCommandUnspecified);
    recordset->AddNew();
    provider.calls.clear();
  }
  Calls CallsOfClose() {
    provider.calls.clear();
    recordset->Close();
    return provider.calls;
  }
};

TEST_F(PendingRow, IsCancelledBeforeAClose) {
  EXPECT_EQ(recordset->EditMode(), 2);
  EXPECT_EQ(CallsOfClose(), (Calls{"CancelUpdate", "Close"}));
  EXPECT_EQ(CallsOfClose(), Calls{"Close"}) << "once";
}

TEST_F(PendingRow, IsNoneAfterItWasPosted) {
  recordset->Update();
  EXPECT_EQ(recordset->EditMode(), 0);
  EXPECT_EQ(CallsOfClose(), Calls{"Close"});
}

TEST_F(PendingRow, IsNoneAfterItWasCancelled) {
  recordset->CancelUpdate();
  EXPECT_EQ(CallsOfClose(), Calls{"Close"});
}

TEST_F(PendingRow, StaysPendingWhenTheStoreRefusesIt) {
  provider.failures["Update"] = kRefused;
  EXPECT_EQ(NumberOf([this] { recordset->Update(); }), ado_error::kMultipleStep);
  EXPECT_EQ(recordset->EditMode(), 2);
  EXPECT_EQ(CallsOfClose(), (Calls{"CancelUpdate", "Close"}));
}

TEST_F(PendingRow, StaysPendingWhenItCannotBeCancelled) {
  provider.failures["CancelUpdate"] = kRefused;
  EXPECT_EQ(NumberOf([this] { recordset->CancelUpdate(); }), ado_error::kMultipleStep);
  EXPECT_EQ(recordset->EditMode(), 2);
}

TEST_F(PendingRow, IsPostedByAMove) {
  recordset->MoveNext();
  EXPECT_EQ(CallsOfClose(), Calls{"Close"});
  recordset->AddNew();
  recordset->AbsolutePosition(1);
  EXPECT_EQ(CallsOfClose(), Calls{"Close"});
  recordset->AddNew();
  recordset->Find("Codigo = 1", 0, SearchDirection::kForward);
  EXPECT_EQ(CallsOfClose(), Calls{"Close"});
}

TEST_F(PendingRow, StaysPendingWhenAMoveFails) {
  provider.failures = {{"MoveNext", kRefused}, {"AbsolutePosition", kRefused}, {"Find", kRefused}};
  EXPECT_EQ(NumberOf([this] { recordset->MoveNext(); }), ado_error::kMultipleStep);
  EXPECT_EQ(NumberOf([this] { recordset->AbsolutePosition(1); }), ado_error::kMultipleStep);
  EXPECT_EQ(NumberOf([this] { recordset->Find("Codigo = 1", 0, SearchDirection::kForward); }),
            ado_error::kMultipleStep);
  EXPECT_EQ(CallsOfClose(), (Calls{"CancelUpdate", "Close"}));
}

TEST_F(PendingRow, IsNoneWhereAddingWasRefused) {
  recordset->Update();
  provider.failures["AddNew"] = {static_cast<HRESULT>(0x800A0CB3)};
  EXPECT_EQ(NumberOf([this] { recordset->AddNew(); }), ado_error::kFeatureNotAvailable);
  EXPECT_EQ(CallsOfClose(), Calls{"Close"});
}

TEST_F(PendingRow, ThatCannotBeDroppedLeavesTheAnswerToTheClose) {
  provider.failures["CancelUpdate"] = {static_cast<HRESULT>(0x80004005), L"Cannot cancel"};
  provider.failures["Close"] = {static_cast<HRESULT>(0x800A0C93), L"Not in this context"};
  const Raised raised = RaisedBy([this] { recordset->Close(); });
  EXPECT_EQ(raised.number, ado_error::kIllegalOperation);
  EXPECT_EQ(raised.description, "Not in this context");
  EXPECT_EQ(recordset->EditMode(), 2);
  provider.failures.clear();
  EXPECT_EQ(CallsOfClose(), (Calls{"CancelUpdate", "Close"}));
}

TEST_F(PendingRow, ACloseThatFailsForgetsWhatTheCancellingSaid) {
  provider.failures["CancelUpdate"] = {static_cast<HRESULT>(0x80004005), L"Cannot cancel"};
  provider.failures["Close"] = {static_cast<HRESULT>(0x800A0E78)};
  const Raised raised = RaisedBy([this] { recordset->Close(); });
  EXPECT_EQ(raised.number, ado_error::kObjectClosed);
  EXPECT_NE(raised.description, "Cannot cancel");
}

// Closing the connection closes its recordsets, whatever they had.
TEST_F(PendingRow, IsGoneWithAStatementThatWasClosedFromOutside) {
  recordset->Open("SELECT *", connection, CursorType::kDynamic, LockType::kOptimistic, kCommandUnspecified);
  EXPECT_EQ(recordset->EditMode(), 0);
  EXPECT_EQ(CallsOfClose(), Calls{"Close"});
}

TEST_F(PendingRow, NothingIsBeingEditedWhereNothingIsOpen) {
  provider.state = kStateClosed;
  EXPECT_EQ(NumberOf([this] { recordset->EditMode(); }), ado_error::kObjectClosed);
}

}  // namespace
}  // namespace orvendal::ado_testing
