#include "host/stand_in_product_search.h"

#include "host/host_store.h"
#include "host/sample_session.h"
#include "host/search_list_form.h"

namespace orvendal {
namespace {

constexpr std::size_t kCode = 0;
constexpr std::size_t kDescription = 1;

const ConnectionRef& StoreOf(const DatosClaseRef& session) {
  if (!session) throw RuntimeError(error_number::kObjectNotSet);
  const auto* sample = dynamic_cast<const SampleSession*>(session.get());
  if (sample == nullptr) throw RuntimeError(error_number::kTypeMismatch);
  return sample->Store();
}

SearchList ReadProducts(SqliteConnection& store, bool by_code) {
  SqliteStatement products(store, "SELECT Codigo, Descripcion FROM Productos");
  std::vector<SearchEntry> entries;
  while (products.Step()) entries.push_back({{products.TextAt(0), products.TextAt(1)}, 0});
  return {std::move(entries), by_code ? kCode : kDescription};
}

}  // namespace

std::string StandInProductSearch::Buscar(DatosClaseRef& datos_sesion, ObjectRef&, const std::string&,
                                         const std::string& campo, const std::string& texto,
                                         const std::string&, bool&) {
  const Words& words = context_.words;
  const bool by_code = campo == "Codigo";
  SearchList products = ReadProducts(EmbeddedStore(StoreOf(datos_sesion)), by_code);

  SearchQuestion question;
  question.title = words.product_search;
  question.columns = {{words.code, 1}, {words.description, 4}};
  question.ways = {{words.by_code, {kCode}}, {words.by_description, {kDescription}}};
  question.way = by_code ? 0 : 1;
  question.text = texto;
  const auto form = std::make_shared<SearchListForm>(context_.window_host, words, question, products);
  const std::optional<std::size_t> chosen = form->Ask();
  return chosen ? products.Entry(*chosen).cells[kCode] : std::string();
}

}  // namespace orvendal
