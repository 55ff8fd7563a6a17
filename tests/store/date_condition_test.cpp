#include "store/date_condition.h"

#include <gtest/gtest.h>

#include "tests/support/error_of.h"
#include "tests/support/form_driver.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using testing_support::ErrorOf;

class NamedProvider final : public Connection {
 public:
  explicit NamedProvider(std::string name) : name_(std::move(name)) {}
  std::string Provider() const override {
    ++times_asked;
    return name_;
  }
  mutable int times_asked = 0;

 private:
  std::string name_;
};

ConnectionRef Named(const std::string& provider) {
  return std::make_shared<NamedProvider>(provider);
}

const Date kDay(2026, 11, 16);
const char* const kConvertRange =
    "BETWEEN CONVERT(DATETIME, '2026-11-16 00:00:00', 102) AND CONVERT(DATETIME, '2026-11-16 23:59:59', 102)";
const char* const kLiteralRange = "BETWEEN #11/16/2026 00:00:00# AND #11/16/2026 23:59:59#";

class DateConditionTest : public testing::TestWithParam<const Region*> {
 protected:
  const Region& region() { return *GetParam(); }
  std::string text_of_day() { return region().ToText(kDay); }
};

TEST_P(DateConditionTest, SqlServerGetsTwoConversionsFromLoadAndSaveAlike) {
  EXPECT_EQ(DateConditionOfLoad(Named("SQLOLEDB.1"), kDay, region()), kConvertRange);
  EXPECT_EQ(DateConditionOfSave(Named("SQLOLEDB.1"), text_of_day(), region()), kConvertRange);
}

TEST_P(DateConditionTest, AnyOtherProviderGetsLiteralsWithTheMonthFirstFromALoad) {
  EXPECT_EQ(DateConditionOfLoad(Named("Microsoft.Jet.OLEDB.4.0"), kDay, region()), kLiteralRange);
}

TEST_P(DateConditionTest, AnyOtherProviderGetsThePrefixOfTheShownTextFromASave) {
  EXPECT_EQ(DateConditionOfSave(Named("Microsoft.Jet.OLEDB.4.0"), text_of_day(), region()),
            "LIKE '" + text_of_day() + "%'");
  EXPECT_EQ(DateConditionOfSave(Named("Microsoft.Jet.OLEDB.4.0"), "cualquier texto", region()),
            "LIKE 'cualquier texto%'");
}

TEST_P(DateConditionTest, TheProviderIsComparedToTheLetter) {
  for (const char* other : {"SQLOLEDB", "sqloledb.1", "SQLOLEDB.10", " SQLOLEDB.1", "SQLOLEDB.1 ",
                            "SQLNCLI11.1", "MSOLEDBSQL.1", "MSDASQL", ""}) {
    EXPECT_FALSE(SpeaksSqlServer(Named(other))) << other;
    EXPECT_EQ(DateConditionOfLoad(Named(other), kDay, region()), kLiteralRange) << other;
    EXPECT_EQ(DateConditionOfSave(Named(other), text_of_day(), region()), "LIKE '" + text_of_day() + "%'")
        << other;
  }
}

TEST_P(DateConditionTest, DaysAndMonthsOfOneDigitArePaddedForOneDialectOnly) {
  const Date day(2026, 3, 5);
  EXPECT_EQ(DateConditionOfLoad(Named("SQLOLEDB.1"), day, region()),
            "BETWEEN CONVERT(DATETIME, '2026-03-05 00:00:00', 102) AND CONVERT(DATETIME, '2026-03-05 "
            "23:59:59', 102)");
  EXPECT_EQ(DateConditionOfSave(Named("SQLOLEDB.1"), region().ToText(day), region()),
            "BETWEEN CONVERT(DATETIME, '2026-03-05 00:00:00', 102) AND CONVERT(DATETIME, '2026-03-05 "
            "23:59:59', 102)");
  EXPECT_EQ(DateConditionOfLoad(Named("Otro"), day, region()),
            "BETWEEN #3/5/2026 00:00:00# AND #3/5/2026 23:59:59#");
}

TEST(DateConditionOfAnotherSeparatorTest, NoSeparatorOfARegionReachesAStatementButInTheShownText) {
  for (const char separator : {'.', '-', '_'}) {
    RegionSettings settings;
    settings.date_separator = separator;
    const Region region = Region::FromSystem(settings);
    const std::string shown = region.ToText(kDay);
    EXPECT_EQ(DateConditionOfLoad(Named("SQLOLEDB.1"), kDay, region), kConvertRange);
    EXPECT_EQ(DateConditionOfSave(Named("SQLOLEDB.1"), shown, region), kConvertRange);
    EXPECT_EQ(DateConditionOfLoad(Named("Otro"), kDay, region), kLiteralRange);
    EXPECT_EQ(DateConditionOfSave(Named("Otro"), shown, region), "LIKE '" + shown + "%'");
  }
}

TEST_P(DateConditionTest, AnEmptyDayOfASaveTakesEveryDayOnAnyOtherProvider) {
  EXPECT_EQ(DateConditionOfSave(Named("Otro"), "", region()), "LIKE '%'");
}

TEST_P(DateConditionTest, WithoutAConnectionThereIsNothingToAsk) {
  EXPECT_EQ(ErrorOf([&] { DateConditionOfLoad(nullptr, kDay, region()); }), 91);
  EXPECT_EQ(ErrorOf([&] { DateConditionOfSave(nullptr, "", region()); }), 91);
}

TEST_P(DateConditionTest, TheProviderIsAskedAfreshForEachCondition) {
  const auto connection = std::make_shared<NamedProvider>("SQLOLEDB.1");
  DateConditionOfLoad(connection, kDay, region());
  DateConditionOfSave(connection, text_of_day(), region());
  DateConditionOfLoad(connection, kDay, region());
  EXPECT_EQ(connection->times_asked, 3);
}

TEST_P(DateConditionTest, AChangeOfTheProviderUnderTheOpenFormShowsInTheNextStatement) {
  FormDriver screen(Dialect::kSqlServer, region());
  screen.OpenWithStylist();
  const auto jet = SqliteConnection::Open(":memory:", Dialect::kJet, region(), OpenMode::kCreate);
  jet->Execute(
      "CREATE TABLE Productos (Codigo TEXT, Descripcion TEXT); CREATE TABLE Empleados (Codigo TEXT, Nombre "
      "TEXT);"
      "CREATE TABLE HistOrvendalcial (IdSucursal TEXT, Fecha DATETIME, IdProducto TEXT, StockAnterior "
      "NUMERIC,"
      " StockActual NUMERIC, IdEmpleado TEXT, Actualizado DATETIME, ModificadoPor TEXT);");
  screen.library.ReplaceConnection("AccionPuesto", jet);
  screen.Key(key::kF1);
  screen.recordsets.TakeStatements();
  screen.Click("LblCancelar");
  const std::vector<OpenedStatement> opened = screen.recordsets.TakeStatements();
  ASSERT_EQ(opened.size(), 1U);
  EXPECT_EQ(opened[0].error, 0) << opened[0].error_text;
  EXPECT_NE(opened[0].text.find(kLiteralRange), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Regions, DateConditionTest, testing::Values(&Region::Spanish(), &Region::English()),
                         [](const auto& instance) {
                           return instance.param == &Region::Spanish() ? "Spanish" : "English";
                         });

}  // namespace
}  // namespace orvendal
