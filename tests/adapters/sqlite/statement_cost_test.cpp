#include <sqlite3.h>

#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

/// What the engine did for one recordset: steps of its machine, and the statements that it ran.
struct Work {
  std::int64_t steps = 0;
  std::int64_t full_scan_steps = 0;
  Texts statements;
};

class StatementCost : public StoreTest {
 protected:
  // `days` days of twelve branches with 20 lines each, up to the day before 16 November 2026, and that day.
  void Fill(int days) {
    store->Execute(
        "DELETE FROM HistOrvendalcial; DELETE FROM Productos; DELETE FROM ProdSucStock; DELETE FROM "
        "Referencias;"
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 1999) INSERT INTO "
        "Productos "
        "SELECT printf('P%04d', i), printf('Producto %04d', i) FROM n;"
        "INSERT INTO Referencias SELECT 'R' || Codigo, Codigo FROM Productos;"
        "INSERT INTO ProdSucStock SELECT printf('%02d', 1 + rowid % 12), Codigo, 1 FROM Productos;"
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < " +
        std::to_string(days) +
        "), "
        "b(k) AS (SELECT 1 UNION ALL SELECT k + 1 FROM b WHERE k < 12), "
        "p(j) AS (SELECT 0 UNION ALL SELECT j + 1 FROM p WHERE j < 19) "
        "INSERT INTO HistOrvendalcial SELECT printf('%02d', k), datetime('2026-11-16', '-' || i || ' days'), "
        "printf('P%04d', j), 1, 2, 'E1', '2026-11-16 10:00:00', printf('%02d', k) FROM n, b, p");
  }

  // Runs `use` and counts what the engine does meanwhile.
  Work Measure(const std::function<void()>& use) {
    Work work;
    sqlite3_trace_v2(
        store->Handle(), SQLITE_TRACE_PROFILE,
        [](unsigned, void* context, void* statement, void*) {
          auto* prepared = static_cast<sqlite3_stmt*>(statement);
          auto* counted = static_cast<Work*>(context);
          counted->steps += sqlite3_stmt_status(prepared, SQLITE_STMTSTATUS_VM_STEP, 1);
          counted->full_scan_steps += sqlite3_stmt_status(prepared, SQLITE_STMTSTATUS_FULLSCAN_STEP, 1);
          counted->statements.emplace_back(sqlite3_sql(prepared));
          return 0;
        },
        &work);
    use();
    sqlite3_trace_v2(store->Handle(), 0, nullptr, nullptr);
    return work;
  }

  // How the engine finds the rows of what `use` runs, one line for each table.
  std::string Plan(const std::function<void()>& use) {
    std::string plan;
    for (const std::string& sql : Measure(use).statements) {
      SqliteStatement explain(*store, "EXPLAIN QUERY PLAN " + sql);
      while (explain.Step()) plan += explain.TextAt(3) + "\n";
    }
    return plan;
  }
  std::string PlanOfReading(const std::string& statement) {
    return Plan([&] { Read(statement); });
  }
};

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST_P(StatementCost, ALoadFindsItsDayByBranchAndDate) {
  const std::string plan = PlanOfReading(DayStatement("01", LoadCondition(GetParam(), "2026-11-16")));
  EXPECT_TRUE(Contains(plan,
                       "SEARCH HistOrvendalcial USING INDEX HistOrvendalcialPorDia "
                       "(IdSucursal=? AND Fecha>? AND Fecha<?)"))
      << plan;
  EXPECT_TRUE(Contains(plan, "SEARCH Productos USING INDEX")) << plan;
  EXPECT_TRUE(Contains(plan, "SEARCH Empleados USING INDEX")) << plan;
  EXPECT_FALSE(Contains(plan, "SCAN")) << plan;
}

TEST_P(StatementCost, AJoinWrittenTheOtherWayRoundGoesByIndexToo) {
  const std::string plan = PlanOfReading(
      "SELECT HistOrvendalcial.IdProducto FROM HistOrvendalcial INNER JOIN Productos ON Productos.Codigo = "
      "HistOrvendalcial.IdProducto WHERE HistOrvendalcial.IdSucursal = '01'");
  EXPECT_TRUE(Contains(plan, "SEARCH HistOrvendalcial USING")) << plan;
  EXPECT_TRUE(Contains(plan, "SEARCH Productos USING")) << plan;
  EXPECT_FALSE(Contains(plan, "SCAN")) << plan;
}

TEST_P(StatementCost, ADeleteFindsItsDayByBranchAndDate) {
  const std::string plan =
      Plan([&] { Write(DeleteStatement("01", SaveCondition(GetParam(), "2026-11-16"))); });
  EXPECT_TRUE(Contains(plan, "INDEX HistOrvendalcialPorDia (IdSucursal=? AND Fecha>? AND Fecha<?)")) << plan;
  EXPECT_FALSE(Contains(plan, "SCAN")) << plan;
}

TEST_P(StatementCost, LookUpsGoByIndex) {
  const Texts statements = {CodeExistsStatement("P1"),
                            CodeExistsStatement("Ñ1"),
                            ReferenceStatement("P1"),
                            CodeLikeStatement("P1"),
                            CodeLikeStatement("P%"),
                            CodeLikeStatement("Ñandú%"),
                            DescriptionLikeStatement("pro"),
                            DescriptionLikeStatement("ñá"),
                            DescriptionStatement("P1"),
                            StockStatement("01", "P1"),
                            CodeExistsStatement("PE\xD1"
                                                "A"),
                            CodeLikeStatement("PE\xD1%"),
                            CodeLikeStatement("\xFF%")};
  for (const std::string& statement : statements) {
    const std::string plan = PlanOfReading(statement);
    EXPECT_TRUE(Contains(plan, "SEARCH")) << statement << "\n" << plan;
    EXPECT_FALSE(Contains(plan, "SCAN")) << statement << "\n" << plan;
  }
  EXPECT_TRUE(Contains(PlanOfReading(StockStatement("01", "P1")), "(IdSucursal=? AND IdProducto=?)"));
}

TEST_P(StatementCost, LookUpsTouchFewRowsOfManyProducts) {
  Fill(1);
  for (const std::string& statement : {CodeExistsStatement("p0777"), ReferenceStatement("rp0777"),
                                       CodeLikeStatement("p0777"), DescriptionLikeStatement("producto 0777"),
                                       DescriptionStatement("P0777"), StockStatement("11", "P0777")}) {
    Read(statement);  // prepared and planned
    const Work work = Measure([&] { EXPECT_EQ(Read(statement)->RecordCount(), 1) << statement; });
    EXPECT_LT(work.steps, 200) << statement;
    EXPECT_EQ(work.full_scan_steps, 0) << statement;
  }
}

TEST_P(StatementCost, OpeningTheWholeTableToAddRowsReadsNothingOfIt) {
  Fill(20);
  const Work opened = Measure([&] { Write(TableStatement()); });
  EXPECT_EQ(opened.steps, 0);
  EXPECT_EQ(opened.statements, Texts{});
  const Work added = Measure([&] {
    const RecordsetRef table = Write(TableStatement());
    table->AddNew();
    table->Collect("IdSucursal", "01");
    table->Collect("Fecha", Date(2026, 11, 16));
    table->Collect("IdProducto", "P1");
    table->Update();
    table->Close();
  });
  ASSERT_EQ(added.statements.size(), 1U);
  EXPECT_EQ(added.statements[0].substr(0, 11), "INSERT INTO");
  EXPECT_LT(added.steps, 100);
}

TEST_P(StatementCost, ReadingTheFirstRowOfTheWholeTableReadsFewOfThem) {
  Fill(20);
  const Work work = Measure([&] { EXPECT_FALSE(Write(TableStatement())->AtEnd()); });
  EXPECT_LT(work.steps, 2000);
}

TEST_P(StatementCost, LoadAndDeleteCostTheSameAfterALongHistory) {
  const auto load = [this] {
    EXPECT_EQ(Read(DayStatement("05", LoadCondition(GetParam(), "2026-11-16")))->RecordCount(), 20);
  };
  const auto erase = [this] {
    store->Execute("SAVEPOINT before");
    Write(DeleteStatement("05", SaveCondition(GetParam(), "2026-11-16")));
    store->Execute("ROLLBACK TO before; RELEASE before");
  };
  Fill(2);
  const std::int64_t short_load = Measure(load).steps;
  const std::int64_t short_delete = Measure(erase).steps;
  Fill(200);
  const std::int64_t long_load = Measure(load).steps;
  const std::int64_t long_delete = Measure(erase).steps;
  EXPECT_LT(long_load, short_load + 50);
  EXPECT_LT(long_delete, short_delete + 50);
}

TEST_P(StatementCost, TheSameHoldsOnceTheEngineHasGatheredStatistics) {
  Fill(30);
  store->Execute("ANALYZE");
  const Work load = Measure([&] { Read(DayStatement("05", LoadCondition(GetParam(), "2026-11-16"))); });
  EXPECT_LT(load.steps, 20 * 120);
  const Work erase = Measure([&] { Write(DeleteStatement("05", SaveCondition(GetParam(), "2026-11-16"))); });
  EXPECT_LT(erase.steps, 20 * 120);
  EXPECT_EQ(load.full_scan_steps + erase.full_scan_steps, 0);
}

TEST_P(StatementCost, TheNumberOfPreparationsDoesNotGrowWithTheRowsAdded) {
  const RecordsetRef table = Write(TableStatement());
  const auto add = [&] {
    for (const char* code : {"P1", "P2"}) {
      Read(CodeExistsStatement(code));
      table->AddNew();
      table->Collect("IdSucursal", "01");
      table->Collect("Fecha", "16/11/2026");
      table->Collect("IdProducto", code);
      table->Update();
    }
  };
  add();
  // A statement that is prepared asks for permission to read or insert; one that is used again does not.
  int asked = 0;
  sqlite3_set_authorizer(
      store->Handle(),
      [](void* count, int, const char*, const char*, const char*, const char*) {
        ++*static_cast<int*>(count);
        return SQLITE_OK;
      },
      &asked);
  asked = 0;
  add();
  const int at_first = std::exchange(asked, 0);  // setting it made every statement be prepared afresh
  add();
  EXPECT_GT(at_first, 0);
  EXPECT_EQ(asked, 0);
}

INSTANTIATE_TEST_SUITE_P(BothDialects, StatementCost, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal::store_testing
