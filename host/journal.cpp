#include "host/journal.h"

#include "host/store_rows.h"
#include "platform/base/runtime_error.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

constexpr const char* kTable = "Diario";

RecordsetRef OpenJournal(RecordsetFactory& recordsets, const ConnectionRef& connection) {
  try {
    return OpenToAdd(recordsets, connection, kTable);
  } catch (const RuntimeError& error) {
    if (error.Number() != ado_error::kNoTable) throw;
  }
  RunStatement(recordsets, connection, JournalTable());
  return OpenToAdd(recordsets, connection, kTable);
}

}  // namespace

std::string JournalTable() {
  return std::string("CREATE TABLE ") + kTable +
         " (Momento DATETIME NOT NULL, Sesion TEXT NOT NULL, Sentencia TEXT NOT NULL)";
}

void WriteJournal(RecordsetFactory& recordsets, const ConnectionRef& connection, Date moment,
                  const std::string& session, const std::string& statement) {
  const RecordsetRef journal = OpenJournal(recordsets, connection);
  journal->AddNew();
  journal->Collect("Momento", moment);
  journal->Collect("Sesion", session);
  journal->Collect("Sentencia", statement);
  journal->Update();
  journal->Close();
}

}  // namespace orvendal
