#include "host/library/session_change_form.h"

#include "platform/base/text.h"

namespace orvendal {
namespace {

using namespace dialog_design;

constexpr double kWidth = 6600;
constexpr double kHeight = 6600;
constexpr double kCaptionWidth = 1400;
constexpr double kBoxWidth = 1500;

}  // namespace

SessionChangeForm::SessionChangeForm(HostContext& context, std::vector<BranchName> branches, Session session)
    : Form(context.window_host, "FrmCambio"),
      context_(context),
      branches_(std::move(branches)),
      session_(std::move(session)) {
  keys_.OnKeyDown = [this](int& key_code, int) {
    if (MSFSucursales.HasFocus() && choice_.TakeKey(key_code)) key_code = 0;
  };
  keys_.OnKeyPress = [this](int& key_ascii) {
    if (key_ascii == character::kEscape) Hide();
    if (key_ascii == character::kEnter) Accept();
    if (key_ascii == character::kEscape || key_ascii == character::kEnter) key_ascii = 0;
  };
  choice_.OnAccept = [this] { Accept(); };
  CmdAceptar.OnClick = [this] { Accept(); };
  CmdCancelar.OnClick = [this] { Hide(); };
}

void SessionChangeForm::ApplyDesign() {
  const Words& words = context_.words;
  PlaceDialog(*this, words.session_change, kWidth, kHeight);
  KeyPreview(true);
  const double right = Width() - kMargin;
  const double buttons_top = Height() - kMargin - kButtonHeight;
  const double shift_top = buttons_top - kGap - kLine;
  const double workstation_top = shift_top - kGap - kLine;
  DesignGrid(MSFSucursales, {{words.branch, 1}, {words.name, 3}},
             {kMargin, kMargin, right - kMargin, workstation_top - kGap - kMargin}, 0);
  DesignLabel(LblPuesto, words.workstation, {kMargin, workstation_top + 60, kCaptionWidth, kLine});
  DesignBox(TxtPuesto, {kMargin + kCaptionWidth, workstation_top, kBoxWidth, kLine}, 1);
  DesignLabel(LblTurno, words.shift, {kMargin, shift_top + 60, kCaptionWidth, kLine});
  DesignBox(TxtTurno, {kMargin + kCaptionWidth, shift_top, kBoxWidth, kLine}, 2);
  DesignButton(CmdAceptar, words.accept,
               {right - 2 * kButtonWidth - kGap, buttons_top, kButtonWidth, kButtonHeight}, 3);
  DesignButton(CmdCancelar, words.cancel, {right - kButtonWidth, buttons_top, kButtonWidth, kButtonHeight},
               4);
  TxtPuesto.Text(session_.puesto);
  TxtTurno.Text(session_.turno);
  FillBranches();
}

void SessionChangeForm::FillBranches() {
  const std::string key = Mid(session_.sucursal, 1, 2);
  MSFSucursales.Rows(1 + static_cast<int>(branches_.size()));
  int current = 1;
  for (std::size_t i = 0; i < branches_.size(); ++i) {
    const int row = 1 + static_cast<int>(i);
    MSFSucursales.TextMatrix(row, 0, branches_[i].key);
    MSFSucursales.TextMatrix(row, 1, branches_[i].name);
    if (EqualsIgnoringCase(branches_[i].key, key)) current = row;
  }
  if (branches_.empty()) return;
  MSFSucursales.Row(current);
  choice_.FollowCursor();
}

void SessionChangeForm::Accept() {
  accepted_ = true;
  session_.puesto = TxtPuesto.Text();
  session_.turno = TxtTurno.Text();
  if (!branches_.empty()) {
    const std::string& key = branches_[static_cast<std::size_t>(MSFSucursales.Row() - 1)].key;
    if (!EqualsIgnoringCase(key, Mid(session_.sucursal, 1, 2))) session_.sucursal = key;
  }
  Hide();
}

}  // namespace orvendal
