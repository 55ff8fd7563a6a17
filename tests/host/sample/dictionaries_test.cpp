#include "host/sample/dictionaries.h"

#include <gtest/gtest.h>

#include "adapters/sqlite/sqlite_store.h"
#include "host/words.h"

namespace orvendal {
namespace {

TEST(Dictionaries, HoldEveryCaptionOfTheScreenInEachLanguage) {
  for (const Language language : {Language::kSpanish, Language::kCatalan, Language::kEnglish}) {
    const Dictionaries dictionaries = MakeDictionaries(language);
    for (const char* key : {"Cancelar", "Buscar", "Datos de Interes", "Estilista", "Fecha", "Codigo",
                            "Descripcion", "Sucursal"}) {
      EXPECT_FALSE(dictionaries.general->Fields(key).Value().Text().empty()) << key;
    }
    for (const char* key : {"Supervisor", "Borrar Linea"}) {
      EXPECT_FALSE(dictionaries.acciones->Fields(key).Value().Text().empty()) << key;
    }
    EXPECT_EQ(dictionaries.pantallas->Fields("Orvendalciales").Value().Text(), "Orvendal");
  }
}

TEST(Dictionaries, SpeakTheirLanguage) {
  EXPECT_EQ(MakeDictionaries(Language::kSpanish).general->Fields("Codigo").Value().Text(), "Código");
  EXPECT_EQ(MakeDictionaries(Language::kCatalan).general->Fields("Codigo").Value().Text(), "Codi");
  EXPECT_EQ(MakeDictionaries(Language::kEnglish).general->Fields("Codigo").Value().Text(), "Code");
}

TEST(Dictionaries, ComeFromAStoreOfEitherDialectToo) {
  for (const Dialect dialect : {Dialect::kSqlServer, Dialect::kJet}) {
    const auto store = SqliteConnection::Open(":memory:", dialect, Region::Spanish(), OpenMode::kCreate);
    SqliteRecordsetFactory recordsets;
    const Dictionaries selected = SelectDictionaries(recordsets, store, Language::kCatalan);
    const Dictionaries made = MakeDictionaries(Language::kCatalan);
    for (RecordsetRef Dictionaries::*which :
         {&Dictionaries::general, &Dictionaries::acciones, &Dictionaries::pantallas}) {
      const Recordset& expected = *(made.*which);
      ASSERT_EQ((selected.*which)->FieldCount(), expected.FieldCount());
      for (std::size_t i = 0; i < expected.FieldCount(); ++i) {
        const std::string key = expected.FieldName(i);
        EXPECT_EQ((selected.*which)->Fields(key).Value(), expected.Fields(key).Value()) << key;
      }
    }
  }
}

TEST(Language, IsThatOfTheLocaleOrSpanish) {
  EXPECT_EQ(LanguageOfLocale("ca_ES.UTF-8"), Language::kCatalan);
  EXPECT_EQ(LanguageOfLocale("en_GB"), Language::kEnglish);
  EXPECT_EQ(LanguageOfLocale("es"), Language::kSpanish);
  EXPECT_EQ(LanguageOfLocale("C.UTF-8"), Language::kSpanish);
  EXPECT_EQ(LanguageOfLocale("fr_FR"), Language::kSpanish);
}

TEST(Words, FillPutsValuesInTheirPlaces) {
  EXPECT_EQ(Fill("%2 of %1", {"ten", "two"}), "two of ten");
  EXPECT_EQ(Fill("100 % of %1 %", {"it"}), "100 % of it %");
  EXPECT_EQ(Fill("%3", {"a", "b"}), "%3");
}

}  // namespace
}  // namespace orvendal
