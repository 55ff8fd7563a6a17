// What a user reads when the store or the program ends what is being done.

#include "host/error_words.h"

#include <gtest/gtest.h>

#include "host/store/host_store.h"
#include "platform/data/ado_error.h"
#include "tests/host/host_fixture.h"
#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

const std::string kStore = "/datos/cadena.db";

std::string Spanish(const std::string& description) {
  return DescriptionInWords(SpanishWords(), description, kStore);
}

TEST(ErrorWords, TheSameTroubleIsToldAlikeAtTheStartAndLater) {
  for (const auto& [at_start, later] : std::vector<std::pair<std::string, std::string>>{
           {"The store file '/datos/cadena.db' is locked by another program.",
            "The store is locked by another program."},
           {"The store file '/datos/cadena.db' is damaged.", "The store file is damaged."},
           {"The store file '/datos/cadena.db' can only be read.", "The store can only be read."},
           {"The store file '/datos/cadena.db' is no longer in its place.",
            "The store file is no longer in its place."}}) {
    EXPECT_NE(Spanish(at_start), at_start);
    EXPECT_EQ(Spanish(at_start), Spanish(later));
    EXPECT_NE(Spanish(later).find(kStore), std::string::npos);
  }
}

TEST(ErrorWords, WhatASentenceNamesIsToldToo) {
  EXPECT_EQ(
      Spanish("Invalid object name 'Clientes'."),
      "A la base de datos le falta la tabla Clientes. Compruebe con F1 qué base de datos está abierta.");
  EXPECT_EQ(Spanish("Incorrect syntax near 'it's'.").find("No se entiende el texto cerca de «it's»."), 0U);
  EXPECT_EQ(Spanish("Incorrect syntax near ''.").find("No se entiende el texto cerca de «»."), 0U);
  EXPECT_EQ(Spanish("The store file '/a' cannot be opened: out of memory."),
            "No se puede abrir la base de datos /a: out of memory");
}

TEST(ErrorWords, WhatIsNotKnownIsToldAsItIs) {
  for (const char* text :
       {"", "Debe seleccionar un Estilista", "Overflow?", "Invalid object name 'a", "%1"}) {
    EXPECT_EQ(Spanish(text), text);
  }
}

TEST(ErrorWords, AnOverflowSaysWhatToDo) {
  EXPECT_EQ(ErrorInWords(SpanishWords(), RuntimeError(error_number::kOverflow), kStore),
            "Error 6: Un número es demasiado grande. Corríjalo y repita lo que hacía.");
  // As a save refuses a grid that its counter cannot count.
  EXPECT_EQ(
      Spanish("Overflow: the grid has more than the 32767 rows that a save takes. Nothing was deleted or "
              "saved. Note the lines that are new, press Cancel to load the day again, and enter fewer of "
              "them."),
      "El recuento tiene más de las 32767 filas que se pueden guardar. No se ha borrado ni guardado nada. "
      "Apunte las líneas nuevas, pulse Cancelar para cargar el día otra vez e introduzca menos.");
  // As it refuses lines that a load left half.
  EXPECT_EQ(
      Spanish("The lines of the day could not be loaded whole. Nothing was deleted or saved. Press Cancel to "
              "load the day again."),
      "No se han podido cargar todas las líneas del día. No se ha borrado ni guardado nada. Pulse Cancelar "
      "para "
      "cargar el día otra vez.");
}

// Every way in which the store and the runtime describe an error has its sentence in every language.
TEST(ErrorWords, NoErrorOfTheStoreIsToldInEnglish) {
  std::vector<std::string> raised;
  for (const std::int32_t number :
       {ado_error::kEitherBofOrEof, ado_error::kItemNotFound, ado_error::kFeatureNotAvailable,
        ado_error::kIllegalOperation, ado_error::kDataConversion, ado_error::kInvalidArgument,
        ado_error::kObjectClosed, ado_error::kObjectOpen, ado_error::kInvalidConnection}) {
    raised.push_back(AdoError(number).Description());
  }
  for (const std::int32_t number :
       {error_number::kInvalidProcedureCall, error_number::kOverflow, error_number::kTypeMismatch,
        error_number::kInternal, error_number::kObjectNotSet, error_number::kInvalidUseOfNull}) {
    raised.push_back(RuntimeError(number).Description());
  }
  const Date today(2026, 11, 16);
  for (const Dialect dialect : {Dialect::kSqlServer, Dialect::kJet}) {
    const auto store = SqliteConnection::Open(":memory:", dialect, Region::Spanish(), OpenMode::kCreate);
    CreateSchema(*store);
    store->Execute("INSERT INTO Productos VALUES ('P1', 'Gel')");
    const auto raise = [&](const std::function<void()>& action) {
      try {
        action();
        ADD_FAILURE() << raised.size();
      } catch (const RuntimeError& error) {
        raised.push_back(error.Description());
      }
    };
    const auto open = [&](const std::string& sql, const ConnectionRef& link) {
      const RecordsetRef rows = SqliteRecordsetFactory().NewRecordset();
      rows->Open(sql, link, CursorType::kDynamic, LockType::kOptimistic, kCommandUnspecified);
      return rows;
    };
    for (const char* sql :
         {"SELECT * FROM Nada", "SELECT Nada FROM Productos", "SELECT FROM", "SELECT 'a", "VACUUM",
          "INSERT INTO Productos VALUES ('P1', 'x')", "INSERT INTO Productos VALUES (NULL, 'x')"}) {
      raise([&] { open(sql, store); });
    }
    raise([&] {
      open(dialect == Dialect::kJet ? "SELECT * FROM HistOrvendalcial WHERE Fecha = #32/32/2026#"
                                    : "SELECT * FROM HistOrvendalcial WHERE Fecha = 'ayer'",
           store);
    });
    if (dialect == Dialect::kJet) {
      raise([&] { open("SELECT * FROM HistOrvendalcial WHERE Fecha = 'ayer'", store); });
    }
    raise([&] {
      const RecordsetRef rows = open("SELECT Productos.* FROM Productos", store);
      rows->AddNew();
      rows->Collect("Codigo", std::string(21, 'x'));
      rows->Update();
    });
    raise([&] { open("SELECT Productos.* FROM Productos", store)->AbsolutePosition(0); });
    store->Execute("INSERT INTO ProdSucStock VALUES ('01', 'P1', 9e999)");
    raise([&] { open("SELECT * FROM ProdSucStock", store)->Fields("Stock").Value(); });
    EXPECT_NE(Spanish(raised.back()).find("Stock"), std::string::npos) << "which field has to be put right";
  }
  for (const std::string& description : raised) {
    for (const Language language : {Language::kSpanish, Language::kCatalan, Language::kEnglish}) {
      EXPECT_NE(DescriptionInWords(WordsOf(language), description, kStore), description);
    }
  }
}

class MessagesOfErrors : public HostTest {};

TEST_F(MessagesOfErrors, ASaveThatFailsTellsWhyInTheLanguageOfTheUser) {
  std::string text = "Nº Error:-2147467259\r\nThe store is locked by another program.";
  std::int32_t style = message::kStop;
  std::string title;
  std::int32_t answer = 0;
  library.NewMensajes()->Mostrar(text, style, title, answer);
  context.words = CatalanWords();
  library.NewMensajes()->Mostrar(text, style, title, answer);
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(
      messages.shown[0].text,
      "Nº Error:-2147467259\r\nOtro programa tiene bloqueada la base de datos tienda.db. Inténtelo de nuevo "
      "más tarde.");
  EXPECT_EQ(messages.shown[1].text,
            "Nº Error:-2147467259\r\nUn altre programa té bloquejada la base de dades tienda.db. Torneu-ho a "
            "provar més tard.");
  EXPECT_EQ(text, "Nº Error:-2147467259\r\nThe store is locked by another program.");  // the caller's own
}

}  // namespace
}  // namespace orvendal
