#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/error_of.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

using testing_support::ErrorOf;

/// Tools that leave something else in the reference than the form that was let go.
class SwappingTools final : public Herramientas {
 public:
  SwappingTools(std::unique_ptr<Herramientas> inner, ObjectRef left)
      : inner_(std::move(inner)), left_(left) {}

  int FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) override {
    return inner_->FiltrarTecla(caja, key_ascii, opcion);
  }
  void AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) override {
    inner_->AccionPuesto(conexion, cod_puesto);
  }
  void LiberarForm(ObjectRef& formulario) override { formulario = left_; }
  std::string FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                           std::string& modo2) override {
    return inner_->FormatoFecha(fecha, opcion, modo1, modo2);
  }
  void RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                          std::string& sentencia) override {
    inner_->RegistrarSentencia(cadena_sesion, conexion, sentencia);
  }
  std::string FechaHoraTexto(Date& momento) override { return inner_->FechaHoraTexto(momento); }

 private:
  std::unique_ptr<Herramientas> inner_;
  ObjectRef left_;
};

/// A search that leaves something else in the reference that it was handed, and finds product P1.
class SwappingSearch final : public BuscadorProductos {
 public:
  explicit SwappingSearch(ObjectRef left) : left_(std::move(left)) {}
  std::string Buscar(DatosClaseRef&, ObjectRef& formulario, const std::string&, const std::string&,
                     const std::string&, const std::string&, bool&) override {
    formulario = left_;
    return "P1";
  }

 private:
  ObjectRef left_;
};

class SwappingLibrary final : public Library {
 public:
  explicit SwappingLibrary(Library& inner) : inner_(inner) {}
  ObjectRef left;
  ObjectRef left_by_search;

  std::unique_ptr<Herramientas> NewHerramientas() override {
    return std::make_unique<SwappingTools>(inner_.NewHerramientas(), left);
  }
  std::unique_ptr<Mensajes> NewMensajes() override { return inner_.NewMensajes(); }
  std::unique_ptr<CambioSesion> NewCambioSesion() override { return inner_.NewCambioSesion(); }
  std::unique_ptr<Recalculo> NewRecalculo() override { return inner_.NewRecalculo(); }
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override {
    return std::make_unique<SwappingSearch>(left_by_search);
  }
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override { return inner_.NewSelectorEmpleado(); }

 private:
  Library& inner_;
};

class GlobalFormTest : public testing::Test {
 protected:
  std::shared_ptr<FrmOrvendalciales> Open() {
    ClassOrvendal(state).Orvendal(screen.session, "01", "P1", "T1");
    return state.form;
  }

  FormDriver screen;
  SwappingLibrary library{screen.library};
  ComponentState state{Environment{screen.host, screen.recordsets, library}};
};

TEST_F(GlobalFormTest, TheTitleBarActsOnTheGlobalFormWhicheverThatIs) {
  const auto first = Open();
  const auto second = std::make_shared<FrmOrvendalciales>(state);
  second->Show();
  state.form = second;
  first->Barra1_Minimizar();
  EXPECT_EQ(first->WindowState(), WindowState::kNormal);
  EXPECT_EQ(second->WindowState(), WindowState::kMinimized);
  first->Barra1_Cerrar();
  EXPECT_TRUE(first->IsLoaded());
  EXPECT_FALSE(second->IsLoaded());
}

TEST_F(GlobalFormTest, AFormThatTheSearchLeavesIsTheGlobalOneAfterwards) {
  const auto form = Open();
  const auto other = std::make_shared<FrmOrvendalciales>(state);
  library.left_by_search = other;
  form->LblBuscar_Click(0);
  EXPECT_EQ(state.form, other);
  EXPECT_TRUE(form->IsLoaded());
  EXPECT_EQ(form->MSFProductos.TextMatrix(1, column::kCode), "P1");
}

TEST_F(GlobalFormTest, AReferenceThatTheSearchClearedLeavesTheScreenWithItsLinesUntilItIsClosed) {
  const auto form = Open();
  form->LblBuscar_Click(0);
  EXPECT_EQ(state.form, nullptr);
  EXPECT_TRUE(form->IsLoaded());
  EXPECT_EQ(form->MSFProductos.TextMatrix(1, column::kCode), "P1");
  EXPECT_EQ(state.unnamed_forms, std::vector{form});
  form->Unload();
  EXPECT_TRUE(state.unnamed_forms.empty());
}

TEST_F(GlobalFormTest, SomethingThatIsNoSuchFormAfterTheSearchIsError13AndNoLineIsWritten) {
  class Something final : public Object {};
  library.left_by_search = std::make_shared<Something>();
  const auto form = Open();
  EXPECT_EQ(ErrorOf([&] { form->LblBuscar_Click(0); }), 13);
  EXPECT_EQ(state.form, form);
  EXPECT_EQ(form->MSFProductos.TextMatrix(1, column::kCode), "");
}

TEST_F(GlobalFormTest, WithoutAGlobalFormTheScreenActsOnItself) {
  const auto form = Open();
  state.form.reset();
  form->Barra1_Minimizar();
  EXPECT_EQ(form->WindowState(), WindowState::kMinimized);
  form->Barra1_Cerrar();
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(GlobalFormTest, AFormThatTheLibraryLeavesAtTheUnloadIsTheGlobalOneAfterwards) {
  const auto other = std::make_shared<FrmOrvendalciales>(state);
  library.left = other;
  Open()->Unload();
  EXPECT_EQ(state.form, other);
  EXPECT_FALSE(other->IsLoaded());
  EXPECT_EQ(Open(), other);
  EXPECT_TRUE(other->IsLoaded());
}

TEST_F(GlobalFormTest, SomethingThatIsNoSuchFormAtTheUnloadIsError13AndTheFormStays) {
  class Something final : public Object {};
  library.left = std::make_shared<Something>();
  const auto form = Open();
  EXPECT_EQ(ErrorOf([&] { form->Unload(); }), 13);
  EXPECT_TRUE(form->IsLoaded());
  EXPECT_EQ(state.form, form);
}

}  // namespace
}  // namespace orvendal
