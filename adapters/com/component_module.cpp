#include "adapters/com/component_module.h"

#include <algorithm>
#include <mutex>
#include <vector>

#include "DllTrevano.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/module_lifetime.h"
#include "adapters/com/com_library.h"
#include "adapters/com/com_session.h"
#include "adapters/com/module_parts.h"
#include "adapters/com/object_bridge.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "session/component_state.h"

namespace orvendal {
namespace {

ComponentModule module_instance;
std::mutex loading;

/// The module stays mapped as long as there are windows of it.
HMODULE PinOwnModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&module_instance),
                     &module);
  return module;
}

}  // namespace

struct ComponentModule::Loaded {
  explicit Loaded(ModuleParts made)
      : parts(std::move(made)),
        objects(*parts.windows, parts.native_window),
        boundary{*parts.windows, *parts.store, objects},
        library(boundary),
        state({*parts.windows, *parts.recordsets, library}) {}
  ~Loaded() { CloseHandle(thread_itself); }
  Loaded(const Loaded&) = delete;
  Loaded& operator=(const Loaded&) = delete;

  /// Whether a form is loaded, or one that no longer is still has an event of its own under way. The mere
  /// instance that a failed load or a library leaves behind is none.
  bool HasLivingForm() {
    std::erase_if(forms, [](const std::weak_ptr<Form>& form) { return form.expired(); });
    return std::any_of(forms.begin(), forms.end(), [this](const std::weak_ptr<Form>& remembered) {
      const std::shared_ptr<Form> form = remembered.lock();
      return form && (form->IsLoaded() || form.use_count() > 1 + NamesOf(form.get()));
    });
  }
  /// How many references the module's own variables hold: the global one, and those that a host may have set.
  long NamesOf(const Object* form) const {
    const DatosComunes& session = state.session;
    const Object* const held[] = {state.form.get(),
                                  session.FormHost1.get(),
                                  session.FormHost2.get(),
                                  session.ObjetoSesion1.get(),
                                  session.ObjetoSesion2.get(),
                                  session.ObjetoSesion3.get(),
                                  session.ObjetoSesion4.get()};
    return static_cast<long>(std::count(std::begin(held), std::end(held), form));
  }
  void Remember(const std::shared_ptr<Form>& form) {
    const bool known = std::any_of(forms.begin(), forms.end(),
                                   [&](const std::weak_ptr<Form>& other) { return other.lock() == form; });
    if (form && !known) forms.push_back(form);
  }

  bool IsMine() const { return thread == GetCurrentThreadId() && !ThreadIsGone(); }
  bool ThreadIsGone() const { return WaitForSingleObject(thread_itself, 0) == WAIT_OBJECT_0; }

  const DWORD thread = GetCurrentThreadId();
  const HANDLE thread_itself = OpenThread(SYNCHRONIZE, FALSE, thread);
  ModuleParts parts;
  ObjectBridge objects;
  Boundary boundary;
  ComLibrary library;
  ComponentState state;
  std::vector<std::weak_ptr<Form>> forms;  // all that were ever shown; HasLivingForm drops the expired ones
  HMODULE pin = PinOwnModule();
};

ComponentModule& ComponentModule::Instance() noexcept {
  return module_instance;
}

ComponentModule::Loaded& ComponentModule::LoadedState() {
  const std::lock_guard<std::mutex> guard(loading);
  // A thread that ended has taken its windows with it, and no other may touch the references that it held:
  // they stay, and so does the module, but the next thread begins anew.
  if (!loaded_ || loaded_->ThreadIsGone()) loaded_ = new Loaded(MakeModuleParts());
  if (!loaded_->IsMine()) {
    ForgetErrorInformation();
    throw ErrorOfResult(RPC_E_WRONG_THREAD);
  }
  return *loaded_;
}

bool ComponentModule::Orvendal(_DatosClase* datos_clase, const std::string& suc, const std::string& puest,
                               const std::string& turn) {
  const module_lifetime::Hold hold;
  Loaded& loaded = LoadedState();
  DatosClaseRef session;
  if (datos_clase) session = std::make_shared<ComSession>(loaded.boundary, datos_clase);
  struct RememberForm {
    Loaded& loaded;
    ~RememberForm() { loaded.Remember(loaded.state.form); }
  } const remember{loaded};
  return ClassOrvendal(loaded.state).Orvendal(session, suc, puest, turn);
}

bool ComponentModule::HasState() const noexcept {
  const std::lock_guard<std::mutex> guard(loading);
  return loaded_ != nullptr;
}

bool ComponentModule::IsFree() const noexcept {
  return module_lifetime::IsFree() && !(still_in_use_ && still_in_use_());
}

bool ComponentModule::LetGoIfUnused() noexcept {
  if (!module_lifetime::IsFree()) return false;
  Loaded* dropped = nullptr;
  {
    const std::lock_guard<std::mutex> guard(loading);
    if (!loaded_) return IsFree();
    if (!loaded_->IsMine() || loaded_->HasLivingForm()) return false;
    dropped = std::exchange(loaded_, nullptr);
  }
  const HMODULE pin = dropped->pin;
  still_in_use_ = dropped->parts.windows_in_use;
  {
    // What the session holds may ask again whether the module can go while it is let go itself.
    const module_lifetime::Hold hold;
    delete dropped;
  }
  const bool free = IsFree() && !HasState();  // the host may have called again while it was let go
  if (pin) FreeLibrary(pin);                  // the caller's own reference remains
  return free;
}

}  // namespace orvendal
