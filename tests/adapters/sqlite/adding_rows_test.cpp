#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

class AddingRows : public StoreTest {
 protected:
  void SetUp() override {
    StoreTest::SetUp();
    store->Execute(
        "CREATE TABLE Pruebas (Codigo VARCHAR(5) NOT NULL UNIQUE, Texto TEXT(4), Dia DATETIME, "
        "Cantidad NUMERIC, Entero INTEGER, Origen TEXT DEFAULT 'fuera', Hecho TEXT NOT NULL DEFAULT 'sí')");
    table = Write("SELECT Pruebas.* FROM Pruebas");
  }
  void Add(const std::string& code) {
    table->AddNew();
    table->Collect("Codigo", code);
    table->Update();
  }
  // Adds a row with one more field and gives the error of the update.
  std::int32_t ErrorOfUpdate(const std::string& field, const Value& value) {
    table->AddNew();
    table->Collect("Codigo", "X");
    table->Collect(field, value);
    return ErrorOf([this] { table->Update(); });
  }
  std::int32_t ErrorOfAssignment(const std::string& field, const Value& value) {
    table->AddNew();
    const std::int32_t error = ErrorOf([&] { table->Collect(field, value); });
    table->CancelUpdate();
    return error;
  }
  std::string Stored(const std::string& field) {
    return Native("SELECT typeof(" + field + ") || ' ' || ifnull(" + field +
                  ", '') FROM Pruebas ORDER BY rowid DESC");
  }
  std::string Count() { return Native("SELECT COUNT(*) FROM Pruebas"); }

  RecordsetRef table;
};

TEST_P(AddingRows, TheRowsOfASaveReachTheHistory) {
  const RecordsetRef history = Write(TableStatement());
  history->AddNew();
  history->Collect("IdSucursal", "01");
  history->Collect("IdProducto", "P1");
  history->Collect("stockAnterior", "12,5");
  history->Collect("StockActual", "7");
  history->Collect("IdEmpleado", "E1");
  history->Collect("Fecha", "16/11/2026");
  history->Collect("Actualizado", "16/11/2026 10:30:05");
  history->Collect("ModificadoPor", "01");
  history->Update();
  EXPECT_EQ(
      Native(
          "SELECT IdSucursal || '|' || IdProducto || '|' || StockAnterior || '|' || StockActual || '|' || "
          "IdEmpleado || '|' || Fecha || '|' || Actualizado || '|' || ModificadoPor FROM HistOrvendalcial"),
      "01|P1|12.5|7|E1|2026-11-16 00:00:00|2026-11-16 10:30:05|01");
}

TEST_P(AddingRows, ANewRowIsCurrentAndBeingEditedUntilItIsPosted) {
  table->AddNew();
  EXPECT_EQ(table->EditMode(), 2);
  EXPECT_FALSE(table->AtEnd());
  table->Collect("codigo", "A1");
  EXPECT_EQ(table->Fields("Codigo").Value(), Value("A1"));
  EXPECT_TRUE(table->Fields("Dia").Value().IsNull());
  EXPECT_EQ(Count(), "0");
  table->Update();
  EXPECT_EQ(table->EditMode(), 0);
  EXPECT_EQ(Count(), "1");
  EXPECT_EQ(table->Fields("Codigo").Value(), Value("A1"));
  EXPECT_EQ(table->Fields("Origen").Value(), Value("fuera")) << "with the defaults of the store";
}

TEST_P(AddingRows, TheRowPostedIsTheLastOne) {
  store->Execute("INSERT INTO Pruebas (Codigo) VALUES ('old')");
  Add("A1");
  EXPECT_EQ(table->Fields("Codigo").Value(), Value("A1"));
  table->MoveNext();
  EXPECT_TRUE(table->AtEnd());
  EXPECT_EQ(ErrorOf([&] { table->MoveNext(); }), ado_error::kEitherBofOrEof);
}

TEST_P(AddingRows, ACursorThatHasReadItsRowsShowsTheNewOneAfterThem) {
  store->Execute("INSERT INTO Pruebas (Codigo) VALUES ('old')");
  const RecordsetRef recordset = NewRecordset();
  recordset->Open("SELECT * FROM Pruebas", Link(), CursorType::kStatic, LockType::kOptimistic, -1);
  recordset->AddNew();
  recordset->Collect("Codigo", "A1");
  recordset->Update();
  EXPECT_EQ(recordset->RecordCount(), 2);
  recordset->AbsolutePosition(2);
  EXPECT_EQ(recordset->Fields("Codigo").Value(), Value("A1"));
  EXPECT_EQ(recordset->Fields("Hecho").Value(), Value("sí"));
}

TEST_P(AddingRows, FieldsNotAssignedTakeTheDefaultOfTheStore) {
  Add("A1");
  EXPECT_EQ(Stored("Origen"), "text fuera");
  EXPECT_EQ(Stored("Hecho"), "text sí");
  EXPECT_EQ(Stored("Texto"), "null ");
}

TEST_P(AddingRows, AFieldAssignedTwiceHoldsTheLastValue) {
  table->AddNew();
  table->Collect("Codigo", "A1");
  table->Collect("Texto", "uno");
  table->Collect("TEXTO", "dos");
  table->Update();
  EXPECT_EQ(Stored("Texto"), "text dos");
}

TEST_P(AddingRows, RowsMayAssignDifferentFields) {
  Add("A1");
  table->AddNew();
  table->Collect("Cantidad", 3);
  table->Collect("Codigo", "A2");
  table->Update();
  Add("A3");
  EXPECT_EQ(Native("SELECT group_concat(Codigo || ifnull(Cantidad, '-')) FROM Pruebas"), "A1-,A23,A3-");
}

TEST_P(AddingRows, TextsAreReadByTheRegionOfTheConnection) {
  EXPECT_EQ(ErrorOfUpdate("Cantidad", "2,5"), 0);
  EXPECT_EQ(Stored("Cantidad"), "real 2.5");
  store->Execute("DELETE FROM Pruebas");
  EXPECT_EQ(ErrorOfUpdate("Dia", "3/2/2026 9:05:00"), 0);
  EXPECT_EQ(Stored("Dia"), "text 2026-02-03 09:05:00");
  store->Execute("DELETE FROM Pruebas");
  EXPECT_EQ(ErrorOfUpdate("Entero", "7"), 0);
  EXPECT_EQ(Stored("Entero"), "integer 7");
  store->Execute("DELETE FROM Pruebas");
  EXPECT_EQ(ErrorOfUpdate("Entero", "2,5"), 0);
  EXPECT_EQ(Stored("Entero"), "integer 2") << "halves go to the even number";

  table.reset();
  UseEmptyStore(Region::English());
  store->Execute("CREATE TABLE Pruebas (Codigo TEXT, Cantidad REAL, Dia DATETIME)");
  table = Write("SELECT * FROM Pruebas");
  EXPECT_EQ(ErrorOfUpdate("Cantidad", "2.5"), 0);
  EXPECT_EQ(Stored("Cantidad"), "real 2.5");
  EXPECT_EQ(ErrorOfUpdate("Dia", "3/2/2026"), 0);
  EXPECT_EQ(Stored("Dia"), "text 2026-03-02 00:00:00");
}

TEST_P(AddingRows, ValuesOfOtherKindsAreConverted) {
  EXPECT_EQ(ErrorOfUpdate("Dia", Date(2026, 11, 16, 1, 2, 3)), 0);
  EXPECT_EQ(Stored("Dia"), "text 2026-11-16 01:02:03");
  store->Execute("DELETE FROM Pruebas");
  EXPECT_EQ(ErrorOfUpdate("Texto", 2.5), 0);
  EXPECT_EQ(Stored("Texto"), "text 2,5");
  store->Execute("DELETE FROM Pruebas");
  EXPECT_EQ(ErrorOfUpdate("Origen", Value()), 0);
  EXPECT_EQ(Stored("Origen"), "null ");
}

TEST_P(AddingRows, AnImpossibleTextIsRefusedAtTheAssignment) {
  EXPECT_EQ(ErrorOfAssignment("Cantidad", "dos"), ado_error::kDataConversion);
  EXPECT_EQ(ErrorOfAssignment("Cantidad", ""), ado_error::kDataConversion);
  EXPECT_EQ(ErrorOfAssignment("Cantidad", "2.5"), ado_error::kDataConversion);
  EXPECT_EQ(ErrorOfAssignment("Dia", "31/02/2026"), ado_error::kDataConversion);
  EXPECT_EQ(ErrorOfAssignment("Dia", ""), ado_error::kDataConversion);
  EXPECT_EQ(ErrorOfAssignment("Ninguno", "x"), ado_error::kItemNotFound);
}

TEST_P(AddingRows, ATextTooLongIsRefusedAtTheUpdateAndTheRowStaysPending) {
  table->AddNew();
  table->Collect("Codigo", "A1");
  table->Collect("Texto", "cinco");
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), ado_error::kMultipleStep);
  EXPECT_EQ(DescriptionOf([&] { table->Update(); }),
            SqlServer()
                ? "Multiple-step OLE DB operation generated errors. Check each OLE DB status value, if "
                  "available. No work was done."
                : "Multiple-step operation generated errors. Check each status value.");
  EXPECT_EQ(table->EditMode(), 2);
  EXPECT_EQ(Count(), "0");
  table->Collect("Texto", "ñáéí");
  table->Update();
  EXPECT_EQ(Stored("Texto"), "text ñáéí") << "lengths count characters";
}

TEST_P(AddingRows, ANullThatIsNotAllowedIsRefusedAtTheUpdate) {
  table->AddNew();
  table->Collect("Texto", "x");
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), ado_error::kMultipleStep);
  EXPECT_EQ(table->EditMode(), 2);
  table->CancelUpdate();
  EXPECT_EQ(ErrorOfUpdate("Hecho", Value()), ado_error::kMultipleStep);
}

TEST_P(AddingRows, ADuplicateKeyCarriesTheNumberOfItsProvider) {
  Add("A1");
  table->AddNew();
  table->Collect("Codigo", "A1");
  EXPECT_EQ(ErrorOf([&] { table->Update(); }),
            SqlServer() ? ado_error::kIntegrityViolation : ado_error::kUnspecified);
  EXPECT_EQ(table->EditMode(), 2);
  EXPECT_EQ(Count(), "1");
}

TEST_P(AddingRows, ARefusalOfATriggerBringsItsWords) {
  store->Execute("CREATE TRIGGER t BEFORE INSERT ON Pruebas BEGIN SELECT RAISE(ABORT, 'no hoy'); END");
  table->AddNew();
  table->Collect("Codigo", "A1");
  EXPECT_EQ(DescriptionOf([&] { table->Update(); }), "no hoy");
}

TEST_P(AddingRows, CancellingDropsTheNewRow) {
  store->Execute("INSERT INTO Pruebas (Codigo) VALUES ('old')");
  table->AddNew();
  table->Collect("Codigo", "A1");
  table->CancelUpdate();
  EXPECT_EQ(table->EditMode(), 0);
  EXPECT_EQ(table->Fields("Codigo").Value(), Value("old"));
  table->Update();
  EXPECT_EQ(Count(), "1");
}

TEST_P(AddingRows, ClosingDropsTheNewRow) {
  table->AddNew();
  table->Collect("Codigo", "A1");
  table->Close();
  EXPECT_EQ(table->State(), kStateClosed);
  EXPECT_EQ(Count(), "0");
  table = Write("SELECT Pruebas.* FROM Pruebas");
  EXPECT_EQ(table->EditMode(), 0);
}

TEST_P(AddingRows, ASecondNewRowPostsTheFirst) {
  table->AddNew();
  table->Collect("Codigo", "A1");
  table->AddNew();
  EXPECT_EQ(Count(), "1");
  EXPECT_EQ(table->EditMode(), 2);
  EXPECT_TRUE(table->Fields("Codigo").Value().IsNull());
}

TEST_P(AddingRows, AReadOnlyOneTakesNoRows) {
  const RecordsetRef recordset = Read("SELECT * FROM Pruebas");
  EXPECT_EQ(ErrorOf([&] { recordset->AddNew(); }), ado_error::kFeatureNotAvailable);
}

TEST_P(AddingRows, RowsThatAreThereCannotBeEdited) {
  Add("A1");
  EXPECT_EQ(ErrorOf([&] { table->Collect("Texto", "x"); }), ado_error::kFeatureNotAvailable);
}

TEST_P(AddingRows, EveryRowStandsByItself) {
  Add("A1");
  table->AddNew();
  table->Collect("Codigo", "demasiado largo");
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), ado_error::kMultipleStep);
  table->Close();
  EXPECT_EQ(Count(), "1");
}

TEST_P(AddingRows, AKeysetCountsTheRowsAdded) {
  Add("A1");
  Add("A2");
  EXPECT_EQ(table->RecordCount(), SqlServer() ? -1 : 2);
}

TEST_P(AddingRows, ASecondNewRowBeginsWithNoFieldAssigned) {
  const RecordsetRef table = Write("SELECT Empleados.* FROM Empleados");
  table->AddNew();
  table->Collect("Codigo", "E1");
  table->Collect("IdSucursal", "02");
  table->Collect("Nombre", "Ana");
  table->Update();
  table->AddNew();
  table->Collect("Codigo", "E2");
  EXPECT_TRUE(table->Fields("Nombre").Value().IsNull());
  table->AddNew();  // posts the one before
  table->Collect("Codigo", "E3");
  table->Collect("Nombre", "Eva");
  table->Update();
  EXPECT_EQ(Column("SELECT Codigo FROM Empleados WHERE IdSucursal = ''", "Codigo"), (Texts{"E2", "E3"}));
  EXPECT_EQ(Native("SELECT Nombre IS NULL FROM Empleados WHERE Codigo = 'E2'"), "1");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, AddingRows, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal::store_testing
