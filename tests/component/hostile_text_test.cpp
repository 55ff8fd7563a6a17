#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/stored_counts.h"

namespace orvendal {
namespace {

using namespace testing_support;

// A text that nobody meant for a screen, and how it is called here.
struct HostileText {
  const char* name;
  std::string text;
};

std::string Repeated(std::string_view text, std::size_t bytes) {
  std::string all;
  while (all.size() < bytes) all += text;
  return all;
}

constexpr std::size_t kLong = 1 << 16;

std::vector<HostileText> HostileTexts() {
  constexpr std::size_t kMebibyte = 1 << 20;
  using namespace std::string_literals;
  return {
      {"Quote", "O'Neill"},
      {"DoubleQuote", "24\" \"\" \""},
      {"EndOfStatement", "x'; DELETE FROM HistOrvendalcial; --"},
      {"AlwaysTrue", "' OR '1'='1"},
      {"Union", "' UNION SELECT Codigo, Nombre FROM Empleados --"},
      {"Percent", "%"},
      {"Underscores", "__"},
      {"Bracket", "[A-Z"},
      {"ClosedBracket", "[!]]%["},
      {"Semicolons", ";;;"},
      {"Comment", "/* "},
      {"DateLiteral", "#01/02/2026#"},
      {"Parameter", "?1 @a :b $c"},
      {"Nul", "P1\0P2"s},
      {"OnlyNul", "\0"s},
      {"LoneBytes", "\xFF\xFE\x80 P1"},
      {"CutSequence", "P1\xE2\x82"},
      {"LoneSurrogate", "\xED\xA0\x80\xED\xB0\x80"},
      {"CombiningMarks", "e\xCC\x81\xCC\x81\xCC\x81\xCC\x81\xCC\xA7"},
      {"RightToLeft",
       "\xE2\x80\xAE"
       "abc \xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D\xE2\x80\xAC"},
      {"BeyondThePlane", "\xF0\x9F\x92\x87 \xF4\x8F\xBF\xBF"},
      {"ControlCharacters", "\x1B[2J\x07\x7F\x01"},
      {"LineBreaks", "P1\r\nP2\tP3\n"},
      {"Blanks", "   \xC2\xA0  "},
      {"HugeNumber", "1e999"},
      {"NotANumber", "nan"},
      {"MebibyteOfLetters", Repeated("x", kMebibyte)},
      {"MebibyteOfQuotes", Repeated("'", kMebibyte)},
      {"MebibyteOfWildcards", Repeated("%_[", kMebibyte)},
  };
}

// A way by which a text gets in while a count goes on.
struct Door {
  const char* name;
  void (*send)(FormDriver& screen, const std::string& text);

  friend void PrintTo(const Door& door, std::ostream* out) { *out << door.name; }
};

// Opens the editor there, unless it is open there already.
void GoTo(FormDriver& screen, int row, int column) {
  const MSFlexGrid& grid = screen.form().MSFProductos;
  const bool is_there = grid.Row() == row && grid.Col() == column;
  if (!screen.form().TxtMSF.Visible() || !is_there) screen.DoubleClickCell(row, column);
}

void Paste(FormDriver& screen, int row, int column, const std::string& text) {
  GoTo(screen, row, column);
  screen.host.ClipboardText(text);
  screen.Key('A', shift_mask::kControl);
  screen.Key('V', shift_mask::kControl);
  screen.library.QueueProduct("");
  screen.Enter();
}

void Put(FormDriver& screen, const std::string& sql, const std::string& text) {
  SqliteStatement statement(*screen.connection, sql);
  statement.Bind(1, text).Run();
}

// Deletes the other lines.
void KeepOnly(FormDriver& screen, const std::string& code) {
  for (int row = 1; row <= static_cast<int>(screen.Codes().size());) {
    if (screen.Cell(row, column::kCode) == code) {
      ++row;
      continue;
    }
    screen.ClickCell(row, column::kCode);
    screen.Click("LblBorrar");
  }
}

// The host calls once more; what the call raises goes to the host.
void CallAgain(FormDriver& screen, const std::string& branch, const std::string& station,
               const std::string& shift) {
  try {
    screen.Open(branch, station, shift);
  } catch (const RuntimeError&) {
  }
}

void CloseAndCall(FormDriver& screen, const std::string& branch) {
  screen.library.QueueAnswer(message::kNo);
  screen.form().Barra1_Cerrar();
  CallAgain(screen, branch, "P1", "T1");
}

const std::vector<Door>& Doors() {
  static const std::vector<Door> doors = {
      {"TypedCode",
       [](FormDriver& screen, const std::string& text) {
         constexpr std::size_t kPatience = 2000;  // characters
         GoTo(screen, 2, column::kCode);
         for (int answers = 0; answers < 4; ++answers) screen.library.QueueProduct("");
         screen.Type(text.substr(0, kPatience));
         screen.Enter();
       }},
      {"PastedCode",
       [](FormDriver& screen, const std::string& text) { Paste(screen, 2, column::kCode, text); }},
      {"PastedDescription",
       [](FormDriver& screen, const std::string& text) { Paste(screen, 2, column::kDescription, text); }},
      {"PastedQuantity",
       [](FormDriver& screen, const std::string& text) {
         Paste(screen, 1, column::kQuantity, text);
         screen.Click("LblGuardar");
         if (screen.Codes().empty()) return;
         GoTo(screen, 1, column::kQuantity);
         screen.Key('A', shift_mask::kControl);
         screen.Type("5");
         screen.Enter();
       }},
      {"FoundProduct",
       [](FormDriver& screen, const std::string& text) {
         GoTo(screen, 2, column::kCode);
         screen.library.QueueProduct(text);
         screen.Type("NADA");
         screen.Enter();
       }},
      {"SearchedProduct",
       [](FormDriver& screen, const std::string& text) {
         GoTo(screen, 2, column::kCode);
         screen.library.QueueProduct(text);
         screen.Click("LblBuscar");
       }},
      {"PickedCode",
       [](FormDriver& screen, const std::string& text) {
         screen.ChooseStylist(text, "Ana");
         screen.EnterLine("P2", "3");
         screen.Click("LblGuardar");
       }},
      {"PickedName",
       [](FormDriver& screen, const std::string& text) {
         screen.ChooseStylist("E1", text);
         screen.EnterLine("P2", "3");
         screen.Click("LblGuardar");
       }},
      {"FormattedDate",
       [](FormDriver& screen, const std::string& text) {
         screen.plain_library.date_text = text;
         CloseAndCall(screen, "01");
         screen.plain_library.date_text.reset();
         CloseAndCall(screen, "01");
       }},
      {"DescriptionInTheStore",
       [](FormDriver& screen, const std::string& text) {
         Put(screen, "UPDATE Productos SET Descripcion = ? WHERE Codigo = 'P2'", text);
         screen.EnterLine("P2", "3");
       }},
      {"CodeInTheStore",
       [](FormDriver& screen, const std::string& text) {
         Put(screen, "INSERT INTO Productos (Codigo, Descripcion) VALUES (?, 'Producto')", text);
         GoTo(screen, 2, column::kCode);
         screen.library.QueueProduct(text);
         screen.Click("LblBuscar");
       }},
      {"BranchNameInTheStore",
       [](FormDriver& screen, const std::string& text) {
         Put(screen, "UPDATE Sucursales SET Nombre = ? WHERE Sucursal = '01'", text);
         CloseAndCall(screen, "01");
       }},
      {"StylistNameInTheStore",
       [](FormDriver& screen, const std::string& text) {
         Put(screen, "UPDATE Empleados SET Nombre = ? WHERE Codigo = 'E2'", text);
         screen.AddCount("P40", 1, 2, "E2");
         CloseAndCall(screen, "01");
       }},
      {"Words",
       [](FormDriver& screen, const std::string& text) {
         for (const char* key : {"Cancelar", "Buscar", "Estilista", "Fecha", "Codigo", "Descripcion"}) {
           screen.session->general->Set(key, text);
         }
         screen.session->actions->Set("Supervisor", text);
         screen.session->screens->Set("Orvendalciales", text);
         CloseAndCall(screen, "01");
       }},
      {"BranchOfTheCall", [](FormDriver& screen, const std::string& text) { CloseAndCall(screen, text); }},
      {"BranchOfASecondCall",
       [](FormDriver& screen, const std::string& text) { CallAgain(screen, text, "P1", "T1"); }},
      {"StationAndShift",
       [](FormDriver& screen, const std::string& text) { CallAgain(screen, "01", text, text); }},
  };
  return doors;
}

class HostileTextTest : public testing::TestWithParam<Door> {
 protected:
  static std::string OtherDays(FormDriver& screen) {
    return screen.Sql(
               "SELECT group_concat(IdSucursal || IdProducto || StockAnterior || StockActual || IdEmpleado "
               "|| "
               "Actualizado || ModificadoPor) FROM HistOrvendalcial WHERE Fecha <> '2026-11-16 00:00:00'") +
           screen.Sql("SELECT count(*) || total(Stock) FROM ProdSucStock");
  }
};

TEST_P(HostileTextTest, EndsNothingTouchesNoOtherDayAndACountGoesOnAfterwards) {
  for (const Dialect dialect : {Dialect::kSqlServer, Dialect::kJet}) {
    for (const HostileText& hostile : HostileTexts()) {
      // The dialects differ in wildcards, not in length.
      if (dialect == Dialect::kJet && hostile.text.size() > kLong && hostile.text.front() != '%') continue;
      SCOPED_TRACE(std::string(hostile.name) + (dialect == Dialect::kJet ? " jet" : ""));
      FormDriver screen(dialect);
      screen.AddCount("P11", 1, 2, "E1", "2026-11-15");
      screen.AddCount("P12", 3, 4, "E2", "2026-11-17");
      screen.AddCount("P13", 5, 6, "E3", "2026-11-15", "02");
      const std::string other_days = OtherDays(screen);
      screen.OpenWithStylist();
      screen.EnterLine("P1", "5");

      GetParam().send(screen, hostile.text);
      EXPECT_EQ(OtherDays(screen), other_days);

      // The screen is there, or comes back at once; the header may have been emptied by a save.
      if (!screen.HasForm() || screen.form().Barra1.Visible()) screen.Open();
      ASSERT_TRUE(screen.HasForm());
      if (screen.form().TxtMSF.Visible()) {
        screen.form().TxtMSF.SetFocus();  // a Tab of the text may have moved it on
        screen.Key(key::kEscape);
      }
      if (screen.form().TxtEmpleado.Text().empty()) screen.ChooseStylist("E1", "Ana");
      ASSERT_FALSE(screen.form().TxtEmpleado.Text().empty());
      KeepOnly(screen, "P1");
      if (screen.Codes().empty()) screen.EnterLine("P1", "5");
      screen.EnterLine("P3", "4");
      ASSERT_EQ(screen.Codes(), (std::vector<std::string>{"P1", "P3"}));
      EXPECT_EQ(screen.Cell(1, 3), "5");
      screen.Click("LblGuardar");
      EXPECT_EQ(StoredCodes(screen, "Fecha = '2026-11-16 00:00:00' AND IdSucursal = '01'"), "P1 P3");
      EXPECT_EQ(OtherDays(screen), other_days);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Doors, HostileTextTest, testing::ValuesIn(Doors()),
                         [](const auto& door) { return std::string(door.param.name); });

}  // namespace
}  // namespace orvendal
