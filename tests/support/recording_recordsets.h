#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/base/region.h"
#include "platform/data/recordset.h"
#include "tests/support/event_log.h"

namespace orvendal::testing_support {

/// The recordsets of another factory, numbered in the order in which they are made, with everything that is
/// done with them written down: "1 Open text (3, 1, -1)", "1 Fields(Nombre)", "1 gone".
class RecordingRecordsets final : public RecordsetFactory {
 public:
  RecordingRecordsets(RecordsetFactory& inner, EventLog& log) : inner_(inner), log_(log) {}

  RecordsetRef NewRecordset() override {
    const int number = ++made_;
    log_.Add(std::to_string(number) + " new");
    return std::make_shared<Recording>(number, inner_.NewRecordset(), log_, *this);
  }

  /// The connection that each Open was given, in order.
  const std::vector<ConnectionRef>& Connections() const { return connections_; }

 private:
  class Recording final : public Recordset {
   public:
    Recording(int number, RecordsetRef inner, EventLog& log, RecordingRecordsets& owner)
        : number_(number), inner_(std::move(inner)), log_(log), owner_(owner) {}
    ~Recording() override { Note("gone"); }

    void Open(const std::string& source, const ConnectionRef& connection, CursorType cursor, LockType lock,
              std::int32_t options) override {
      Note("Open " + source + " (" + std::to_string(static_cast<int>(cursor)) + ", " +
           std::to_string(static_cast<int>(lock)) + ", " + std::to_string(options) + ")");
      owner_.connections_.push_back(connection);
      inner_->Open(source, connection, cursor, lock, options);
    }
    void Close() override {
      Note("Close");
      inner_->Close();
    }
    std::int32_t State() const override {
      Note("State");
      return inner_->State();
    }
    std::int32_t EditMode() const override { return inner_->EditMode(); }
    bool AtEnd() const override { return inner_->AtEnd(); }
    void MoveNext() override {
      Note("MoveNext");
      inner_->MoveNext();
    }
    std::int32_t RecordCount() const override {
      Note("RecordCount");
      return inner_->RecordCount();
    }
    void Find(const std::string& criteria, std::int32_t skip_records, SearchDirection direction) override {
      Note("Find " + criteria + " (" + std::to_string(skip_records) + ", " +
           std::to_string(static_cast<int>(direction)) + ")");
      inner_->Find(criteria, skip_records, direction);
    }
    void AbsolutePosition(std::int32_t position) override {
      Note("AbsolutePosition " + std::to_string(position));
      inner_->AbsolutePosition(position);
    }
    std::size_t FieldCount() const override { return inner_->FieldCount(); }
    std::string FieldName(std::size_t index) const override { return inner_->FieldName(index); }
    void AddNew() override {
      Note("AddNew");
      inner_->AddNew();
    }
    void Collect(std::string_view name, const Value& value) override {
      Note("Collect " + std::string(name) + " = " + Region::Spanish().ToText(value));
      inner_->Collect(name, value);
    }
    void Update() override {
      Note("Update");
      inner_->Update();
    }
    void CancelUpdate() override {
      Note("CancelUpdate");
      inner_->CancelUpdate();
    }

   protected:
    std::size_t FieldIndex(std::string_view name) const override {
      Note("Fields(" + std::string(name) + ")");
      read_names_.emplace_back(name);
      return read_names_.size() - 1;
    }
    Value FieldValue(std::size_t index) const override { return inner_->Fields(read_names_[index]).Value(); }

   private:
    void Note(const std::string& what) const { log_.Add(std::to_string(number_) + " " + what); }

    int number_;
    RecordsetRef inner_;
    EventLog& log_;
    RecordingRecordsets& owner_;
    mutable std::vector<std::string> read_names_;
  };

  RecordsetFactory& inner_;
  EventLog& log_;
  int made_ = 0;
  std::vector<ConnectionRef> connections_;
};

}  // namespace orvendal::testing_support
