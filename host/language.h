#pragma once

#include <optional>
#include <string_view>

namespace orvendal {

/// The languages that the sample host speaks.
enum class Language { kSpanish, kCatalan, kEnglish };

/// "es", "ca" or "en"; nothing for any other name.
std::optional<Language> LanguageNamed(std::string_view name);

/// The language of a locale such as "ca_ES.UTF-8"; Spanish for one that the host does not speak.
Language LanguageOfLocale(std::string_view locale);

/// What LC_ALL, LC_MESSAGES or LANG ask for, the first that is set deciding.
Language LanguageOfEnvironment();

}  // namespace orvendal
