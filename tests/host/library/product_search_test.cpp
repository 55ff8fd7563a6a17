#include "host/library/dialog_design.h"
#include "platform/data/ado_error.h"
#include "platform/forms/option_button.h"
#include "tests/host/host_fixture.h"
#include "tests/support/recording_canvas.h"

namespace orvendal {
namespace {

using Codes = std::vector<std::string>;

class ProductSearch : public HostTest {
 protected:
  // Opens the search and has `hands` use it.
  std::string Search(const std::string& field, const std::string& text, std::function<void(Form&)> hands) {
    host.QueueDialog([this, hands = std::move(hands)](Form& form) {
      grid = &GridOf(form, "MSFResultados");
      box = &BoxOf(form, "TxtBusqueda");
      hands(form);
    });
    ObjectRef screen;
    bool flag = false;
    return library.NewBuscadorProductos()->Buscar(session, screen, "Orvendalcial", field, text, "Modal",
                                                  flag);
  }
  Codes Shown() const { return Column(*grid, 0); }

  static std::string Found(Form& form) {
    return dynamic_cast<Label&>(*form.FindControl("LblEncontrados")).Caption();
  }
  // The rows of which any cell looks chosen, as they are painted.
  std::vector<int> RowsPaintedAsChosen(Form& form) const {
    RecordingCanvas canvas;
    form.Paint(canvas, {0, 0, form.Width(), form.Height()});
    std::vector<int> rows;
    for (int row = 1; row < grid->Rows(); ++row) {
      bool chosen = false;
      for (int column = 0; column < grid->Cols(); ++column) {
        const Rect cell = grid->CellRectangle(row, column);
        const Rect bounds = grid->Bounds();
        const Point corner{bounds.left + cell.left + 30, bounds.top + cell.top + 30};
        chosen = chosen || canvas.FillAt(corner) == host_color;
      }
      if (chosen) rows.push_back(row);
    }
    return rows;
  }

  static void Cancel(Form& form) { Robot(form).Key(key::kEscape); }
  static void Accept(Form& form) { Robot(form).Key(key::kReturn); }

  DatosClaseRef session = std::make_shared<SampleSession>(context, MakeDictionaries(Language::kSpanish));
  MSFlexGrid* grid = nullptr;
  TextBox* box = nullptr;
  const Rgb host_color = host.Resolve(system_color::kHighlight);
};

TEST_F(ProductSearch, StartsFromTheTextGivenOnTheFieldNamed) {
  Search("Descripcion", "champu", [this](Form& form) {
    EXPECT_EQ(box->Text(), "champu");
    EXPECT_TRUE(box->HasFocus());
    EXPECT_EQ(Shown(), (Codes{"CHA02", "CHA01", "PEI01"}));
    Cancel(form);
  });
  Search("Codigo", "cha", [this](Form& form) {
    EXPECT_EQ(Shown(), (Codes{"CHA01", "CHA02"}));
    Cancel(form);
  });
}

TEST_F(ProductSearch, NarrowsAsOneTypesOnAfterTheText) {
  const std::string code = Search("Descripcion", "cham", [this](Form& form) {
    Robot(form).Type("pu k");
    EXPECT_EQ(Shown(), Codes{"CHA01"});
    Accept(form);
  });
  EXPECT_EQ(code, "CHA01");
}

TEST_F(ProductSearch, AnotherEncodingShowsAReplacementSignAndIsChosenAsItIs) {
  store->Execute("INSERT INTO Productos VALUES (CAST(x'4CD131' AS TEXT), CAST(x'436FF161' AS TEXT))");
  const std::string code = Search("Descripcion", "co", [this](Form& form) {
    EXPECT_EQ(Shown(), Codes{"L\uFFFD1"});
    EXPECT_EQ(Column(*grid, 1), Codes{"Co\uFFFDa"});
    Accept(form);
  });
  EXPECT_EQ(code,
            "L\xD1"
            "1");
}

TEST_F(ProductSearch, GivesNothingWhenItIsCancelled) {
  EXPECT_EQ(Search("Codigo", "CHA01", Cancel), "");
  EXPECT_EQ(Search("Codigo", "CHA01",
                   [](Form& form) {
                     Robot robot(form);
                     robot.Click(robot.Find("CmdCancelar"));
                   }),
            "");
  EXPECT_EQ(Search("Codigo", "CHA01", [](Form& form) { form.CloseRequest(); }), "");
}

TEST_F(ProductSearch, MovesInTheListWhileTheBoxKeepsTheFocus) {
  const std::string code = Search("Codigo", "0", [this](Form& form) {
    Robot robot(form);
    robot.Key(key::kDown);
    robot.Key(key::kDown);
    robot.Key(key::kUp);
    EXPECT_TRUE(box->HasFocus());
    EXPECT_EQ(box->CaretPosition(), 1);
    EXPECT_EQ(grid->Row(), 2);
    robot.Key(key::kPageDown);
    EXPECT_EQ(grid->Row(), 5);
    robot.Key(key::kPageUp);
    EXPECT_EQ(grid->Row(), 1);
    robot.Key(key::kDown);
    Accept(form);
  });
  EXPECT_EQ(code, "CHA02");
}

TEST_F(ProductSearch, ShowsTheWholeRowThatWouldBeAccepted) {
  Search("Codigo", "", [this](Form& form) {
    Robot(form).Key(key::kDown);
    for (int row = 1; row < grid->Rows(); ++row) {
      for (int column = 0; column < grid->Cols(); ++column) {
        EXPECT_EQ(grid->CellBackColorAt(row, column), row == 2 ? system_color::kHighlight : 0U);
      }
    }
    Cancel(form);
  });
}

TEST_F(ProductSearch, AcceptsADoubleClickOnARow) {
  const std::string code = Search("Codigo", "", [this](Form& form) {
    Robot robot(form);
    robot.DoubleClickCell(*grid, 3, 1);
  });
  EXPECT_EQ(code, "CRE01");
}

TEST_F(ProductSearch, AClickOnARowChoosesItAndTheButtonAccepts) {
  const std::string code = Search("Codigo", "", [this](Form& form) {
    Robot robot(form);
    robot.ClickCell(*grid, 4, 0);
    robot.Click(robot.Find("CmdAceptar"));
  });
  EXPECT_EQ(code, "LAC01");
}

TEST_F(ProductSearch, ADoubleClickOnTheTitlesOrTheEmptyAreaAcceptsNothing) {
  Search("Codigo", "", [this](Form& form) {
    Robot robot(form);
    robot.DoubleClickCell(*grid, 0, 0);
    const Rect bounds = grid->Bounds();
    robot.DoubleClickAt({bounds.left + 200, bounds.Bottom() - 200});
    EXPECT_TRUE(form.Visible());
    Cancel(form);
  });
}

TEST_F(ProductSearch, WithNothingFoundEnterKeepsItOpen) {
  const std::string code = Search("Descripcion", "no existe", [this](Form& form) {
    Robot robot(form);
    EXPECT_EQ(grid->Rows(), 1);
    EXPECT_FALSE(robot.Find("CmdAceptar").Enabled());
    Accept(form);
    EXPECT_TRUE(form.Visible());
    robot.Key('A', shift_mask::kControl);
    robot.Type("laca");
    Accept(form);
  });
  EXPECT_EQ(code, "LAC01");
}

TEST_F(ProductSearch, CanSearchTheOtherFieldWithTheSameText) {
  const std::string code = Search("Codigo", "c", [this](Form& form) {
    Robot robot(form);
    EXPECT_EQ(Shown(), (Codes{"CHA01", "CHA02", "CRE01", "LAC01"}));
    robot.Click(robot.Find("OptCampo(1)"));
    EXPECT_EQ(Shown(), (Codes{"CHA01", "CHA02", "CRE01", "LAC01", "PEI01"}));
    robot.Key(key::kEnd);
    Accept(form);
  });
  EXPECT_EQ(code, "PEI01");
}

TEST_F(ProductSearch, AWordThatNoCodeHasIsLookedForInTheDescriptions) {
  const std::string code = Search("Codigo", "peine", [this](Form& form) {
    EXPECT_EQ(Shown(), Codes{"PEI01"});
    EXPECT_TRUE(dynamic_cast<OptionButton&>(*form.FindControl("OptCampo(1)")).Value());
    EXPECT_TRUE(box->HasFocus());
    EXPECT_EQ(Found(form), "Por código: ninguno. Por descripción: 1.");
    Accept(form);
  });
  EXPECT_EQ(code, "PEI01");
  Search("Descripcion", "LAC01", [this](Form& form) {
    EXPECT_EQ(Shown(), Codes{"LAC01"});
    EXPECT_EQ(Found(form), "Por descripción: ninguno. Por código: 1.");
    Cancel(form);
  });
}

TEST_F(ProductSearch, WhileTypingItSaysWhatTheOtherFieldHasAndEnterGoesThere) {
  const std::string code = Search("Codigo", "", [this](Form& form) {
    Robot robot(form);
    robot.Type("cham");
    EXPECT_TRUE(Shown().empty());
    EXPECT_EQ(Found(form), "Por código: ninguno. Por descripción: 3.");
    Accept(form);
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(Shown(), (Codes{"CHA01", "CHA02", "PEI01"}));
    robot.Type("pú a");
    Accept(form);
  });
  EXPECT_EQ(code, "CHA02");
}

TEST_F(ProductSearch, AfterAClickOnTheOtherWayTypingAndTheListKeysGoOn) {
  const std::string code = Search("Codigo", "c", [this](Form& form) {
    Robot robot(form);
    robot.Click(robot.Find("OptCampo(1)"));
    EXPECT_TRUE(robot.Find("OptCampo(1)").HasFocus());
    robot.Key(key::kDown);
    EXPECT_EQ(grid->Row(), 2);
    robot.Type("ham");
    EXPECT_EQ(box->Text(), "cham");
    EXPECT_TRUE(box->HasFocus());
    robot.Key(key::kDown);
    robot.Key(key::kDown);
    Accept(form);
  });
  EXPECT_EQ(code, "PEI01");
}

TEST_F(ProductSearch, TheOptionsFollowTheArrowsAndTheBlankOnly) {
  Search("Codigo", "c", [this](Form& form) {
    Robot robot(form);
    robot.Key(key::kTab);
    EXPECT_TRUE(robot.Find("OptCampo(0)").HasFocus());
    robot.Key(key::kRight);
    EXPECT_TRUE(robot.Find("OptCampo(1)").HasFocus());
    EXPECT_EQ(Shown().size(), 5U);
    robot.Key(key::kLeft);
    EXPECT_EQ(Shown().size(), 4U);
    EXPECT_EQ(box->Text(), "c");
    robot.Click(robot.Find("OptCampo(0)"));
    robot.Type(" ");
    EXPECT_EQ(box->Text(), "c");
    robot.Key(key::kBack);
    EXPECT_EQ(box->Text(), "");
    Cancel(form);
  });
}

TEST_F(ProductSearch, OnAButtonTheKeysAreTheButtons) {
  Search("Codigo", "c", [this](Form& form) {
    Robot robot(form);
    robot.Find("CmdCancelar").SetFocus();
    robot.Type("h");
    robot.Key(key::kDown);
    EXPECT_EQ(box->Text(), "c");
    EXPECT_EQ(grid->Row(), 1);
    robot.Key(key::kReturn);
  });
}

TEST_F(ProductSearch, FindsByBarCode) {
  store->Execute(
      "INSERT INTO Referencias VALUES ('8412345678905', 'cre01'), ('8412345000001', 'CRE01'), "
      "('8499999999999', 'LAC01')");
  EXPECT_EQ(Search("Codigo", "8412345678905",
                   [this](Form& form) {
                     EXPECT_EQ(Shown(), Codes{"CRE01"});
                     EXPECT_EQ(grid->Cols(), 2);
                     Accept(form);
                   }),
            "CRE01");
  Search("Codigo", "84", [this](Form& form) {
    EXPECT_EQ(Shown(), (Codes{"CRE01", "LAC01"}));
    Cancel(form);
  });
}

TEST_F(ProductSearch, HomeAndEndGoToTheFirstAndTheLastRow) {
  Search("Codigo", "", [this](Form& form) {
    Robot robot(form);
    robot.ClickCell(*grid, 2, 1);
    robot.Key(key::kEnd);
    EXPECT_EQ(grid->Row(), 5);
    robot.Key(key::kHome);
    EXPECT_EQ(grid->Row(), 1);
    box->SetFocus();
    robot.Key(key::kEnd, shift_mask::kControl);
    EXPECT_EQ(grid->Row(), 5);
    robot.Key(key::kHome);
    EXPECT_EQ(grid->Row(), 5) << "in the box it is the caret's";
    Cancel(form);
  });
}

TEST_F(ProductSearch, OneRowIsChosenByWhateverMeans) {
  const std::string code = Search("Codigo", "", [this](Form& form) {
    Robot robot(form);
    robot.ClickCell(*grid, 2, 1);
    EXPECT_EQ(RowsPaintedAsChosen(form), std::vector<int>{2});
    robot.ClickCell(*grid, 0, 1);
    EXPECT_EQ(RowsPaintedAsChosen(form), std::vector<int>{2}) << "a press on a title";
    robot.Key(key::kDown, shift_mask::kShift);
    EXPECT_EQ(RowsPaintedAsChosen(form), std::vector<int>{3}) << "Shift and an arrow";
    robot.Key(key::kRight, shift_mask::kShift);
    EXPECT_EQ(RowsPaintedAsChosen(form), std::vector<int>{3}) << "Shift to the side";
    const Point from = robot.CellPosition(*grid, 2, 0);
    robot.Press(from);
    form.MouseMove(robot.CellPosition(*grid, 4, 1), mouse_button::kLeft, 0);
    EXPECT_EQ(RowsPaintedAsChosen(form), std::vector<int>{4}) << "a drag";
    form.MouseMove({from.x, grid->Bounds().Bottom() + 1500}, mouse_button::kLeft, 0);
    EXPECT_EQ(RowsPaintedAsChosen(form), std::vector<int>{5}) << "a drag beyond the edge";
    robot.Release(robot.CellPosition(*grid, 5, 1));
    form.MouseMove(from, 0, 0);
    EXPECT_EQ(RowsPaintedAsChosen(form), std::vector<int>{5}) << "the mouse alone";
    Accept(form);
  });
  EXPECT_EQ(code, "PEI01");
}

TEST_F(ProductSearch, TypingInTheListGoesOnInTheBox) {
  Search("Codigo", "C", [this](Form& form) {
    Robot robot(form);
    robot.ClickCell(*grid, 1, 0);
    EXPECT_TRUE(grid->HasFocus());
    robot.Type("RE");
    EXPECT_EQ(box->Text(), "CRE");
    EXPECT_TRUE(box->HasFocus());
    EXPECT_EQ(Shown(), Codes{"CRE01"});
    Cancel(form);
  });
}

TEST_F(ProductSearch, EnterOnTheCancelButtonCancels) {
  EXPECT_EQ(Search("Codigo", "CHA01",
                   [](Form& form) {
                     Robot robot(form);
                     robot.Find("CmdCancelar").SetFocus();
                     robot.Key(key::kReturn);
                   }),
            "");
}

TEST_F(ProductSearch, UnderstandsTheWildcardsThatTheCellEditorTook) {
  Search("Codigo", "CHA0%", [this](Form& form) {
    EXPECT_EQ(Shown(), (Codes{"CHA01", "CHA02"}));
    Cancel(form);
  });
}

TEST_F(ProductSearch, ShowsThousandsOfProductsAtOnceAndSaysHowMany) {
  store->Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2500) "
      "INSERT INTO Productos SELECT 'X' || i, 'Artículo ' || i FROM n");
  Search("Descripcion", "articulo", [this](Form& form) {
    EXPECT_EQ(grid->Rows(), 501);
    EXPECT_EQ(dynamic_cast<Label&>(*form.FindControl("LblEncontrados")).Caption(),
              "Se muestran los primeros 500 de 2500");
    Robot(form).Type(" 2500");
    EXPECT_EQ(Shown(), Codes{"X2500"});
    Cancel(form);
  });
}

TEST_F(ProductSearch, FitsAndStandsInTheMiddleOfAnyScreen) {
  host.SetTakenByFrames(16, 48);
  for (const auto& [width, height] : {std::pair{640, 480}, std::pair{1280, 800}}) {
    host.SetScreen(width, height);
    Search("Codigo", "", [this](Form& form) {
      EXPECT_LE(form.Width(), host.ScreenWidth() - 16 * kTwipsPerPixel);
      EXPECT_LE(form.Height(), host.ScreenHeight() - 48 * kTwipsPerPixel);
      EXPECT_DOUBLE_EQ(form.Left(), (host.ScreenWidth() - form.Width()) / 2);
      EXPECT_DOUBLE_EQ(form.Top(), (host.ScreenHeight() - form.Height()) / 2);
      for (Control* control : form.Controls()) {
        const Rect bounds = control->Bounds();
        EXPECT_GE(bounds.left, 0) << control->FullName();
        EXPECT_LE(bounds.Right(), form.Width()) << control->FullName();
        EXPECT_LE(bounds.Bottom(), form.Height()) << control->FullName();
      }
      Cancel(form);
    });
  }
}

TEST_F(ProductSearch, SpeaksTheLanguageChosen) {
  HostContext english{host, messages, EnglishWords(), recordsets, store, {}, "", "01"};
  StandInLibrary speaking(english);
  std::string title;
  host.QueueDialog([&title](Form& form) {
    title = form.Caption();
    EXPECT_EQ(dynamic_cast<CommandButton&>(*form.FindControl("CmdCancelar")).Caption(), "Cancel");
    Cancel(form);
  });
  ObjectRef screen;
  bool flag = false;
  speaking.NewBuscadorProductos()->Buscar(session, screen, "", "Codigo", "", "Modal", flag);
  EXPECT_EQ(title, "Product Search");
}

TEST_F(ProductSearch, TakesTheConnectionOfAnySession) {
  class OtherSession final : public DatosClase {
   public:
    explicit OtherSession(ConnectionRef connection) : connection_(std::move(connection)) {}
    void RellenarSesion(const SessionArguments& session) override { session.Conexion = connection_; }

   private:
    ConnectionRef connection_;
  };
  host.QueueDialog([](Form& form) { Accept(form); });
  ObjectRef screen;
  bool flag = false;
  const auto number = [&](DatosClaseRef of) {
    try {
      library.NewBuscadorProductos()->Buscar(of, screen, "", "Codigo", "", "Modal", flag);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(number(nullptr), error_number::kObjectNotSet);
  EXPECT_EQ(number(std::make_shared<OtherSession>(nullptr)), ado_error::kInvalidConnection);
  EXPECT_EQ(number(std::make_shared<OtherSession>(store)), 0);
}

}  // namespace
}  // namespace orvendal
