#include "host/sample/dictionaries.h"

#include <memory>
#include <span>
#include <string>

#include "host/store/store_rows.h"
#include "platform/data/memory_recordset.h"

namespace orvendal {
namespace {

// One key with its text in each language. Keys have no accents, whatever the texts have.
struct Entry {
  const char* key;
  const char* spanish;
  const char* catalan;
  const char* english;
};

constexpr Entry kGeneral[] = {
    {"Cancelar", "Cancelar", "Cancel·lar", "Cancel"},
    {"Buscar", "Buscar", "Cercar", "Search"},
    {"Datos de Interes", "Datos de Interés", "Dades d’Interès", "Details"},
    {"Estilista", "Estilista", "Estilista", "Stylist"},
    {"Fecha", "Fecha", "Data", "Date"},
    {"Codigo", "Código", "Codi", "Code"},
    {"Descripcion", "Descripción", "Descripció", "Description"},
    {"Sucursal", "Sucursal", "Sucursal", "Branch"},
};

constexpr Entry kAcciones[] = {
    {"Supervisor", "Supervisor", "Supervisor", "Supervisor"},
    {"Borrar Linea", "Borrar Línea", "Esborrar", "Delete Line"},
};

constexpr Entry kPantallas[] = {
    {"Orvendalciales", "Orvendal", "Orvendal", "Orvendal"},
};

const char* TextIn(const Entry& entry, Language language) {
  if (language == Language::kCatalan) return entry.catalan;
  return language == Language::kEnglish ? entry.english : entry.spanish;
}

RecordsetRef MakeDictionary(std::span<const Entry> entries, Language language) {
  std::vector<MemoryRecordset::NamedValue> row;
  for (const Entry& entry : entries) row.emplace_back(entry.key, TextIn(entry, language));
  return std::make_shared<MemoryRecordset>(std::move(row));
}

std::string DictionaryStatement(std::span<const Entry> entries, Language language) {
  std::string statement;
  for (const Entry& entry : entries) {
    statement += statement.empty() ? "SELECT " : ", ";
    statement += SqlText(TextIn(entry, language)) + " AS [" + entry.key + "]";
  }
  return statement;
}

}  // namespace

Dictionaries MakeDictionaries(Language language) {
  return {MakeDictionary(kGeneral, language), MakeDictionary(kAcciones, language),
          MakeDictionary(kPantallas, language)};
}

Dictionaries SelectDictionaries(RecordsetFactory& recordsets, const ConnectionRef& connection,
                                Language language) {
  const auto select = [&](std::span<const Entry> entries) {
    return ReadRows(recordsets, connection, DictionaryStatement(entries, language));
  };
  return {select(kGeneral), select(kAcciones), select(kPantallas)};
}

}  // namespace orvendal
