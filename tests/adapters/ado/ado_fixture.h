#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "adapters/ado/ado_identity.h"
#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/module_lifetime.h"
#include "platform/base/runtime_error.h"
#include "platform/data/ado_error.h"
#include "tests/adapters/ado/fake_ado.h"
#include "tests/adapters/com/text_balance.h"

namespace orvendal::ado_testing {

using Calls = std::vector<std::string>;

/// What `action` raises: its number and its description; 0 and nothing if it raises nothing.
struct Raised {
  std::int32_t number = 0;
  std::string description;
};
inline Raised RaisedBy(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return {error.Number(), error.Description()};
  }
  return {};
}
inline std::int32_t NumberOf(const std::function<void()>& action) {
  return RaisedBy(action).number;
}

/// A connection and a recordset over objects of the tests. When it goes, every object and every text must
/// have been given back.
class AdoTest : public testing::Test {
 protected:
  AdoTest() {
    auto* const link = new FakeConnection(provider);
    link->answers = {ado::kConnection};
    connection = WrapConnection(link->Unknown());
    link->Unknown()->Release();
    auto* const rows = new FakeRecordset(provider);
    rows->answers = {ado::kRecordset};
    recordset = WrapRecordset(rows->Unknown());
    rows->Unknown()->Release();
  }
  void TearDown() override {
    connection.reset();
    recordset.reset();
    EXPECT_EQ(RawObject::alive, 0);
    EXPECT_EQ(LiveTexts(), 0U);
    EXPECT_TRUE(module_lifetime::IsFree());
  }

  void OpenRows(const std::string& source = "SELECT 1") {
    recordset->Open(source, connection, CursorType::kStatic, LockType::kReadOnly, kCommandUnspecified);
    provider.calls.clear();
  }
  Value Read(const char* field) { return recordset->Fields(field).Value(); }

  FakeProvider provider;
  ConnectionRef connection;
  RecordsetRef recordset;
};

}  // namespace orvendal::ado_testing
