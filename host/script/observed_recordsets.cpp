#include "host/script/observed_recordsets.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/base/text.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

// Failures to come of one operation.
class FaultQueue {
 public:
  void Add(int nth, RuntimeError error) {
    if (nth > 0) faults_.push_back({nth, std::move(error)});
  }

  // To be called at each operation; raises the failure that is due.
  void Count() {
    std::optional<RuntimeError> due;
    for (Fault& fault : faults_) {
      if (--fault.remaining == 0 && !due) due = fault.error;
    }
    std::erase_if(faults_, [](const Fault& fault) { return fault.remaining == 0; });
    if (due) throw *due;
  }

 private:
  struct Fault {
    int remaining;
    RuntimeError error;
  };
  std::vector<Fault> faults_;
};

}  // namespace

struct ObservedRecordsetFactory::Journal {
  std::vector<OpenedStatement> statements;
  std::function<void(const OpenedStatement&)> listener;
  FaultQueue update_faults;
  FaultQueue open_faults;
  FaultQueue operation_faults;
  int operations = 0;

  void CountOperation() {
    ++operations;
    operation_faults.Count();
  }
  void Record(const OpenedStatement& statement) {
    statements.push_back(statement);
    if (listener) listener(statement);
  }
};

namespace {

class ObservedRecordset final : public Recordset {
 public:
  ObservedRecordset(RecordsetRef inner, std::shared_ptr<ObservedRecordsetFactory::Journal> journal)
      : inner_(std::move(inner)), journal_(std::move(journal)) {}

  void Open(const std::string& source, const ConnectionRef& connection, CursorType cursor, LockType lock,
            std::int32_t options) override {
    OpenedStatement statement{source, cursor, lock, 0, {}};
    try {
      journal_->CountOperation();
      journal_->open_faults.Count();
      inner_->Open(source, connection, cursor, lock, options);
    } catch (const RuntimeError& error) {
      statement.error = error.Number();
      statement.error_text = error.Description();
      journal_->Record(statement);
      throw;
    }
    names_.clear();
    for (std::size_t i = 0; i < inner_->FieldCount(); ++i) names_.push_back(inner_->FieldName(i));
    journal_->Record(statement);
  }

  void Update() override {
    journal_->CountOperation();
    journal_->update_faults.Count();
    inner_->Update();
  }

  void Close() override { Counted().Close(); }
  std::int32_t State() const override { return inner_->State(); }
  std::int32_t EditMode() const override { return inner_->EditMode(); }
  bool AtEnd() const override { return inner_->AtEnd(); }
  void MoveNext() override { Counted().MoveNext(); }
  std::int32_t RecordCount() const override { return Counted().RecordCount(); }
  void Find(const std::string& criteria, std::int32_t skip_records, SearchDirection direction) override {
    Counted().Find(criteria, skip_records, direction);
  }
  void AbsolutePosition(std::int32_t position) override { Counted().AbsolutePosition(position); }
  std::size_t FieldCount() const override { return inner_->FieldCount(); }
  std::string FieldName(std::size_t index) const override { return inner_->FieldName(index); }
  void AddNew() override { Counted().AddNew(); }
  void Collect(std::string_view name, const Value& value) override { Counted().Collect(name, value); }
  void CancelUpdate() override { Counted().CancelUpdate(); }

 protected:
  std::size_t FieldIndex(std::string_view name) const override {
    if (inner_->FieldCount() == names_.size()) {
      for (std::size_t i = 0; i < names_.size(); ++i) {
        if (EqualsIgnoringCase(names_[i], name)) return i;
      }
    }
    throw AdoError(ado_error::kItemNotFound);
  }
  Value FieldValue(std::size_t index) const override { return Field(Counted(), index).Value(); }

 private:
  Recordset& Counted() const {
    journal_->CountOperation();
    return *inner_;
  }

  RecordsetRef inner_;
  std::shared_ptr<ObservedRecordsetFactory::Journal> journal_;
  std::vector<std::string> names_;  // of the open recordset's fields, for the look-up
};

}  // namespace

ObservedRecordsetFactory::ObservedRecordsetFactory(std::shared_ptr<RecordsetFactory> inner)
    : inner_(std::move(inner)), journal_(std::make_shared<Journal>()) {}

ObservedRecordsetFactory::~ObservedRecordsetFactory() = default;

RecordsetRef ObservedRecordsetFactory::NewRecordset() {
  return std::make_shared<ObservedRecordset>(inner_->NewRecordset(), journal_);
}

std::vector<OpenedStatement> ObservedRecordsetFactory::TakeStatements() {
  return std::exchange(journal_->statements, {});
}

void ObservedRecordsetFactory::OnOpen(std::function<void(const OpenedStatement&)> listener) {
  journal_->listener = std::move(listener);
}

void ObservedRecordsetFactory::FailUpdate(int nth, std::int32_t number, const std::string& description) {
  journal_->update_faults.Add(nth, RuntimeError(number, description));
}

void ObservedRecordsetFactory::FailOpen(int nth, std::int32_t number, const std::string& description) {
  journal_->open_faults.Add(nth, RuntimeError(number, description));
}

void ObservedRecordsetFactory::FailOperation(int nth, std::int32_t number, const std::string& description) {
  journal_->operation_faults.Add(nth, RuntimeError(number, description));
}

int ObservedRecordsetFactory::Operations() const {
  return journal_->operations;
}

}  // namespace orvendal
