#include <gtest/gtest.h>

#include <map>

#include "tests/support/form_driver.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

/// Counts what it makes.
class CountingLibrary final : public Library {
 public:
  explicit CountingLibrary(Library& inner) : inner_(inner) {}

  std::unique_ptr<Herramientas> NewHerramientas() override {
    ++made["Herramientas"];
    return inner_.NewHerramientas();
  }
  std::unique_ptr<Mensajes> NewMensajes() override {
    ++made["Mensajes"];
    return inner_.NewMensajes();
  }
  std::unique_ptr<CambioSesion> NewCambioSesion() override {
    ++made["CambioSesion"];
    return inner_.NewCambioSesion();
  }
  std::unique_ptr<Recalculo> NewRecalculo() override {
    ++made["Recalculo"];
    return inner_.NewRecalculo();
  }
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override {
    ++made["BuscadorProductos"];
    return inner_.NewBuscadorProductos();
  }
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override {
    ++made["SelectorEmpleado"];
    return inner_.NewSelectorEmpleado();
  }

  std::map<std::string, int> made;

 private:
  Library& inner_;
};

class LibraryObjectsTest : public testing::Test {
 protected:
  void Open() {
    ClassOrvendal component(state);
    component.Orvendal(screen.session, "01", "P1", "T1");
  }
  Robot hands() { return Robot(*state.form); }

  FormDriver screen;
  CountingLibrary library{screen.library};
  ComponentState state{Environment{screen.host, screen.recordsets, library}};
};

TEST_F(LibraryObjectsTest, EachGlobalObjectIsMadeOnFirstUse) {
  EXPECT_TRUE(library.made.empty());
  Open();
  EXPECT_EQ(library.made, (std::map<std::string, int>{{"Herramientas", 1}}));
  hands().Key(key::kF2);
  EXPECT_EQ(library.made["CambioSesion"], 1);
  EXPECT_EQ(library.made.count("Mensajes"), 0U);
  EXPECT_EQ(library.made.count("Recalculo"), 0U);
}

TEST_F(LibraryObjectsTest, GlobalObjectsLiveOnWhenTheFormCloses) {
  Open();
  hands().Key(key::kF2);
  state.form->Unload();
  ASSERT_EQ(state.form, nullptr);
  Open();
  hands().Key(key::kF1);
  hands().Key(key::kF2);
  EXPECT_EQ(library.made["Herramientas"], 1);
  EXPECT_EQ(library.made["CambioSesion"], 1);
}

TEST_F(LibraryObjectsTest, OnePickerIsMadeForEachUse) {
  Open();
  for (int use = 1; use <= 2; ++use) {
    screen.library.QueueEmployee({false, "", ""});
    hands().Click(hands().Find("CmdEmpl"));
    EXPECT_EQ(library.made["SelectorEmpleado"], use);
  }
}

TEST_F(LibraryObjectsTest, AMessageMakesTheMessagesOnce) {
  screen.Execute("DELETE FROM Sucursales");
  Open();
  EXPECT_EQ(library.made["Mensajes"], 1);
  state.form->Unload();
  Open();
  EXPECT_EQ(library.made["Mensajes"], 1);
  EXPECT_EQ(screen.library.TakeMessages().size(), 2U);
}

}  // namespace
}  // namespace orvendal
