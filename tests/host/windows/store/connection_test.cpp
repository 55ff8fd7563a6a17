#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "adapters/sqlite/sqlite_store.h"
#include "tests/host/windows/store/store_client.h"

namespace orvendal::store_client {
namespace {

class ConnectionOfStore : public StoreTest {
 protected:
  static std::string ProviderOf(::_Connection* connection) {
    BstrCell provider;
    EXPECT_EQ(connection->get_Provider(provider.InOut()), S_OK);
    return provider.Text();
  }
  static LONG StateOf(::_Connection* connection) {
    LONG state = -1;
    EXPECT_EQ(connection->get_State(&state), S_OK);
    return state;
  }
  Failure FailureToOpen(const std::string& connection_string) {
    const ComPtr<::_Connection> connection = NewConnection();
    const Failure failure = FailureOf(connection->Open(Bstr(connection_string), Bstr(""), Bstr(""), -1));
    EXPECT_EQ(StateOf(connection.Get()), 0);
    return failure;
  }
  void Fill(const std::string& file, const std::string& contents) {
    std::ofstream(std::filesystem::path(WideText(folder + "\\" + file)), std::ios::binary) << contents;
  }
  LONG Affected(::_Connection* connection, const std::string& command) {
    Variant affected;
    ComPtr<::_Recordset> rows;
    const HRESULT result = connection->Execute(Bstr(command), affected.Address(), -1, rows.Receive());
    EXPECT_EQ(result, S_OK) << FailureOf(result).description;
    return V_I4(&affected.Get());
  }
};

TEST_P(ConnectionOfStore, TheProvidersNameChoosesTheDialect) {
  const ComPtr<::_Connection> connection = Connected();
  EXPECT_EQ(StateOf(connection.Get()), 1);
  EXPECT_EQ(ProviderOf(connection.Get()), Provider());
  Native(
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto) VALUES ('01','2026-11-16 09:05:00','A')");
  const std::string condition = SqlServer() ? "CONVERT(DATETIME, '2026-11-16', 102)" : "#11/16/2026#";
  const auto rows = Opened(connection, "SELECT IdProducto FROM HistOrvendalcial WHERE Fecha > " + condition,
                           kStatic, kReadOnly);
  EXPECT_EQ(Column(rows.Get(), "IdProducto"), Texts{"A"});
}

TEST_P(ConnectionOfStore, ANewOneIsClosedAndNamesNoStore) {
  const ComPtr<::_Connection> connection = NewConnection();
  EXPECT_EQ(StateOf(connection.Get()), 0);
  EXPECT_EQ(ProviderOf(connection.Get()), "MSDASQL");
  EXPECT_EQ(connection->Close(), AdoFailure(3704));
  ComPtr<::_Recordset> rows;
  EXPECT_EQ(connection->Execute(Bstr("SELECT 1"), nullptr, -1, rows.Receive()), AdoFailure(3704));
  EXPECT_FALSE(rows);
}

TEST_P(ConnectionOfStore, PropertiesSetBeforeTheOpeningServeAsTheConnectionString) {
  const ComPtr<::_Connection> connection = NewConnection();
  EXPECT_EQ(connection->put_Provider(Bstr(Provider())), S_OK);
  EXPECT_EQ(connection->put_ConnectionString(Bstr("Data Source=" + path)), S_OK);
  EXPECT_EQ(ProviderOf(connection.Get()), Provider());
  EXPECT_EQ(connection->Open(nullptr, nullptr, nullptr, -1), S_OK);
  EXPECT_EQ(StateOf(connection.Get()), 1);
  EXPECT_EQ(connection->put_Provider(Bstr("MSDASQL")), AdoFailure(3705));
  EXPECT_EQ(connection->put_ConnectionString(Bstr("")), AdoFailure(3705));
  BstrCell kept;
  EXPECT_EQ(connection->get_ConnectionString(kept.InOut()), S_OK);
  EXPECT_EQ(kept.Text(), "Data Source=" + path);
}

TEST_P(ConnectionOfStore, ItIsOpenedOnceAndCanBeOpenedAgainAfterAClose) {
  const ComPtr<::_Connection> connection = Connected();
  EXPECT_EQ(connection->Open(Bstr(ConnectionString()), nullptr, nullptr, -1), AdoFailure(3705));
  EXPECT_EQ(connection->Close(), S_OK);
  EXPECT_EQ(StateOf(connection.Get()), 0);
  EXPECT_EQ(connection->Open(nullptr, nullptr, nullptr, -1), S_OK);
  EXPECT_EQ(ProviderOf(connection.Get()), Provider());
}

TEST_P(ConnectionOfStore, ARelativePathStartsAtTheCurrentFolder) {
  std::wstring before(MAX_PATH, L'\0');
  before.resize(GetCurrentDirectoryW(MAX_PATH, before.data()));
  SetCurrentDirectoryW(WideText(folder).c_str());
  const ComPtr<::_Connection> connection = NewConnection();
  EXPECT_EQ(connection->Open(Bstr("Provider=" + Provider() + ";Data Source=cadena.db"), nullptr, nullptr, -1),
            S_OK);
  SetCurrentDirectoryW(before.c_str());
  Opened(connection, "SELECT * FROM Sucursales", kStatic, kReadOnly);
}

TEST_P(ConnectionOfStore, AFileThatIsNotThereIsNamed) {
  const Failure failure = FailureToOpen("Provider=" + Provider() + ";Data Source=" + folder + "\\ningún.db");
  EXPECT_EQ(failure.result, E_FAIL);
  EXPECT_EQ(failure.source, "OrvendalStore");
  EXPECT_EQ(failure.description,
            "The store file '" + folder + "\\ningún.db' does not exist or cannot be opened.");
  EXPECT_EQ(FailureToOpen("Provider=" + Provider()).result, E_FAIL);
}

TEST_P(ConnectionOfStore, AFileThatIsNoStoreIsNamed) {
  Fill("texto.db", std::string(4096, 'x'));
  const Failure failure = FailureToOpen("Provider=" + Provider() + ";Data Source=" + folder + "\\texto.db");
  EXPECT_EQ(failure.result, E_FAIL);
  EXPECT_EQ(failure.description,
            "The store file '" + folder + "\\texto.db' is not a store: it is no database.");
}

TEST_P(ConnectionOfStore, AFileThatAnotherProgramHoldsIsReported) {
  const auto other =
      SqliteConnection::Open(path, Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting);
  const ComPtr<::_Connection> connection = Connected();
  EXPECT_EQ(connection->put_CommandTimeout(1), S_OK);
  other->Execute("BEGIN EXCLUSIVE");
  ComPtr<::_Recordset> rows;
  const Failure failure =
      FailureOf(connection->Execute(Bstr("DELETE FROM Sucursales"), nullptr, -1, rows.Receive()));
  EXPECT_EQ(failure.result, E_FAIL);
  EXPECT_EQ(failure.source, "OrvendalStore");
  EXPECT_EQ(failure.description, "The store is locked by another program.");
  other->Execute("ROLLBACK");
  EXPECT_EQ(connection->Execute(Bstr("DELETE FROM Sucursales"), nullptr, -1, rows.Receive()), S_OK);
}

TEST_P(ConnectionOfStore, ItWaitsForAnotherProgramAsLongAsItsCommandTimeoutSays) {
  const auto other =
      SqliteConnection::Open(path, Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting);
  const ComPtr<::_Connection> connection = NewConnection();
  LONG seconds = 0;
  EXPECT_EQ(connection->get_CommandTimeout(&seconds), S_OK);
  EXPECT_EQ(seconds, 2);
  EXPECT_EQ(connection->put_CommandTimeout(-1), AdoFailure(3001));
  const bool set_before_opening = SqlServer();
  if (set_before_opening) {
    EXPECT_EQ(connection->put_CommandTimeout(60), S_OK);
  }
  EXPECT_EQ(connection->Open(Bstr(ConnectionString()), nullptr, nullptr, -1), S_OK);
  if (!set_before_opening) {
    EXPECT_EQ(connection->put_CommandTimeout(0), S_OK);  // without end
  }
  other->Execute("BEGIN EXCLUSIVE");
  std::thread release([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(2500));
    other->Execute("COMMIT");
  });
  ComPtr<::_Recordset> rows;
  EXPECT_EQ(connection->Execute(Bstr("DELETE FROM Sucursales"), nullptr, -1, rows.Receive()), S_OK);
  release.join();
}

TEST_P(ConnectionOfStore, AnotherProviderIsNotFound) {
  const Failure failure = FailureToOpen("Provider=MSOLEDBSQL.1;Data Source=" + path);
  EXPECT_EQ(failure.result, AdoFailure(3706));
  EXPECT_EQ(failure.source, "ADODB.Connection");
  EXPECT_EQ(
      failure.description,
      "Provider cannot be found. The embedded store answers as SQLOLEDB.1 and as Microsoft.Jet.OLEDB.4.0.");
  EXPECT_EQ(FailureToOpen("Data Source=" + path).result, AdoFailure(3706));
}

TEST_P(ConnectionOfStore, ATextThatIsNoConnectionStringIsRefused) {
  EXPECT_EQ(FailureToOpen("cadena.db").result, static_cast<HRESULT>(0x80040E73));
}

TEST_P(ConnectionOfStore, ACommandSaysHowManyRowsItChanged) {
  const ComPtr<::_Connection> connection = Connected();
  EXPECT_EQ(Affected(connection.Get(), "INSERT INTO Sucursales VALUES ('01','Norte')"), 1);
  EXPECT_EQ(Affected(connection.Get(), "INSERT INTO Sucursales VALUES ('02','Sur')"), 1);
  EXPECT_EQ(Affected(connection.Get(), "UPDATE Sucursales SET Nombre = 'Este' WHERE Sucursal LIKE '0%'"), 2);
  EXPECT_EQ(Affected(connection.Get(), "SELECT * FROM Sucursales"), -1);
  EXPECT_EQ(Affected(connection.Get(), "DELETE FROM Sucursales WHERE Sucursal = '03'"), 0);
}

TEST_P(ConnectionOfStore, ACommandWithRowsGivesThemForwardOnly) {
  Native("INSERT INTO Sucursales VALUES ('01','Norte'),('02','Sur')");
  const ComPtr<::_Connection> connection = Connected();
  ComPtr<::_Recordset> rows;
  EXPECT_EQ(connection->Execute(Bstr("SELECT Nombre FROM Sucursales ORDER BY Sucursal"), nullptr, -1,
                                rows.Receive()),
            S_OK);
  LONG cursor = -1;
  ADO_LONGPTR count = 0;
  EXPECT_EQ(rows->get_CursorType(&cursor), S_OK);
  EXPECT_EQ(cursor, 0);
  EXPECT_EQ(rows->get_RecordCount(&count), S_OK);
  EXPECT_EQ(count, -1);
  EXPECT_EQ(rows->put_AbsolutePosition(1), AdoFailure(3251));
  EXPECT_EQ(rows->AddNew(Arg(), Arg()), AdoFailure(3251));
  EXPECT_EQ(Column(rows.Get(), "Nombre"), (Texts{"Norte", "Sur"}));
}

TEST_P(ConnectionOfStore, ATableIsReadByItsName) {
  Native("INSERT INTO Sucursales VALUES ('01','Norte')");
  ComPtr<::_Recordset> rows;
  EXPECT_EQ(Connected()->Execute(Bstr("Sucursales"), nullptr, 2, rows.Receive()), S_OK);
  EXPECT_EQ(Column(rows.Get(), 1), Texts{"Norte"});
}

TEST_P(ConnectionOfStore, ARefusedCommandNamesWhatIsWrong) {
  const ComPtr<::_Connection> connection = Connected();
  ComPtr<::_Recordset> rows;
  const Failure no_table =
      FailureOf(connection->Execute(Bstr("SELECT * FROM Clientes"), nullptr, -1, rows.Receive()));
  EXPECT_EQ(no_table.result, static_cast<HRESULT>(0x80040E37));
  EXPECT_NE(no_table.description.find("Clientes"), std::string::npos);
  EXPECT_EQ(connection->Execute(Bstr(" "), nullptr, -1, rows.Receive()), static_cast<HRESULT>(0x80040E0C));
  EXPECT_EQ(connection->Execute(Bstr("Recalcular"), nullptr, 4, rows.Receive()), AdoFailure(3251));
}

TEST_P(ConnectionOfStore, ATransactionIsKeptOrTakenBackAsAWhole) {
  const ComPtr<::_Connection> connection = Connected();
  LONG level = 0;
  EXPECT_EQ(connection->BeginTrans(&level), S_OK);
  EXPECT_EQ(level, 1);
  Affected(connection.Get(), "INSERT INTO Sucursales VALUES ('01','Norte')");
  EXPECT_EQ(connection->RollbackTrans(), S_OK);
  EXPECT_EQ(NativeValue("SELECT COUNT(*) FROM Sucursales"), "0");
  EXPECT_EQ(connection->BeginTrans(&level), S_OK);
  Affected(connection.Get(), "INSERT INTO Sucursales VALUES ('01','Norte')");
  EXPECT_EQ(NativeValue("SELECT COUNT(*) FROM Sucursales"), "0");
  EXPECT_EQ(connection->CommitTrans(), S_OK);
  EXPECT_EQ(NativeValue("SELECT COUNT(*) FROM Sucursales"), "1");
}

TEST_P(ConnectionOfStore, TransactionsAreNeitherNestedNorClosedOverNorEndedTwice) {
  const ComPtr<::_Connection> connection = Connected();
  LONG level = 0;
  EXPECT_EQ(connection->CommitTrans(), static_cast<HRESULT>(0x8004D00E));
  EXPECT_EQ(connection->BeginTrans(&level), S_OK);
  EXPECT_EQ(connection->BeginTrans(&level), static_cast<HRESULT>(0x8004D013));
  EXPECT_EQ(connection->Close(), AdoFailure(3246));
  EXPECT_EQ(StateOf(connection.Get()), 1);
  EXPECT_EQ(connection->RollbackTrans(), S_OK);
  EXPECT_EQ(connection->Close(), S_OK);
}

TEST_P(ConnectionOfStore, WithItsLastReferenceATransactionIsTakenBack) {
  {
    const ComPtr<::_Connection> connection = Connected();
    LONG level = 0;
    EXPECT_EQ(connection->BeginTrans(&level), S_OK);
    Affected(connection.Get(), "INSERT INTO Sucursales VALUES ('01','Norte')");
  }
  EXPECT_EQ(NativeValue("SELECT COUNT(*) FROM Sucursales"), "0");
}

TEST_P(ConnectionOfStore, WhatItDoesNotProvideSaysSo) {
  const ComPtr<::_Connection> connection = Connected();
  ComPtr<IDispatch> object;
  ComPtr<::_Recordset> rows;
  const Failure failure = FailureOf(connection->OpenSchema(20, Arg(), Arg(), rows.Receive()));
  EXPECT_EQ(failure.result, AdoFailure(3251));
  EXPECT_EQ(failure.source, "ADODB.Connection");
  EXPECT_EQ(failure.description, "Object or provider is not capable of performing requested operation.");
  EXPECT_EQ(connection->get_Properties(object.Receive()), AdoFailure(3251));
  EXPECT_EQ(connection->get_Errors(object.Receive()), AdoFailure(3251));
  EXPECT_EQ(connection->Open(Bstr(ConnectionString()), nullptr, nullptr, 0x10), AdoFailure(3251));
}

TEST_P(ConnectionOfStore, CallersWithoutAPlaceForTheResultAreRefused) {
  const ComPtr<::_Connection> connection = Connected();
  EXPECT_EQ(connection->get_Provider(nullptr), E_POINTER);
  EXPECT_EQ(connection->get_State(nullptr), E_POINTER);
  EXPECT_EQ(connection->Execute(Bstr("SELECT 1"), nullptr, -1, nullptr), E_POINTER);
}

INSTANTIATE_TEST_SUITE_P(Dialects, ConnectionOfStore, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOf);

}  // namespace
}  // namespace orvendal::store_client
