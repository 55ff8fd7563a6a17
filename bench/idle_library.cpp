#include "bench/idle_library.h"

namespace orvendal::bench {
namespace {

class IdleHerramientas final : public Herramientas {
 public:
  int FiltrarTecla(TextBox&, int key_ascii, bool) override { return key_ascii; }
  void AccionPuesto(ConnectionRef&, std::string&) override {}
  void LiberarForm(ObjectRef& formulario) override { formulario.reset(); }
  std::string FormatoFecha(std::string& fecha, std::uint8_t, std::string&, std::string&) override {
    return fecha;
  }
  void RegistrarSentencia(std::string&, ConnectionRef&, std::string&) override {}
  std::string FechaHoraTexto(Date&) override { return "16/11/2026 10:30:00"; }
};

class IdleRecalculo final : public Recalculo {
 public:
  void RecalcularProducto(ConnectionRef&, std::string&, std::string&, std::string&) override {}
};

}  // namespace

std::unique_ptr<Herramientas> IdleLibrary::NewHerramientas() {
  return std::make_unique<IdleHerramientas>();
}
std::unique_ptr<Recalculo> IdleLibrary::NewRecalculo() {
  return std::make_unique<IdleRecalculo>();
}

}  // namespace orvendal::bench
