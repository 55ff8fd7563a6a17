#include "host/dictionaries.h"

#include <memory>

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
    {"Borrar Linea", "Borrar Línea", "Esborrar Línia", "Delete Line"},
};

constexpr Entry kPantallas[] = {
    {"Orvendalciales", "Orvendal", "Orvendal", "Orvendal"},
};

template <std::size_t count>
RecordsetRef MakeDictionary(const Entry (&entries)[count], Language language) {
  std::vector<MemoryRecordset::NamedValue> row;
  for (const Entry& entry : entries) {
    const char* text = entry.spanish;
    if (language == Language::kCatalan) text = entry.catalan;
    if (language == Language::kEnglish) text = entry.english;
    row.emplace_back(entry.key, text);
  }
  return std::make_shared<MemoryRecordset>(std::move(row));
}

}  // namespace

Dictionaries MakeDictionaries(Language language) {
  return {MakeDictionary(kGeneral, language), MakeDictionary(kAcciones, language),
          MakeDictionary(kPantallas, language)};
}

}  // namespace orvendal
