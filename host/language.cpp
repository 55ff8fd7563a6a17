#include "host/language.h"

#include <cstdlib>

namespace orvendal {

std::optional<Language> LanguageNamed(std::string_view name) {
  if (name == "es") return Language::kSpanish;
  if (name == "ca") return Language::kCatalan;
  if (name == "en") return Language::kEnglish;
  return std::nullopt;
}

Language LanguageOfLocale(std::string_view locale) {
  const std::string_view name = locale.substr(0, locale.find_first_of("_-.@"));
  return LanguageNamed(name).value_or(Language::kSpanish);
}

Language LanguageOfEnvironment() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return LanguageOfLocale(value);
  }
  return Language::kSpanish;
}

}  // namespace orvendal
