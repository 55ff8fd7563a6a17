#include "host/library/workstation_form.h"

#include "host/error_words.h"
#include "host/library/branch_names.h"
#include "host/store/sample_mark.h"
#include "platform/base/text.h"
#include "platform/library/library.h"

namespace orvendal {
namespace {

using namespace dialog_design;

constexpr double kWidth = 8100;
constexpr double kCaptionWidth = 1800;
constexpr int kRows = 5;
constexpr double kRowStep = kLine + kGap;
constexpr double kHeight = 2 * kMargin + kRows * kRowStep + 2 * kLine + kGap + kButtonHeight;

// The code, and the name that the store has for it.
std::string BranchText(const HostContext& context, const ConnectionRef& store) {
  const std::string key = Mid(context.sucursal, 1, 2);
  for (const BranchName& branch : ReadBranches(context, store)) {
    if (EqualsIgnoringCase(branch.key, key)) return context.sucursal + " " + branch.name;
  }
  return context.sucursal;
}

}  // namespace

WorkstationForm::WorkstationForm(HostContext& context, ConnectionRef store, std::string puesto)
    : Form(context.window_host, "FrmPuesto"),
      context_(context),
      store_(std::move(store)),
      puesto_(std::move(puesto)) {
  keys_.OnKeyPress = [this](int& key_ascii) {
    if (key_ascii != character::kEscape) return;
    key_ascii = 0;
    Hide();
  };
  CmdReconectar.OnClick = [this] { Reconnect(); };
  CmdCerrar.OnClick = [this] { Hide(); };
}

void WorkstationForm::ApplyDesign() {
  const Words& words = context_.words;
  PlaceDialog(*this, words.workstation_panel, kWidth, kHeight);
  KeyPreview(true);
  DesignRow(0, LblSucursal, words.branch, TxtSucursal);
  DesignRow(1, LblPuesto, words.workstation, TxtPuesto);
  DesignRow(2, LblTurno, words.shift, TxtTurno);
  DesignRow(3, LblBase, words.store, TxtBase);
  DesignRow(4, LblProveedor, words.provider, TxtProveedor);
  const double right = Width() - kMargin;
  const double buttons_top = Height() - kMargin - kButtonHeight;
  DesignLabel(LblEstado, "", {kMargin, kMargin + kRows * kRowStep, right - kMargin, kLine});
  DesignLabel(LblMuestra, "", {kMargin, kMargin + kRows * kRowStep + kLine, right - kMargin, kLine});
  DesignButton(CmdReconectar, words.reconnect,
               {right - 2 * kButtonWidth - kGap, buttons_top, kButtonWidth, kButtonHeight}, 0);
  DesignButton(CmdCerrar, words.close, {right - kButtonWidth, buttons_top, kButtonWidth, kButtonHeight}, 1);
  CmdReconectar.Enabled(static_cast<bool>(context_.reopen_store));
  ShowValues(words.store_open);
}

void WorkstationForm::DesignRow(int row, Label& label, std::string_view caption, TextBox& box) {
  const double top = kMargin + row * kRowStep;
  const double left = kMargin + kCaptionWidth;
  DesignLabel(label, caption, {kMargin, top + 60, kCaptionWidth, kLine});
  DesignBox(box, {left, top, Width() - kMargin - left, kLine}, 2 + row);
  box.Locked(true);
  box.BackColor(system_color::kButtonFace);
}

void WorkstationForm::ShowValues(std::string_view state) {
  TxtPuesto.Text(puesto_);
  TxtTurno.Text(context_.turno);
  TxtBase.Text(context_.store_name);
  try {
    TxtSucursal.Text(context_.sucursal);
    TxtProveedor.Text(store_ ? store_->Provider() : std::string());
    TxtSucursal.Text(BranchText(context_, store_));
    LblEstado.Caption(std::string(state));
    const std::string_view sample = context_.words.get().sample_chain;
    LblMuestra.Caption(SaysItIsMadeUp(context_.recordsets, store_) ? std::string(sample) : std::string());
  } catch (const RuntimeError& error) {
    LblEstado.Caption(DescriptionInWords(context_.words, error.Description(), context_.store_name));
  }
}

// A save would delete the day and then fail: nothing more is read or written there until it is opened again.
void WorkstationForm::GiveUpStore() {
  try {
    if (store_) store_->Close();
  } catch (const RuntimeError&) {
    store_ = nullptr;  // it would stay open
  }
  context_.connection = store_;
  TxtProveedor.Text("");
  LblMuestra.Caption("");
  LblEstado.Caption(std::string(context_.words.get().store_given_up));
}

void WorkstationForm::TellWhyNot(const StoreUnavailable& error) {
  const ModalScope scope(Host());
  context_.messages.Present(error.Description(), message::kStop, Caption());
}

void WorkstationForm::Reconnect() {
  try {
    store_ = context_.reopen_store();
  } catch (const StoreDoesNotFit& error) {
    GiveUpStore();
    TellWhyNot(error);
    return;
  } catch (const StoreUnavailable& error) {
    TellWhyNot(error);
    return;
  }
  context_.connection = store_;
  ShowValues(context_.words.get().store_opened_anew);
}

}  // namespace orvendal
