#include "host/journal.h"

namespace orvendal {

void CreateJournal(SqliteConnection& store) {
  store.Execute(
      "CREATE TABLE IF NOT EXISTS Diario (Id INTEGER PRIMARY KEY, Momento DATETIME NOT NULL, "
      "Sesion TEXT NOT NULL, Sentencia TEXT NOT NULL)");
}

void WriteJournal(SqliteConnection& store, Date moment, const std::string& session,
                  const std::string& statement) {
  CreateJournal(store);
  SqliteStatement insert(store, "INSERT INTO Diario (Momento, Sesion, Sentencia) VALUES (?1, ?2, ?3)");
  insert.Bind(1, moment).Bind(2, session).Bind(3, statement).Run();
}

}  // namespace orvendal
