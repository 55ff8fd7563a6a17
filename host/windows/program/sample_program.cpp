#include "host/windows/program/sample_program.h"

#include <filesystem>

#include "DllOrvendal.h"
#include "DllTrevano.h"
#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/type_information.h"
#include "adapters/win32/windows_api.h"
#include "host/ending/explained_end.h"
#include "host/sample/chosen_store.h"
#include "host/store/default_store.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

/// COM on this thread.
class Apartment {
 public:
  Apartment() { Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

template <typename Interface>
ComPtr<Interface> Create(REFCLSID class_id, const char* file, const Words& words) {
  ComPtr<Interface> object;
  if (FAILED(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface),
                              object.ReceiveVoid()))) {
    throw RuntimeError(ado_error::kUnspecified, Fill(words.part_missing, {file}));
  }
  return object;
}

/// The store named, else one beside the program, else the user's own, which has no name here.
std::string StoreFor(const Options& options, const Words& words) {
  if (options.store) {
    const ChosenStore chosen = ChooseStore(options, DefaultStore(), words);
    CheckChosenStore(chosen, words);
    return chosen.path;
  }
  const std::filesystem::path beside = std::filesystem::path(OwnPath()).replace_filename("cadena.db");
  std::error_code ignored;
  return std::filesystem::is_regular_file(beside, ignored) ? Utf8Text(beside.wstring()) : std::string();
}

ComPtr<_SampleSession> MakeSession(const Options& options, const Words& words) {
  auto session = Create<_SampleSession>(__uuidof(::DatosClase), "DllTrevano.dll", words);
  const char* const languages[] = {"es", "ca", "en"};
  Check(session->put_Language(BstrCell(languages[static_cast<int>(options.language)]).Get()));
  Check(session->put_Dialect(BstrCell(options.dialect == Dialect::kJet ? "jet" : "sqlserver").Get()));
  Check(session->put_Workstation(BstrCell(options.puesto).Get()));
  Check(session->put_Shift(BstrCell(options.turno).Get()));
  Check(session->put_BaseWidth(options.base_width));
  Check(session->put_BaseHeight(options.base_height));
  Check(session->OpenStore(BstrCell(StoreFor(options, words)).Get()));
  return session;
}

void CallComponent(const Options& options, const Words& words, _SampleSession* session) {
  const auto component = Create<_ClassOrvendal>(__uuidof(::ClassOrvendal), "DllOrvendal.dll", words);
  ComPtr<_DatosClase> host(session);
  BstrCell branch(options.sucursal);
  BstrCell workstation(options.puesto);
  BstrCell shift(options.turno);
  VARIANT_BOOL nothing = VARIANT_FALSE;
  ForgetErrorInformation();
  Check(component->Orvendal(host.InOut(), branch.InOut(), workstation.InOut(), shift.InOut(), &nothing));
}

bool ScreenIsOpen(_SampleSession& session) {
  VARIANT_BOOL open = VARIANT_FALSE;
  Check(session.get_ScreenIsOpen(&open));
  return open != VARIANT_FALSE;
}

void RunWhileScreenIsOpen(_SampleSession& session) {
  MSG message{};
  while (ScreenIsOpen(session) && GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace

void ShowText(const std::string& text, unsigned icon) {
  MessageBoxW(nullptr, Wide(text).c_str(), L"Orvendal", MB_OK | icon);
}

int RunSampleProgram(const Options& options) {
  const Words& words = WordsOf(options.language);
  try {
    const Apartment apartment;
    const ComPtr<_SampleSession> session = MakeSession(options, words);
    CallComponent(options, words, session.Get());
    RunWhileScreenIsOpen(*session.Get());
    return 0;
  } catch (const RuntimeError& error) {
    const bool plain = error.Number() == ado_error::kUnspecified;
    ShowText(plain ? error.Description()
                   : Fill(words.error, {std::to_string(error.Number()), error.Description()}),
             MB_ICONERROR);
  } catch (...) {
    ShowText(SentenceForException(words), MB_ICONERROR);
  }
  return kExitFailure;
}

}  // namespace orvendal
