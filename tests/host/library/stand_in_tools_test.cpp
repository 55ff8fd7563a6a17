#include <sqlite3.h>

#include "platform/data/ado_error.h"
#include "tests/host/host_fixture.h"

namespace orvendal {
namespace {

class StandInTools : public HostTest {
 protected:
  explicit StandInTools(const Region& region = Region::Spanish(), Dialect dialect = Dialect::kSqlServer)
      : HostTest(region, dialect) {}

  std::string FormatoFecha(std::string text) {
    std::string mode = "D";
    return tools->FormatoFecha(text, 1, mode, mode);
  }
  std::string FechaHoraTexto(Date moment) { return tools->FechaHoraTexto(moment); }

  void Recalculate(const std::string& branch, const std::string& code) {
    ConnectionRef connection = store;
    std::string key = branch;
    std::string product = code;
    std::string nothing;
    library.NewRecalculo()->RecalcularProducto(connection, key, product, nothing);
  }
  void Count(const std::string& branch, const std::string& day, const std::string& code, double quantity,
             const std::string& saved = "2026-01-01 00:00:00") {
    SqliteStatement insert(*store, "INSERT INTO HistOrvendalcial VALUES (?1, ?2, ?3, 0, ?4, 'E1', ?5, ?1)");
    insert.Bind(1, branch).Bind(2, day).Bind(3, code).Bind(4, quantity).Bind(5, saved).Run();
  }
  std::string Stock(const std::string& branch, const std::string& code) {
    return Read("SELECT Stock FROM ProdSucStock WHERE IdSucursal = '" + branch + "' AND IdProducto = '" +
                code + "'");
  }

  std::unique_ptr<Herramientas> tools = library.NewHerramientas();
};

class StandInToolsInEnglish : public StandInTools {
 protected:
  StandInToolsInEnglish() : StandInTools(Region::English(), Dialect::kJet) {}
};

TEST_F(StandInTools, WritesADayWithTwoDigitsForDayAndMonth) {
  EXPECT_EQ(FormatoFecha("16/11/2026"), "16/11/2026");
  EXPECT_EQ(FormatoFecha("3/2/2026"), "03/02/2026");
  EXPECT_EQ(FormatoFecha("2026-02-03"), "03/02/2026");
}

TEST_F(StandInTools, LeavesTheTimeOfADayAway) {
  EXPECT_EQ(FormatoFecha("16/11/2026 9:05:00"), "16/11/2026");
}

TEST_F(StandInTools, LeavesWhatIsNoDateAsItIs) {
  EXPECT_EQ(FormatoFecha(""), "");
  EXPECT_EQ(FormatoFecha("mañana"), "mañana");
}

TEST_F(StandInTools, WritesAMomentWithTheTimeInTwoDigits) {
  EXPECT_EQ(FechaHoraTexto(Date(2026, 11, 6, 9, 5, 7)), "06/11/2026 09:05:07");
  EXPECT_EQ(FechaHoraTexto(Date(2026, 11, 6)), "06/11/2026 00:00:00");
}

TEST_F(StandInToolsInEnglish, WritesADayThatCoreAndStoreReadAsTheSameDay) {
  const std::string text = FormatoFecha("11/6/2026");
  EXPECT_EQ(Region::English().ParseDate(text), Date(2026, 11, 6));
  const std::string moment = FechaHoraTexto(Date(2026, 11, 6, 21, 5, 7));
  EXPECT_EQ(Region::English().ParseDate(moment), Date(2026, 11, 6, 21, 5, 7));
}

// A save on this provider deletes the day by its text.
TEST_F(StandInToolsInEnglish, BeginsADayLikeTheStoresOwnTextOfIt) {
  Count("01", "2026-11-06 00:00:00", "CHA01", 4);
  Count("01", "2026-11-16 00:00:00", "CHA01", 4);
  const RecordsetRef rows = SqliteRecordsetFactory().NewRecordset();
  rows->Open("SELECT * FROM HistOrvendalcial WHERE HistOrvendalcial.Fecha LIKE '" +
                 FormatoFecha("11/06/2026") + "%'",
             store, CursorType::kStatic, LockType::kReadOnly, kCommandUnspecified);
  EXPECT_EQ(rows->RecordCount(), 1);
}

TEST_F(StandInTools, LetsGoOfTheScreen) {
  ObjectRef screen = std::make_shared<Object>();
  tools->LiberarForm(screen);
  EXPECT_EQ(screen, nullptr);
}

TEST_F(StandInTools, KeepsAJournalOfStatementsInTheStore) {
  ConnectionRef connection = store;
  std::string session = "Sucursal=01";
  std::string statement = "DELETE FROM x WHERE y = 'z'";
  tools->RegistrarSentencia(session, connection, statement);
  tools->RegistrarSentencia(session, connection, statement);
  EXPECT_EQ(Read("SELECT COUNT(*) FROM Diario"), "2");
  EXPECT_EQ(Read("SELECT Sentencia FROM Diario"), statement);
  EXPECT_EQ(Read("SELECT Sesion FROM Diario"), session);
  EXPECT_EQ(Read("SELECT Momento FROM Diario"), "2026-11-16 10:30:05");
}

TEST_F(StandInTools, RefusesAConnectionThatIsNone) {
  ConnectionRef connection;
  std::string text;
  try {
    tools->RegistrarSentencia(text, connection, text);
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ado_error::kInvalidConnection);
  }
}

TEST_F(StandInTools, SetsTheStockToTheNewestCountOfTheBranch) {
  store->Execute("INSERT INTO ProdSucStock VALUES ('01', 'CHA01', 9), ('02', 'CHA01', 8)");
  Count("01", "2026-11-14 00:00:00", "CHA01", 3);
  Count("01", "2026-11-16 00:00:00", "CHA01", 2.5);
  Count("01", "2026-11-15 00:00:00", "CHA01", 4);
  Count("02", "2026-11-20 00:00:00", "CHA01", 77);
  Recalculate("01", "CHA01");
  EXPECT_EQ(Stock("01", "CHA01"), "2.5");
  EXPECT_EQ(Stock("02", "CHA01"), "8");
}

TEST_F(StandInTools, AQuantityThatIsShorterWithAnExponentBecomesTheStock) {
  for (const double quantity : {100000.0, 200000.0, 1000000.0, 9000000.0, 0.0001, -300000.0, 1e20}) {
    store->Execute("DELETE FROM HistOrvendalcial");
    Count("01", "2026-11-16 00:00:00", "LAC001", quantity);
    Recalculate("01", "LAC001");
    EXPECT_EQ(std::stod(Stock("01", "LAC001")), quantity);
  }
}

TEST_F(StandInTools, OfTwoCountsOfADayTakesTheOneSavedLast) {
  Count("01", "2026-11-16 00:00:00", "CHA01", 5, "2026-11-16 12:00:00");
  Count("01", "2026-11-16 00:00:00", "CHA01", 4, "2026-11-16 09:00:00");
  Recalculate("01", "CHA01");
  EXPECT_EQ(Stock("01", "CHA01"), "5");
}

TEST_F(StandInTools, OfTwoCountsOfTheSameMomentTakesTheOneAddedLast) {
  for (const double quantity : {5.0, 8.0, 4.0}) {
    Count("01", "2026-11-16 00:00:00", "CHA01", quantity, "2026-11-16 12:00:00");
  }
  Recalculate("01", "CHA01");
  EXPECT_EQ(Stock("01", "CHA01"), "4");
}

// Seen: a code spelled otherwise got a row of stock of its own.
TEST_F(StandInTools, AProductHasOneStockHoweverItsCodeIsSpelled) {
  store->Execute("INSERT INTO ProdSucStock VALUES ('01', 'PEÑA', 9), ('01', 'LAC01 ', 8)");
  Count("01", "2026-11-16 00:00:00", "peña", 5);
  Count("01", "2026-11-16 00:00:00", "LAC01", 6);
  Recalculate("01", "peña");
  Recalculate("01", "LAC01");
  EXPECT_EQ(Read("SELECT COUNT(*) FROM ProdSucStock"), "2");
  EXPECT_EQ(Stock("01", "PEÑA"), "5");
  EXPECT_EQ(Stock("01", "LAC01 "), "6");
}

TEST_F(StandInTools, TheNewestCountIsFoundHoweverItsCodeIsSpelled) {
  Count("01", "2026-11-15 00:00:00", "peña", 3);
  Count("01", "2026-11-16 00:00:00", "PEÑA ", 7);
  Count("01", "2026-11-14 00:00:00", "PEÑA ", 2);
  Recalculate("01", "peña");
  EXPECT_EQ(Stock("01", "peña"), "7");
  Recalculate("01", "PEÑA");  // a spelling that no count has
  EXPECT_EQ(Stock("01", "peña"), "7");
  EXPECT_EQ(Read("SELECT COUNT(*) FROM ProdSucStock"), "1");
}

TEST_F(StandInTools, MakesTheStockOfAProductThatHadNone) {
  Count("01", "2026-11-16 00:00:00", "CHA02", 6);
  Recalculate("01", "CHA02");
  EXPECT_EQ(Stock("01", "CHA02"), "6");
}

TEST_F(StandInTools, LeavesTheStockOfAProductThatIsNoLongerCounted) {
  store->Execute("INSERT INTO ProdSucStock VALUES ('01', 'CHA01', 9)");
  Recalculate("01", "CHA01");
  Recalculate("01", "CHA02");
  EXPECT_EQ(Stock("01", "CHA01"), "9");
  EXPECT_EQ(Stock("01", "CHA02"), "-");
}

TEST_F(StandInTools, RecalculatesWithoutReadingTheHistoryOfTheProduct) {
  SqliteStatement count(*store,
                        "INSERT INTO HistOrvendalcial VALUES ('01', ?1, 'CHA01', 0, 1, 'E1', ?1, '01')");
  const auto steps = [&](int days) {
    store->Execute("DELETE FROM HistOrvendalcial; BEGIN");
    for (int day = 0; day < days; ++day) count.Bind(1, Date::FromDayNumber(40000 + day)).Run();
    store->Execute("COMMIT");
    Recalculate("01", "CHA01");
    int taken = 0;
    sqlite3_progress_handler(
        store->Handle(), 1, [](void* counter) { return ++*static_cast<int*>(counter), 0; }, &taken);
    Recalculate("01", "CHA01");
    sqlite3_progress_handler(store->Handle(), 0, nullptr, nullptr);
    return taken;
  };
  const int few = steps(10);
  EXPECT_GT(few, 10);
  EXPECT_LE(steps(2000), few);
}

TEST_F(StandInTools, ShowsMessagesAndHandsTheAnswerBack) {
  std::string text = "¿Guardar?";
  std::int32_t style = 35;
  std::string title;
  std::int32_t answer = 0;
  messages.answer = 7;
  const std::uint64_t dialogs = host.ModalSerial();
  library.NewMensajes()->Mostrar(text, style, title, answer);
  EXPECT_EQ(answer, 7);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "¿Guardar?");
  EXPECT_EQ(messages.shown[0].style, 35);
  EXPECT_EQ(host.ModalSerial(), dialogs + 1);  // so that the gesture that opened it is over
}

}  // namespace
}  // namespace orvendal
