#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/headless/headless_host.h"
#include "adapters/headless/robot.h"
#include "adapters/sqlite/sqlite_store.h"
#include "host/host_context.h"
#include "host/library/stand_in_library.h"
#include "host/sample/session.h"
#include "host/store/schema.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/text_box.h"

namespace orvendal {

/// Keeps what was shown, and gives the answers that a test prepared.
class KeptMessages final : public MessagePresenter {
 public:
  struct Message {
    std::string text;
    std::int32_t style = 0;
    std::string title;
  };
  std::int32_t Present(const std::string& text, std::int32_t style, const std::string& title) override {
    shown.push_back({text, style, title});
    if (while_shown) while_shown();
    return answer;
  }

  std::vector<Message> shown;
  std::int32_t answer = 1;
  std::function<void()> while_shown;
};

/// The sample host on a small store in memory: three branches, four employees, five products.
class HostTest : public testing::Test {
 protected:
  HostTest() : HostTest(Region::Spanish()) {}
  explicit HostTest(const Region& region, Dialect dialect = Dialect::kSqlServer)
      : host(region, clock),
        store(SqliteConnection::Open(":memory:", dialect, region, OpenMode::kCreate)),
        context{host, messages, SpanishWords(), recordsets, store, {}, "tienda.db", "0123", "7", "2"} {
    CreateSchema(*store);
    store->Execute(R"(
      INSERT INTO Sucursales VALUES ('01', 'Centro'), ('02', 'Mercado'), ('03', 'Estación');
      INSERT INTO Empleados (Codigo, Nombre, IdSucursal) VALUES
        ('E1', 'Zoe Puig', '01'), ('E2', 'Ana Núñez', '02'), ('E3', 'Íñigo Peña', '01'), ('E4', 'Luis Roca', '');
      INSERT INTO Productos VALUES ('CHA01', 'Champú Keratina'), ('CHA02', 'Champú Argán'),
        ('CRE01', 'Crema de Manos'), ('LAC01', 'Laca Fuerte'), ('PEI01', 'Peine para Champú');
    )");
  }

  /// The first value of the first row that a statement gives, as text; "-" without rows.
  std::string Read(const std::string& sql) {
    SqliteStatement statement(*store, sql);
    return statement.Step() ? statement.TextAt(0) : "-";
  }

  static MSFlexGrid& GridOf(Form& form, const std::string& name) {
    return dynamic_cast<MSFlexGrid&>(*form.FindControl(name));
  }
  static TextBox& BoxOf(Form& form, const std::string& name) {
    return dynamic_cast<TextBox&>(*form.FindControl(name));
  }
  /// One column of a grid, the titles left out.
  static std::vector<std::string> Column(const MSFlexGrid& grid, int column) {
    std::vector<std::string> texts;
    for (int row = 1; row < grid.Rows(); ++row) texts.push_back(grid.TextMatrix(row, column));
    return texts;
  }

  FixedClock clock{Date(2026, 11, 16, 10, 30, 5)};
  HeadlessHost host;
  std::shared_ptr<SqliteConnection> store;
  KeptMessages messages;
  SqliteRecordsetFactory recordsets;
  HostContext context;
  StandInLibrary library{context};
};

}  // namespace orvendal
