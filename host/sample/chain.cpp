#include "host/sample/chain.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

#include "host/sample/people.h"
#include "host/sample/products.h"
#include "host/sample/random.h"
#include "host/store/sample_mark.h"
#include "host/store/schema.h"
#include "platform/base/region.h"
#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

constexpr std::size_t kEmployees = 80;
constexpr std::size_t kProducts = 2500;
constexpr int kDays = 90;
constexpr int kPercentStocked = 85;
constexpr int kSunday = 6;

// What one branch has of a product.
struct StockedProduct {
  std::size_t product = 0;
  double quantity = 0;
};

// A whole number, or for goods sold by measure one with halves at times.
double Quantity(SampleRandom& random, const SampleProduct& product, int most) {
  const double whole = random.Between(0, most);
  return product.by_measure && random.Chance(60) ? whole + 0.5 : whole;
}

class ChainWriter {
 public:
  ChainWriter(SqliteConnection& store, Date today, std::uint64_t seed)
      : store_(store), today_(today.DayOnly()), random_(seed) {}

  void Write() {
    branches_ = MakeSampleBranches();
    employees_ = MakeSampleEmployees(random_, kEmployees, branches_.size());
    products_ = MakeSampleProducts(random_, kProducts);
    WriteBranches();
    WriteEmployees();
    WriteProducts();
    for (std::size_t branch = 0; branch < branches_.size(); ++branch) {
      std::vector<StockedProduct> stocked = Stocked();
      WriteCounts(branch, stocked);
      WriteStock(branch, stocked);
    }
  }

 private:
  void WriteBranches() {
    SqliteStatement insert(store_, "INSERT INTO Sucursales (Sucursal, Nombre) VALUES (?1, ?2)");
    for (const SampleBranch& branch : branches_) insert.Bind(1, branch.key).Bind(2, branch.name).Run();
  }

  void WriteEmployees() {
    SqliteStatement insert(store_, "INSERT INTO Empleados (Codigo, Nombre, IdSucursal) VALUES (?1, ?2, ?3)");
    for (const SampleEmployee& employee : employees_) {
      insert.Bind(1, employee.code).Bind(2, employee.name).Bind(3, branches_[employee.branch].key).Run();
    }
  }

  void WriteProducts() {
    SqliteStatement product(store_, "INSERT INTO Productos (Codigo, Descripcion) VALUES (?1, ?2)");
    SqliteStatement reference(store_, "INSERT INTO Referencias (Referencia, IdProducto) VALUES (?1, ?2)");
    for (const SampleProduct& made : products_) {
      product.Bind(1, made.code).Bind(2, made.description).Run();
      for (const std::string& code : made.references) reference.Bind(1, code).Bind(2, made.code).Run();
    }
  }

  // What a branch had ninety days ago. It does not lead every product.
  std::vector<StockedProduct> Stocked() {
    std::vector<StockedProduct> stocked;
    for (std::size_t i = 0; i < products_.size(); ++i) {
      if (random_.Chance(kPercentStocked)) stocked.push_back({i, Quantity(random_, products_[i], 40)});
    }
    return stocked;
  }

  void WriteStock(std::size_t branch, const std::vector<StockedProduct>& stocked) {
    SqliteStatement insert(store_,
                           "INSERT INTO ProdSucStock (IdSucursal, IdProducto, Stock) VALUES (?1, ?2, ?3)");
    for (const StockedProduct& entry : stocked) {
      insert.Bind(1, branches_[branch].key)
          .Bind(2, products_[entry.product].code)
          .Bind(3, entry.quantity)
          .Run();
    }
  }

  // Branches rest on Sundays; today only every third one has counted, and not much yet.
  int LinesOf(std::size_t branch, Date day) {
    if (day == today_) return branch % 3 == 0 ? random_.Between(6, 9) : 0;
    return day.Weekday() == kSunday ? 0 : random_.Between(16, 30);
  }

  void WriteCounts(std::size_t branch, std::vector<StockedProduct>& stocked) {
    SqliteStatement insert(store_,
                           "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, "
                           "StockActual, IdEmpleado, Actualizado, ModificadoPor) "
                           "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?1)");
    insert.Bind(1, branches_[branch].key);
    for (int back = kDays - 1; back >= 0; --back) {
      const Date day = Date::FromDayNumber(today_.DayNumber() - back);
      const int lines = LinesOf(branch, day);
      if (lines == 0) continue;
      insert.Bind(2, day).Bind(6, employees_[EmployeeOf(branch)].code);
      insert.Bind(7, Date::FromDayNumber(day.DayNumber(), random_.Between(8 * 3600, 9 * 3600)));
      std::set<std::size_t> counted;
      while (static_cast<int>(counted.size()) < lines) {
        const std::size_t place = random_.Below(stocked.size());
        if (!counted.insert(place).second) continue;
        StockedProduct& entry = stocked[place];
        const double before = entry.quantity;
        Recount(entry);
        // The screen takes the previous quantity over as a whole number.
        insert.Bind(3, products_[entry.product].code)
            .Bind(4, RoundToLong(before))
            .Bind(5, entry.quantity)
            .Run();
      }
    }
  }

  // Mostly what was there before; at times something sold, lost or found, or a delivery.
  void Recount(StockedProduct& entry) {
    if (random_.Chance(55)) return;
    const bool delivered = entry.quantity < 4 && random_.Chance(70);
    const double change = delivered ? random_.Between(6, 24) : random_.Between(-4, 1);
    entry.quantity = std::max(0.0, entry.quantity + change);
    if (products_[entry.product].by_measure && random_.Chance(50)) {
      entry.quantity = std::floor(entry.quantity) + 0.5;
    }
  }

  std::size_t EmployeeOf(std::size_t branch) {
    std::vector<std::size_t> own;
    for (std::size_t i = 0; i < employees_.size(); ++i) {
      if (employees_[i].branch == branch) own.push_back(i);
    }
    return own[random_.Below(own.size())];
  }

  SqliteConnection& store_;
  Date today_;
  SampleRandom random_;
  std::vector<SampleBranch> branches_;
  std::vector<SampleEmployee> employees_;
  std::vector<SampleProduct> products_;
};

// What a tool shows of the file says what it is, too.
void Mark(SqliteConnection& store, Date today) {
  const std::string table(kSampleMark);
  store.Execute("CREATE TABLE " + table + " (Aviso TEXT NOT NULL, Dia DATETIME NOT NULL)");
  SqliteStatement(store, "INSERT INTO " + table + " (Aviso, Dia) VALUES (?1, ?2)")
      .Bind(1, std::string("Los datos de este fichero son inventados."))
      .Bind(2, today.DayOnly())
      .Run();
}

}  // namespace

void FillSampleChain(SqliteConnection& store, Date today, std::uint64_t seed) {
  ChainWriter(store, today, seed).Write();
}

void MakeSampleStore(SqliteConnection& store, Date today, std::uint64_t seed) {
  store.Execute("BEGIN IMMEDIATE");
  try {
    CreateSchema(store);
    store.Execute(JournalDefinition());
    FillSampleChain(store, today, seed);
    Mark(store, today);
    store.Execute("COMMIT");
  } catch (const RuntimeError&) {
    // A full disk, for one, has ended the transaction already.
    if (sqlite3_get_autocommit(store.Handle()) == 0) store.Execute("ROLLBACK");
    throw;
  }
}

}  // namespace orvendal
