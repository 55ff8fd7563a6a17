#include "host/library/stand_in_product_search.h"

#include <array>

#include "host/library/search_list_form.h"
#include "host/store/store_rows.h"

namespace orvendal {
namespace {

constexpr std::size_t kCode = 0;
constexpr std::size_t kDescription = 1;
constexpr std::size_t kBarCodes = 2;  // not shown

// Any session object tells its connection, as it tells the screen.
ConnectionRef StoreOf(const DatosClaseRef& session) {
  if (!session) throw RuntimeError(error_number::kObjectNotSet);
  ConnectionRef store;
  std::array<ObjectRef, 6> objects;
  std::int32_t width = 0;
  std::int32_t height = 0;
  Value on_screen;
  std::array<RecordsetRef, 3> dictionaries;
  std::string text;
  std::string branch;
  session->RellenarSesion({store, objects[0], objects[1], objects[2], objects[3], objects[4], objects[5],
                           width, height, on_screen, dictionaries[0], dictionaries[1], dictionaries[2], text,
                           branch});
  return store;
}

SearchList ReadProducts(const HostContext& context, const ConnectionRef& store, bool by_code) {
  const Region& region = context.window_host.UserRegion();
  const RecordsetRef products = ReadRows(
      context.recordsets, store,
      "SELECT Productos.Codigo, Productos.Descripcion, Referencias.Referencia FROM Productos "
      "LEFT JOIN Referencias ON Referencias.IdProducto = Productos.Codigo ORDER BY Productos.Codigo");
  std::vector<SearchEntry> entries;
  for (; !products->AtEnd(); products->MoveNext()) {
    const std::string code = TextOf(*products, "Codigo", region);
    const std::string bar_code = TextOf(*products, "Referencia", region);
    if (!entries.empty() && entries.back().cells[kCode] == code) {
      entries.back().cells[kBarCodes] += '\n' + bar_code;
    } else {
      entries.push_back({{code, TextOf(*products, "Descripcion", region), bar_code}, 0});
    }
  }
  return {std::move(entries), by_code ? kCode : kDescription};
}

}  // namespace

std::string StandInProductSearch::Buscar(DatosClaseRef& datos_sesion, ObjectRef&, const std::string&,
                                         const std::string& campo, const std::string& texto,
                                         const std::string&, bool&) {
  const Words& words = context_.words;
  const bool by_code = campo == "Codigo";
  SearchList products = ReadProducts(context_, StoreOf(datos_sesion), by_code);

  SearchQuestion question;
  question.title = words.product_search;
  question.columns = {{words.code, 1}, {words.description, 4}};
  question.ways = {{words.by_code, {kCode, kBarCodes}}, {words.by_description, {kDescription}}};
  question.names = {kCode, kBarCodes};
  question.way = by_code ? 0 : 1;
  question.text = texto;
  const auto form = std::make_shared<SearchListForm>(context_.window_host, words, question, products);
  const std::optional<std::size_t> chosen = form->Ask();
  return chosen ? products.Entry(*chosen).cells[kCode] : std::string();
}

}  // namespace orvendal
