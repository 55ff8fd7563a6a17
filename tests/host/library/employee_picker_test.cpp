#include "tests/host/host_fixture.h"

namespace orvendal {
namespace {

using Names = std::vector<std::string>;

class EmployeePicker : public HostTest {
 protected:
  void Pick(std::function<void(Form&)> hands) {
    host.QueueDialog(std::move(hands));
    picker->Aceptado(false);
    picker->OpcionFija(true);
    picker->Nombre("");
    ConnectionRef connection = store;
    std::string branch = "0123";
    picker->Elegir(connection, branch);
    EXPECT_EQ(connection, store);
    EXPECT_EQ(branch, "0123");
  }
  static Names Shown(Form& form) { return Column(GridOf(form, "MSFResultados"), 1); }

  std::unique_ptr<SelectorEmpleado> picker = library.NewSelectorEmpleado();
};

TEST_F(EmployeePicker, ListsTheEmployeesOfTheBranchFirst) {
  Pick([](Form& form) {
    EXPECT_EQ(Shown(form), (Names{"Íñigo Peña", "Zoe Puig", "Ana Núñez", "Luis Roca"}));
    Robot(form).Key(key::kEscape);
  });
}

TEST_F(EmployeePicker, NarrowsByNameOrCodeWithoutAccents) {
  Pick([](Form& form) {
    Robot robot(form);
    robot.Type("nunez");
    EXPECT_EQ(Shown(form), Names{"Ana Núñez"});
    robot.Key('A', shift_mask::kControl);
    robot.Type("e4");
    EXPECT_EQ(Shown(form), Names{"Luis Roca"});
    robot.Key(key::kReturn);
  });
  EXPECT_TRUE(picker->Aceptado());
  EXPECT_EQ(picker->Codigo(), "E4");
  EXPECT_EQ(picker->Nombre(), "Luis Roca");
}

TEST_F(EmployeePicker, EnterAtOnceTakesTheFirstOne) {
  Pick([](Form& form) { Robot(form).Key(key::kReturn); });
  EXPECT_EQ(picker->Nombre(), "Íñigo Peña");
}

TEST_F(EmployeePicker, ADoubleClickTakesTheOneUnderThePointer) {
  Pick([](Form& form) { Robot(form).DoubleClickCell(GridOf(form, "MSFResultados"), 3, 1); });
  EXPECT_EQ(picker->Codigo(), "E2");
}

TEST_F(EmployeePicker, CancelledItLeavesNothingChosen) {
  Pick([](Form& form) { Robot(form).Key(key::kEscape); });
  EXPECT_FALSE(picker->Aceptado());
  EXPECT_EQ(picker->Nombre(), "");
  EXPECT_EQ(picker->Codigo(), "");
}

TEST_F(EmployeePicker, SaysWhenItAsksForASupervisor) {
  Names titles;
  for (const bool supervisor : {false, true}) {
    picker->ParaNuevo(supervisor);
    Pick([&titles](Form& form) {
      titles.push_back(form.Caption());
      Robot(form).Key(key::kEscape);
    });
  }
  EXPECT_EQ(titles, (Names{"Selección de Estilista", "Selección de Supervisor"}));
}

TEST_F(EmployeePicker, OffersOneWayToSearch) {
  Pick([](Form& form) {
    EXPECT_FALSE(form.FindControl("OptCampo(0)")->Visible());
    EXPECT_FALSE(form.FindControl("OptCampo(1)")->Visible());
    Robot(form).Key(key::kEscape);
  });
}

TEST_F(EmployeePicker, WorksOnAStoreWhoseEmployeesHaveNoBranch) {
  store->Execute("ALTER TABLE Empleados DROP COLUMN IdSucursal");
  Pick([](Form& form) {
    EXPECT_EQ(Shown(form).size(), 4U);
    Robot(form).Key(key::kReturn);
  });
  EXPECT_EQ(picker->Nombre(), "Ana Núñez");
}

TEST_F(EmployeePicker, AnEmployeeWithoutANameIsTakenWithAnEmptyOne) {
  store->Execute("UPDATE Empleados SET Nombre = NULL WHERE Codigo = 'E1'");
  Pick([](Form& form) {
    Robot robot(form);
    robot.Type("E1");
    robot.Key(key::kReturn);
  });
  EXPECT_TRUE(picker->Aceptado());
  EXPECT_EQ(picker->Codigo(), "E1");
  EXPECT_EQ(picker->Nombre(), "");
}

}  // namespace
}  // namespace orvendal
