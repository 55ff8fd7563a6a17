#include "adapters/com/identity.h"
#include "form/columns.h"
#include "tests/adapters/com/com_world.h"
#include "tests/adapters/com/invoke_client.h"

namespace orvendal {
namespace {

constexpr HRESULT kError91 = static_cast<HRESULT>(0x800A005B);

class AutomationTest : public ComWorld {
 protected:
  /// The form as the library gets it, through the search dialog's argument.
  ComPtr<IDispatch> FormObject() {
    ComPtr<IDispatch> object;
    behaviour.search = [&](_DatosClase**, IDispatch** given, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*,
                           BSTR*) {
      object = ComPtr<IDispatch>(*given);
      return S_OK;
    };
    OpenEditor();
    hands().Type("NADA\n");
    return object;
  }
  /// The box as the filter gets it.
  ComPtr<IDispatch> BoxObject() {
    ComPtr<IDispatch> object;
    behaviour.filter_key = [&](IDispatch** box, SHORT*, VARIANT_BOOL*, SHORT*) {
      object = ComPtr<IDispatch>(*box);
      return S_OK;
    };
    OpenEditor();
    form().TxtMSF.Text("");
    hands().Type("P1\n5");
    EXPECT_TRUE(object);
    return object;
  }
  void OpenEditor() {
    if (form().TxtMSF.Visible()) return;
    hands().ClickCell(form().MSFProductos, 1, column::kCode);
    hands().DoubleClickCell(form().MSFProductos, 1, column::kCode);
  }
  void TearDown() override {
    text_.clear();
    ComWorld::TearDown();
  }
  VARIANT Text(const wchar_t* text) {
    text_.push_back(std::make_unique<BstrCell>(Utf8Text(text)));
    return Argument(text_.back()->Get());
  }

 private:
  std::vector<std::unique_ptr<BstrCell>> text_;
};

TEST_F(AutomationTest, TheFormTellsItsNameCaptionPlaceAndState) {
  Open();
  const ComPtr<IDispatch> object = FormObject();
  InvokeClient client(object.Get());
  EXPECT_EQ(client.Get(L"name"), S_OK);
  EXPECT_EQ(client.ResultText(), "FrmOrvendalciales");
  EXPECT_EQ(client.Get(L"Width"), S_OK);
  EXPECT_EQ(V_R8(&client.result), form().Width());
  EXPECT_EQ(client.Get(L"Visible"), S_OK);
  EXPECT_EQ(V_BOOL(&client.result), VARIANT_TRUE);
  EXPECT_EQ(client.Get(L"WindowState"), S_OK);
  EXPECT_EQ(V_I4(&client.result), 0);
  EXPECT_EQ(client.Get(L"hWnd"), S_OK);
  EXPECT_EQ(V_I4(&client.result), 4711);
  EXPECT_EQ(client.Put(L"Caption", Text(L"Año")), S_OK);
  EXPECT_EQ(form().Caption(), "Año");
  EXPECT_EQ(client.Put(L"Left", Argument(LONG{300})), S_OK);
  EXPECT_EQ(form().Left(), 300);
}

TEST_F(AutomationTest, TheFormCanBeHiddenShownMovedAndFocused) {
  Open();
  const ComPtr<IDispatch> object = FormObject();
  InvokeClient client(object.Get());
  EXPECT_EQ(client.Get(L"Hide"), S_OK);
  EXPECT_FALSE(form().Visible());
  EXPECT_EQ(client.Get(L"Show"), S_OK);
  EXPECT_TRUE(form().Visible());
  EXPECT_EQ(client.Get(L"Move", {Argument(LONG{15}), Argument(LONG{30})}), S_OK);
  EXPECT_EQ(form().Left(), 15);
  EXPECT_EQ(form().Top(), 30);
  EXPECT_EQ(client.Get(L"SetFocus"), S_OK);
  EXPECT_EQ(client.Put(L"WindowState", Argument(LONG{2})), S_OK);
  EXPECT_EQ(form().WindowState(), WindowState::kMaximized);
  EXPECT_EQ(client.Put(L"WindowState", Argument(LONG{5})), DISP_E_EXCEPTION);
  EXPECT_EQ(client.exception.scode, static_cast<HRESULT>(0x800A0000 + 380));
}

TEST_F(AutomationTest, TheFormIsOneObjectAndAnswersToItsPrivateInterface) {
  Open();
  const ComPtr<IDispatch> first = FormObject();
  const ComPtr<IDispatch> second = FormObject();
  EXPECT_EQ(first.Get(), second.Get());
  EXPECT_TRUE(first.Query<IUnknown>(identity::kFormInterface));
  EXPECT_FALSE(first.Query<IUnknown>(IID_IStream));
}

TEST_F(AutomationTest, ControlsComeByNameByCollectionAndByArray) {
  Open();
  const ComPtr<IDispatch> object = FormObject();
  InvokeClient client(object.Get());
  ASSERT_EQ(client.Get(L"TxtEmpleado"), S_OK);
  InvokeClient box(V_DISPATCH(&client.result));
  EXPECT_EQ(box.Get(L"Text"), S_OK);
  EXPECT_EQ(box.ResultText(), "Ana");
  ASSERT_EQ(client.Get(L"Controls", {Text(L"txtempleado")}), S_OK);
  EXPECT_EQ(V_DISPATCH(&client.result), box.Same());
  ASSERT_EQ(client.Get(L"LblNuevo", {Argument(LONG{1})}), S_OK);
  InvokeClient label(V_DISPATCH(&client.result));
  EXPECT_EQ(label.Get(L"Index"), S_OK);
  EXPECT_EQ(V_I4(&label.result), 1);
  EXPECT_EQ(client.Get(L"LblNuevo"), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(client.Get(L"Controls", {Text(L"Nada")}), DISP_E_EXCEPTION);
  EXPECT_EQ(client.exception.scode, static_cast<HRESULT>(0x800A0000 + 730));
}

TEST_F(AutomationTest, ForEachWalksEveryControl) {
  Open();
  const ComPtr<IDispatch> object = FormObject();
  InvokeClient client(object.Get());
  ASSERT_EQ(client.Get(L"Controls"), S_OK);
  InvokeClient controls(V_DISPATCH(&client.result));
  ASSERT_EQ(controls.Get(L"Count"), S_OK);
  EXPECT_EQ(V_I4(&controls.result), static_cast<LONG>(form().Controls().size()));
  ASSERT_EQ(controls.Get(L"_NewEnum"), S_OK);
  ComPtr<IEnumVARIANT> walk;
  ASSERT_EQ(V_UNKNOWN(&controls.result)->QueryInterface(IID_IEnumVARIANT, walk.ReceiveVoid()), S_OK);
  std::size_t count = 0;
  VARIANT item;
  while (walk->Next(1, &item, nullptr) == S_OK) {
    ++count;
    EXPECT_EQ(V_VT(&item), VT_DISPATCH);
    VariantClear(&item);
  }
  EXPECT_EQ(count, form().Controls().size());
}

TEST_F(AutomationTest, TheBoxGivesAndTakesItsTextAndSelection) {
  Open();
  const ComPtr<IDispatch> object = BoxObject();
  InvokeClient box(object.Get());
  EXPECT_EQ(box.Get(L"Name"), S_OK);
  EXPECT_EQ(box.ResultText(), "TxtMSF");
  EXPECT_EQ(box.Put(L"Text", Text(L"12,5")), S_OK);
  EXPECT_EQ(form().TxtMSF.Text(), "12,5");
  EXPECT_EQ(box.Put(L"SelStart", Argument(LONG{1})), S_OK);
  EXPECT_EQ(box.Put(L"SelLength", Argument(LONG{2})), S_OK);
  EXPECT_EQ(box.Get(L"SelText"), S_OK);
  EXPECT_EQ(box.ResultText(), "2,");
  EXPECT_EQ(box.Put(L"SelStart", Argument(LONG{-1})), DISP_E_EXCEPTION);
  EXPECT_EQ(box.exception.scode, static_cast<HRESULT>(0x800A0000 + 380));
  EXPECT_EQ(box.Put(L"Enabled", OfType(VT_EMPTY)), S_OK);
  EXPECT_FALSE(form().TxtMSF.Enabled());
  EXPECT_EQ(box.Get(L"Parent"), S_OK);
  InvokeClient parent(V_DISPATCH(&box.result));
  EXPECT_EQ(parent.Get(L"Name"), S_OK);
  EXPECT_EQ(parent.ResultText(), "FrmOrvendalciales");
}

TEST_F(AutomationTest, MembersThatAKindDoesNotHaveAreError438) {
  Open();
  const ComPtr<IDispatch> object = FormObject();
  InvokeClient client(object.Get());
  ASSERT_EQ(client.Get(L"MSFProductos"), S_OK);
  InvokeClient grid(V_DISPATCH(&client.result));
  EXPECT_EQ(grid.Get(L"Text"), DISP_E_EXCEPTION);
  EXPECT_EQ(grid.exception.scode, static_cast<HRESULT>(0x800A0000 + 438));
  EXPECT_EQ(grid.Get(L"Nada"), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(grid.IdOf(L"Nada"), DISPID_UNKNOWN);
  EXPECT_EQ(grid.Put(L"Name", Text(L"x")), DISP_E_MEMBERNOTFOUND);
}

TEST_F(AutomationTest, WrongArgumentsAreToldSo) {
  Open();
  const ComPtr<IDispatch> object = FormObject();
  InvokeClient client(object.Get());
  EXPECT_EQ(client.Put(L"Width", Text(L"ancho")), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(client.wrong, 0U);
  EXPECT_EQ(client.Get(L"Move"), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(client.Get(L"Hide", {Argument(LONG{1})}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(client.Get(L"Caption", {Argument(LONG{1})}), DISP_E_BADPARAMCOUNT);
  ASSERT_EQ(client.Get(L"TxtEmpleado"), S_OK);
  InvokeClient box(V_DISPATCH(&client.result));
  EXPECT_EQ(box.Get(L"Text", {Argument(LONG{1})}), DISP_E_BADPARAMCOUNT);
  ASSERT_EQ(client.Get(L"Controls"), S_OK);
  InvokeClient controls(V_DISPATCH(&client.result));
  EXPECT_EQ(controls.Get(L"Count", {Argument(LONG{1})}), DISP_E_BADPARAMCOUNT);
}

TEST_F(AutomationTest, WhatIsKeptAfterTheFormIsGoneAnswersError91) {
  Open();
  const ComPtr<IDispatch> form_object = FormObject();
  const ComPtr<IDispatch> box_object = BoxObject();
  InvokeClient form_client(form_object.Get());
  ASSERT_EQ(form_client.Get(L"Controls"), S_OK);
  InvokeClient controls(V_DISPATCH(&form_client.result));
  behaviour.show = [](BSTR*, LONG*, BSTR*, LONG* answer) {
    *answer = message::kNo;
    return S_OK;
  };
  CloseForm();
  ASSERT_EQ(windows->ActiveForm(), nullptr);
  InvokeClient box(box_object.Get());
  for (const wchar_t* const member :
       {L"Name", L"Caption", L"Show", L"Hide", L"SetFocus", L"Controls", L"hWnd"}) {
    EXPECT_EQ(form_client.Get(member), DISP_E_EXCEPTION);
    EXPECT_EQ(form_client.exception.scode, kError91);
  }
  EXPECT_EQ(box.Get(L"Text"), DISP_E_EXCEPTION);
  EXPECT_EQ(box.exception.scode, kError91);
  EXPECT_EQ(box.Put(L"Text", Text(L"x")), DISP_E_EXCEPTION);
  EXPECT_EQ(controls.Get(L"Count"), DISP_E_EXCEPTION);

  Open();
  const ComPtr<IDispatch> next = FormObject();
  EXPECT_NE(next.Get(), form_object.Get());
}

TEST_F(AutomationTest, AFormHiddenInTheMiddleOfALibraryCallIsNoHarm) {
  Open();
  behaviour.filter_key = [&](IDispatch** box, SHORT*, VARIANT_BOOL*, SHORT*) {
    InvokeClient client(*box);
    EXPECT_EQ(client.Put(L"Text", Text(L"77")), S_OK);
    EXPECT_EQ(client.Get(L"Parent"), S_OK);
    InvokeClient parent(V_DISPATCH(&client.result));
    EXPECT_EQ(parent.Get(L"Hide"), S_OK);
    return S_OK;
  };
  OpenEditor();
  hands().Type("P1\n5");
  EXPECT_FALSE(form().Visible());
}

}  // namespace
}  // namespace orvendal
