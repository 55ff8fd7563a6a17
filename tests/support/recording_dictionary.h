#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/base/text.h"
#include "platform/data/ado_error.h"
#include "platform/data/recordset.h"
#include "tests/support/event_log.h"

namespace orvendal::testing_support {

/// A dictionary that writes down every read, as "General.Fecha", and everything else that is done with it, as
/// "General: Close". All of it outlived by the log.
class RecordingDictionary final : public Recordset {
 public:
  using NamedValue = std::pair<std::string, Value>;
  RecordingDictionary(std::string name, std::vector<NamedValue> row, EventLog& log)
      : name_(std::move(name)), row_(std::move(row)), log_(log) {}

  void Open(const std::string&, const ConnectionRef&, CursorType, LockType, std::int32_t) override {
    Note("Open");
  }
  void Close() override { Note("Close"); }
  std::int32_t State() const override { return kStateOpen; }
  std::int32_t EditMode() const override { return 0; }
  bool AtEnd() const override { return false; }
  void MoveNext() override { Note("MoveNext"); }
  std::int32_t RecordCount() const override { return 1; }
  void Find(const std::string&, std::int32_t, SearchDirection) override { Note("Find"); }
  void AbsolutePosition(std::int32_t) override { Note("AbsolutePosition"); }
  std::size_t FieldCount() const override { return row_.size(); }
  std::string FieldName(std::size_t index) const override { return row_[index].first; }
  void AddNew() override { Note("AddNew"); }
  void Collect(std::string_view, const Value&) override { Note("Collect"); }
  void Update() override { Note("Update"); }
  void CancelUpdate() override { Note("CancelUpdate"); }

 protected:
  std::size_t FieldIndex(std::string_view name) const override {
    log_.Add(name_ + "." + std::string(name));
    for (std::size_t i = 0; i < row_.size(); ++i) {
      if (EqualsIgnoringCase(row_[i].first, name)) return i;
    }
    throw AdoError(ado_error::kItemNotFound);
  }
  Value FieldValue(std::size_t index) const override { return row_[index].second; }

 private:
  void Note(const std::string& operation) { log_.Add(name_ + ": " + operation); }

  std::string name_;
  std::vector<NamedValue> row_;
  EventLog& log_;
};

}  // namespace orvendal::testing_support
