#include "host/library/journal.h"

#include "host/store/schema.h"
#include "host/store/store_rows.h"
#include "platform/base/runtime_error.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

RecordsetRef OpenJournal(RecordsetFactory& recordsets, const ConnectionRef& connection) {
  try {
    return OpenToAdd(recordsets, connection, kJournalTable);
  } catch (const RuntimeError& error) {
    if (error.Number() != ado_error::kNoTable) throw;
  }
  RunStatement(recordsets, connection, JournalDefinition());
  return OpenToAdd(recordsets, connection, kJournalTable);
}

}  // namespace

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
