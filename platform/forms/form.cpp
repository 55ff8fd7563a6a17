#include "platform/forms/form.h"

#include "platform/forms/timer.h"

namespace orvendal {

namespace {
constexpr std::int32_t kUnloadWhileLoading = 364;
}

Form::Form(WindowHost& host, std::string name) : host_(host), name_(std::move(name)) {}

Form::~Form() {
  if (host_.active_form_ == this) host_.active_form_ = nullptr;
  if (host_.input_form_ == this) host_.input_form_ = nullptr;
}

Control* Form::FindControl(std::string_view full_name) const {
  for (Control* control : controls_) {
    if (control->FullName() == full_name) return control;
  }
  return nullptr;
}

void Form::Caption(const std::string& caption) {
  caption_ = caption;
  if (window_) window_->CaptionChanged();
}

void Form::BackColor(ColorWord color) {
  back_color_ = color;
  InvalidateArea({0, 0, Width(), Height()});
}

void Form::Move(double left, double top) {
  left_ = left;
  top_ = top;
  if (window_) window_->BoundsChanged();
}

double Form::Width() const {
  return window_state_ == WindowState::kMaximized ? host_.ScreenWidth() : width_;
}
double Form::Height() const {
  return window_state_ == WindowState::kMaximized ? host_.ScreenHeight() : height_;
}

void Form::Width(double twips) {
  if (window_state_ != WindowState::kNormal) throw RuntimeError(error_number::kCannotSetWhileSized);
  if (twips == width_) return;
  width_ = twips;
  SizeWasChanged();
}

void Form::Height(double twips) {
  if (window_state_ != WindowState::kNormal) throw RuntimeError(error_number::kCannotSetWhileSized);
  if (twips == height_) return;
  height_ = twips;
  SizeWasChanged();
}

void Form::SizeWasChanged() {
  LayOutAligned();
  if (window_) window_->BoundsChanged();
  InvalidateArea({0, 0, Width(), Height()});
  if (visible_ && OnResize) OnResize();
}

void Form::WindowState(enum WindowState state) {
  if (state == window_state_) return;
  // The desktop minimises a window, and brings it back, in a call of its own.
  const ObservedInput observed(*this, {.kind = InputEvent::Kind::kState, .position = {}, .state = state});
  window_state_ = state;
  LayOutAligned();
  if (window_) window_->StateChanged(state);
  InvalidateArea({0, 0, Width(), Height()});
  if (visible_ && OnResize) OnResize();
}

void Form::LayOutAligned() {
  double top = 0;
  for (Control* control : controls_) {
    if (control->Container() != nullptr || control->Align() != AlignMode::kTop || !control->Visible())
      continue;
    control->PlaceAligned(0, top, Width());
    top += control->Height();
  }
}

void Form::Load() {
  if (loaded_ || loading_) return;
  const ObjectRef self = shared_from_this();
  loading_ = true;
  ++life_;
  try {
    caption_.clear();
    left_ = top_ = 0;
    window_state_ = WindowState::kNormal;
    for (Control* control : controls_) control->RestoreDefaults();
    ApplyDesign();
    window_ = host_.CreateFormWindow(*this);
    if (OnLoad) OnLoad();
  } catch (...) {
    loading_ = false;
    window_.reset();
    throw;
  }
  loading_ = false;
  loaded_ = true;
}

void Form::Show(ShowMode mode) {
  if (loading_) return;
  const ObjectRef self = shared_from_this();
  Load();
  const std::uint64_t life = life_;
  std::optional<ModalScope> scope;
  if (mode == ShowMode::kModal) scope.emplace(host_, this);

  const bool appears = !visible_;
  visible_ = true;
  const bool activates = mode == ShowMode::kModal ? appears : host_.active_form_ != this;
  if (mode == ShowMode::kModeless) host_.active_form_ = this;
  if (appears) {
    window_->Show();
    if (OnResize) OnResize();
  } else {
    window_->Raise();
  }
  if (StillLoaded(life) && activates && OnActivate) OnActivate();
  if (StillLoaded(life) && appears) SetFocus();
  if (StillLoaded(life)) UpdateCaret();
  if (mode == ShowMode::kModal && StillLoaded(life) && visible_) host_.RunModal(*this);
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  if (window_) window_->Hide();
}

void Form::Unload() {
  if (loading_) throw RuntimeError(kUnloadWhileLoading, "Unable to unload within this context");
  if (!loaded_ || unloading_) return;
  const ObjectRef self = shared_from_this();
  unloading_ = true;
  int cancel = 0;
  try {
    if (OnUnload) OnUnload(cancel);
  } catch (...) {
    unloading_ = false;
    throw;
  }
  unloading_ = false;
  if (cancel != 0) return;

  loaded_ = false;
  visible_ = false;
  active_control_ = nullptr;
  key_target_ = nullptr;
  gesture_ = {};
  wheel_rest_ = {};
  TakeDirtyRectangles();
  ++focus_serial_;
  if (host_.active_form_ == this) host_.active_form_ = nullptr;
  if (host_.input_form_ == this) host_.input_form_ = nullptr;
  for (Control* control : controls_) {
    if (control->Kind() == ControlKind::kTimer) static_cast<Timer*>(control)->Enabled(false);
  }
  window_.reset();
}

void Form::Refresh() {
  if (window_ && visible_) window_->PaintNow();
}

}  // namespace orvendal
