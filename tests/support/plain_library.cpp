#include "tests/support/plain_library.h"

namespace orvendal {
namespace {

class PlainHerramientas final : public Herramientas {
 public:
  PlainHerramientas(WindowHost& host, const PlainLibrary& library) : host_(host), library_(library) {}

  int FiltrarTecla(TextBox& caja, int key_ascii, bool) override {
    const char mark = host_.UserRegion().DecimalMark();
    if (key_ascii == '.') key_ascii = mark;
    const bool has_mark = caja.Text().find(mark) != std::string::npos;
    const bool is_control = key_ascii < ' ';
    const bool is_digit = key_ascii >= '0' && key_ascii <= '9';
    return is_control || is_digit || (key_ascii == mark && !has_mark) ? key_ascii : 0;
  }

  void AccionPuesto(ConnectionRef&, std::string&) override {}
  void LiberarForm(ObjectRef& formulario) override { formulario.reset(); }

  std::string FormatoFecha(std::string& fecha, std::uint8_t, std::string&, std::string&) override {
    if (library_.date_text) return *library_.date_text;
    const std::optional<Date> date = host_.UserRegion().ParseDate(fecha);
    if (!date) return fecha;
    return library_.date_mask.empty() ? host_.UserRegion().ToText(date->DayOnly())
                                      : host_.UserRegion().Format(*date, library_.date_mask);
  }

  void RegistrarSentencia(std::string&, ConnectionRef&, std::string&) override {}
  std::string FechaHoraTexto(Date& momento) override { return host_.UserRegion().ToText(momento); }

 private:
  WindowHost& host_;
  const PlainLibrary& library_;
};

class PlainRecalculo final : public Recalculo {
 public:
  void RecalcularProducto(ConnectionRef&, std::string&, std::string&, std::string&) override {}
};

}  // namespace

std::unique_ptr<Herramientas> PlainLibrary::NewHerramientas() {
  return std::make_unique<PlainHerramientas>(host_, *this);
}
std::unique_ptr<Recalculo> PlainLibrary::NewRecalculo() {
  return std::make_unique<PlainRecalculo>();
}

}  // namespace orvendal
