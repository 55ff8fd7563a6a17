#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/base/runtime_error.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// A statement that a recordset was opened with, and what came of it.
struct OpenedStatement {
  std::string text;
  CursorType cursor = CursorType::kStatic;
  LockType lock = LockType::kReadOnly;
  std::int32_t error = 0;  // 0 if it was run
  std::string error_text;

  /// The mode of a save; any other is reading.
  bool IsWriting() const { return lock != LockType::kReadOnly; }
};

/// Makes the recordsets of another factory, watches them, and makes them fail when told to. A failure that
/// was injected does not reach the recordset behind, so that a row refused stays pending. What it has
/// recorded and what it is still to do belong to it and its recordsets together.
class ObservedRecordsetFactory final : public RecordsetFactory {
 public:
  explicit ObservedRecordsetFactory(std::shared_ptr<RecordsetFactory> inner);
  ~ObservedRecordsetFactory() override;

  RecordsetRef NewRecordset() override;

  /// The statements opened since it was last asked.
  std::vector<OpenedStatement> TakeStatements();
  /// Called after each Open, failed ones too; an empty function ends it.
  void OnOpen(std::function<void(const OpenedStatement&)> listener);

  /// The `nth` Update (or Open) from now on, counted from 1, fails so, once. Each call adds a failure; of two
  /// for the same operation the one added first is raised.
  void FailUpdate(int nth, std::int32_t number, const std::string& description);
  void FailOpen(int nth, std::int32_t number, const std::string& description);
  /// The `nth` operation of any kind that can fail: opening, closing, moving, searching, counting, reading a
  /// field, assigning one, adding, updating and dropping a row.
  void FailOperation(int nth, std::int32_t number, const std::string& description);
  /// How many of those there were so far.
  int Operations() const;

  /// Shared with the recordsets it made.
  struct Journal;

 private:
  std::shared_ptr<RecordsetFactory> inner_;
  std::shared_ptr<Journal> journal_;
};

}  // namespace orvendal
