#include "store/statements.h"

#include "adapters/win32/user_region.h"
#include "store/date_condition.h"
#include "tests/host/windows/store/store_client.h"

namespace orvendal::store_client {
namespace {

/// The method at a place of the vtable, as a compiler of another language calls it.
template <typename... Arguments>
HRESULT AtPlace(int place, IUnknown* object, Arguments... arguments) {
  using Method = HRESULT(STDMETHODCALLTYPE*)(IUnknown*, Arguments...);
  void* const* const places = *reinterpret_cast<void* const* const*>(object);
  return reinterpret_cast<Method>(places[place])(object, arguments...);
}

namespace place {
constexpr int kProvider = 32;
constexpr int kPutAbsolutePosition = 9;
constexpr int kEof = 20;
constexpr int kFields = 21;
constexpr int kRecordCount = 26;
constexpr int kAddNew = 30;
constexpr int kCancelUpdate = 31;
constexpr int kClose = 32;
constexpr int kMoveNext = 36;
constexpr int kOpen = 40;
constexpr int kUpdate = 43;
constexpr int kEditMode = 46;
constexpr int kState = 55;
constexpr int kPutCollect = 64;
constexpr int kFind = 67;
constexpr int kItem = 10;
constexpr int kValue = 13;
}  // namespace place

/// For the statements' builders, which ask for the provider alone.
class NamedProvider final : public Connection {
 public:
  explicit NamedProvider(std::string name) : name_(std::move(name)) {}
  std::string Provider() const override { return name_; }

 private:
  std::string name_;
};

/// The screen's own statements, through nothing but the places of the interfaces.
class StatementsOfScreen : public StoreTest {
 protected:
  void SetUp() override {
    Native(
        "INSERT INTO Sucursales VALUES ('02','Sur'),('01','Norte');"
        "INSERT INTO Empleados VALUES ('E1','Ana','01');"
        "INSERT INTO Productos VALUES ('A1','Champú'),('A2','Champaña'),('B1','Laca');"
        "INSERT INTO Referencias VALUES ('843700','B1');"
        "INSERT INTO ProdSucStock VALUES ('01','A1',7.5);"
        "INSERT INTO HistOrvendalcial VALUES "
        "('01','2026-11-16 00:00:00','A1',1,2,'E1','2026-11-16 10:00:00','01'),"
        "('01','2026-11-16 23:59:59','A2',3,4,'E9','2026-11-16 10:00:00','01'),"
        "('01','2026-11-17 00:00:00','B1',5,6,'E1','2026-11-17 10:00:00','01'),"
        "('02','2026-11-16 00:00:00','B1',5,6,'E1','2026-11-16 10:00:00','02')");
    connection = Connected();
    BstrCell provider;
    EXPECT_EQ(AtPlace(place::kProvider, connection.Get(), provider.InOut()), S_OK);
    named = std::make_shared<NamedProvider>(provider.Text());
  }

  HRESULT Open(::_Recordset* recordset, const std::string& statement, LONG cursor, LONG lock) {
    const Arg source(statement);
    const Arg active(connection.Get());
    return AtPlace<VARIANT, VARIANT, LONG, LONG, LONG>(place::kOpen, recordset, source, active, cursor, lock,
                                                       -1);
  }
  ComPtr<::_Recordset> Reading(const std::string& statement) {
    ComPtr<::_Recordset> recordset = NewRecordset();
    const HRESULT result = Open(recordset.Get(), statement, kStatic, kReadOnly);
    EXPECT_EQ(result, S_OK) << FailureOf(result).description;
    return recordset;
  }
  static bool AtEnd(::_Recordset* recordset) {
    VARIANT_BOOL end = VARIANT_FALSE;
    EXPECT_EQ(AtPlace(place::kEof, recordset, &end), S_OK);
    return end == VARIANT_TRUE;
  }
  static std::string Value(::_Recordset* recordset, const char* name) {
    ComPtr<::Fields> fields;
    ComPtr<::Field> field;
    Variant value;
    const Arg index(name);
    EXPECT_EQ(AtPlace(place::kFields, recordset, fields.Receive()), S_OK);
    EXPECT_EQ((AtPlace<VARIANT, ::Field**>(place::kItem, fields.Get(), index, field.Receive())), S_OK);
    EXPECT_EQ(AtPlace(place::kValue, field.Get(), value.Address()), S_OK);
    return Shown(value.Get());
  }
  static Texts Values(::_Recordset* recordset, const char* name) {
    Texts values;
    while (!AtEnd(recordset)) {
      values.push_back(Value(recordset, name));
      EXPECT_EQ(AtPlace(place::kMoveNext, recordset), S_OK);
    }
    return values;
  }
  static ADO_LONGPTR Count(::_Recordset* recordset) {
    ADO_LONGPTR count = -9;
    EXPECT_EQ(AtPlace(place::kRecordCount, recordset, &count), S_OK);
    return count;
  }
  static LONG State(::_Recordset* recordset) {
    LONG state = -1;
    EXPECT_EQ(AtPlace(place::kState, recordset, &state), S_OK);
    return state;
  }
  static HRESULT Collect(::_Recordset* recordset, const char* name, const std::string& text) {
    const Arg index(name);
    const Arg value(text);
    return AtPlace<VARIANT, VARIANT>(place::kPutCollect, recordset, index, value);
  }

  const Region region = UserRegionOfSystem();
  const Date day{2026, 11, 16};
  ComPtr<::_Connection> connection;
  ConnectionRef named;
};

TEST_P(StatementsOfScreen, TheBranchIsFoundAmongThemAllByName) {
  const auto branches = Reading(statements::Branches());
  EXPECT_EQ(Value(branches.Get(), "Nombre"), "Norte");
  const Bstr criteria(statements::BranchCriterion("02"));
  const Arg start;
  EXPECT_EQ((AtPlace<BSTR, LONG, LONG, VARIANT>(place::kFind, branches.Get(), criteria, 0, 1, start)), S_OK);
  EXPECT_EQ(Value(branches.Get(), "Nombre"), "Sur");
}

TEST_P(StatementsOfScreen, ADaysLinesComeWithNamesOfProductsAndEmployees) {
  const auto lines = Reading(statements::LinesOfDay("01", DateConditionOfLoad(named, day, region)));
  EXPECT_EQ(Count(lines.Get()), 2);
  EXPECT_EQ(Value(lines.Get(), "IdSucursal"), "01");
  EXPECT_EQ(Value(lines.Get(), "Fecha"), "Date 46342.000000");
  EXPECT_EQ(Value(lines.Get(), "Descripcion"), "Champú");
  EXPECT_EQ(Value(lines.Get(), "stockAnterior"), "Double 1.000000");
  EXPECT_EQ(Values(lines.Get(), "Nombre"), (Texts{"Ana", "Null"}));
}

TEST_P(StatementsOfScreen, ASaveDeletesTheDayAndAddsItsRows) {
  const ComPtr<::_Recordset> codes = NewRecordset();
  const std::string condition = DateConditionOfSave(named, region.ToText(day), region);
  ASSERT_EQ(Open(codes.Get(), statements::DeleteDay("01", condition), kDynamic, kOptimistic), S_OK);
  EXPECT_EQ(State(codes.Get()), 0);
  EXPECT_EQ(NativeValue("SELECT COUNT(*) FROM HistOrvendalcial"), "2");
  ASSERT_EQ(Open(codes.Get(), statements::WholeHistory(), kDynamic, kOptimistic), S_OK);
  const Arg omitted;
  for (const char* code : {"A1", "B1"}) {
    EXPECT_EQ((AtPlace<VARIANT, VARIANT>(place::kAddNew, codes.Get(), omitted, omitted)), S_OK);
    EXPECT_EQ(Collect(codes.Get(), "IdSucursal", "01"), S_OK);
    EXPECT_EQ(Collect(codes.Get(), "Fecha", region.ToText(day)), S_OK);
    EXPECT_EQ(Collect(codes.Get(), "IdProducto", code), S_OK);
    EXPECT_EQ(Collect(codes.Get(), "stockAnterior", "7"), S_OK);
    EXPECT_EQ(Collect(codes.Get(), "StockActual", "9"), S_OK);
    EXPECT_EQ((AtPlace<VARIANT, VARIANT>(place::kUpdate, codes.Get(), omitted, omitted)), S_OK);
  }
  EXPECT_EQ((AtPlace<VARIANT, VARIANT>(place::kAddNew, codes.Get(), omitted, omitted)), S_OK);
  LONG mode = 0;
  EXPECT_EQ(AtPlace(place::kEditMode, codes.Get(), &mode), S_OK);
  EXPECT_EQ(mode, 2);
  EXPECT_EQ(AtPlace(place::kCancelUpdate, codes.Get()), S_OK);
  EXPECT_EQ(AtPlace(place::kClose, codes.Get()), S_OK);
  EXPECT_EQ(NativeValue("SELECT group_concat(IdProducto || StockActual, ' ') FROM HistOrvendalcial WHERE "
                        "IdSucursal = '01' AND Fecha = '2026-11-16 00:00:00'"),
            "A19 B19");
}

TEST_P(StatementsOfScreen, ProductsAreLookedUpByCodeReferenceAndDescription) {
  EXPECT_EQ(Values(Reading(statements::ProductByCode("a1")).Get(), "Codigo"), Texts{"A1"});
  EXPECT_TRUE(AtEnd(Reading(statements::ProductByCode("Z9")).Get()));
  EXPECT_EQ(Values(Reading(statements::Reference("843700")).Get(), "IdProducto"), Texts{"B1"});
  EXPECT_EQ(Count(Reading(statements::ProductsLikeCode("A_")).Get()), 2);
  const auto found = Reading(statements::ProductsByDescription("cham"));
  EXPECT_EQ(Count(found.Get()), 2);
  EXPECT_EQ((AtPlace<ADO_LONGPTR>(place::kPutAbsolutePosition, found.Get(), 2)), S_OK);
  EXPECT_EQ(Values(found.Get(), "Descripcion").size(), 1U);
  EXPECT_EQ(Value(Reading(statements::DescriptionOf("B1")).Get(), "Descripcion"), "Laca");
}

TEST_P(StatementsOfScreen, AStockIsReadAndMayBeMissing) {
  EXPECT_EQ(Value(Reading(statements::StockOf("01", "A1")).Get(), "Stock"), "Double 7.500000");
  EXPECT_TRUE(AtEnd(Reading(statements::StockOf("01", "B1")).Get()));
}

TEST_P(StatementsOfScreen, AQuoteInACodeIsTheProvidersSyntaxError) {
  const ComPtr<::_Recordset> recordset = NewRecordset();
  const Failure failure =
      FailureOf(Open(recordset.Get(), statements::ProductByCode("O'Hara"), kStatic, kReadOnly));
  EXPECT_EQ(failure.result, static_cast<HRESULT>(0x80040E14));
  EXPECT_FALSE(failure.description.empty());
  EXPECT_EQ(State(recordset.Get()), 0);
}

INSTANTIATE_TEST_SUITE_P(Dialects, StatementsOfScreen, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOf);

}  // namespace
}  // namespace orvendal::store_client
