#include "host/windows/user_language.h"

#include <windows.h>

#include "adapters/win32/windows_api.h"

namespace orvendal {

Language LanguageOfUser() {
  wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
  GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
  return LanguageOfLocale(Utf8(name));
}

}  // namespace orvendal
