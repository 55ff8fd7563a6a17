#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/adapters/ado/raw_object.h"

namespace orvendal::ado_testing {

/// What the objects of one test share: what they were asked, and what they are to answer.
struct FakeProvider {
  struct Answer {
    HRESULT result;
    const wchar_t* description = nullptr;
  };

  /// Each call with its arguments, such as "Find('x', 0, 1, missing)".
  std::vector<std::string> calls;
  /// Operations that fail.
  std::map<std::string, Answer> failures;
  /// Runs inside each call, by operation.
  std::map<std::string, std::function<void()>> meanwhile;

  /// What a field holds, by name; the object gets a copy. Unknown names fail with 3265.
  std::map<std::string, VARIANT> values;
  std::wstring provider = L"SQLOLEDB.1";
  bool null_provider_name = false;
  LONG state = 1;
  VARIANT_BOOL at_end = VARIANT_FALSE;
  LONG_PTR record_count = 0;
  /// Gives null where an object is due, and says that all is well.
  bool null_objects = false;

  HRESULT Called(const std::string& operation, const std::string& arguments = {});
  std::size_t Count(const std::string& operation) const;
};

// Only the operations that the screen's store has to offer stand in these objects' tables, and those that
// tell the fields of a recordset.

struct FakeConnection : RawObject {
  explicit FakeConnection(FakeProvider& provider);
  FakeProvider& provider;
};
struct FakeRecordset : RawObject {
  explicit FakeRecordset(FakeProvider& provider);
  FakeProvider& provider;
};
struct FakeFields : RawObject {
  explicit FakeFields(FakeProvider& provider);
  FakeProvider& provider;
};
struct FakeField : RawObject {
  FakeField(FakeProvider& provider, std::string name);
  FakeProvider& provider;
  std::string name;
};

/// A value of a field.
VARIANT Long(LONG number);
VARIANT Text(const wchar_t* text);

}  // namespace orvendal::ado_testing
