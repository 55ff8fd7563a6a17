#include "tests/support/prepared_answers.h"

#include <cstdlib>
#include <sstream>

namespace orvendal {
namespace {

int Occurrences(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

std::string WithoutLineBreak(std::string text) {
  while (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

}  // namespace

std::string SomeRow(ScriptWriter& script, SampleRandom& random, const std::string& columns,
                    const std::string& from) {
  const std::string count = script.Ask("sql \"SELECT count(*) FROM " + from + "\"").value_or("0");
  const int rows = std::atoi(count.c_str());
  if (rows == 0) return {};
  const std::string row = std::to_string(random.Below(static_cast<std::size_t>(rows)));
  return WithoutLineBreak(
      script.Ask("sql \"SELECT " + columns + " FROM " + from + " LIMIT 1 OFFSET " + row + "\"").value_or(""));
}

std::string SomeProductCode(ScriptWriter& script, SampleRandom& random) {
  return SomeRow(script, random, "Codigo", "Productos");
}

void PreparedAnswers::PrepareEmployee() {
  std::string line = "empleado cancelar";
  if (random_.Chance(80)) {
    const std::string code = "E0" + std::to_string(random_.Between(10, 79));
    line = "empleado " + code;
    if (random_.Chance(8)) line = "empleado X9 \"\"";
    if (random_.Chance(6)) line = "empleado O1 \"Núria d'Eixample \\\"la Rossa\\\"\"";
    if (random_.Chance(3)) line = "empleado EMPLEADODEMASIADOLARGO \"Ana\"";
  }
  if (!script_.Do(line)) script_.Do("empleado A1 \"Ana\"");  // the store may have lost its employees
  ++employees_;
}

void PreparedAnswers::PrepareProduct() {
  std::string code = random_.Chance(70) ? SomeProductCode(script_, random_) : "";
  if (random_.Chance(4)) code = "NINGUNO";
  script_.Do("buscador " + (code.empty() ? "cancelar" : Quoted(code)));
  ++products_;
}

void PreparedAnswers::PrepareAnswer() {
  static constexpr const char* kAnswers[] = {"si", "no", "cancelar"};
  std::string answer = kAnswers[random_.Below(3)];
  if (random_.Chance(1)) answer = "aceptar";
  script_.Do("respuesta " + answer);
  answers_.push_back(answer);
}

void PreparedAnswers::TopUp(int lines) {
  while (employees_ < 1 + lines) PrepareEmployee();
  while (products_ < 1 + lines) PrepareProduct();
  while (answers_.size() < 2) PrepareAnswer();
}

void PreparedAnswers::Count(const ScreenLook& look) {
  employees_ -= Occurrences(look.library_calls, "SelectorEmpleado.Elegir(");
  products_ -= Occurrences(look.library_calls, "BuscadorProductos.Buscar(");
  std::istringstream messages(look.messages);
  for (std::string message; std::getline(messages, message);) {
    const bool asks = message.starts_with("[35]") || message.starts_with("[36]");
    if (!answers_.empty() && asks != (answers_.front() == "aceptar")) answers_.pop_front();
  }
}

}  // namespace orvendal
