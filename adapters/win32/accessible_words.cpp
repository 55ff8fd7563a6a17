#include "adapters/win32/accessible_words.h"

namespace orvendal {
namespace {

constexpr AccessibleWords kSpanish{L"Pulsar", L"Elegir", L"Editar", L"Minimizar", L"Cerrar"};
constexpr AccessibleWords kCatalan{L"Prem", L"Tria", L"Edita", L"Minimitza", L"Tanca"};
constexpr AccessibleWords kEnglish{L"Press", L"Choose", L"Edit", L"Minimize", L"Close"};

}  // namespace

const AccessibleWords& AccessibleWordsOf(const Region& region) {
  const std::string language = region.Name().substr(0, 2);
  if (language == "es") return kSpanish;
  if (language == "ca") return kCatalan;
  return kEnglish;
}

}  // namespace orvendal
