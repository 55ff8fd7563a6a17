#pragma once

#include "platform/base/region.h"

namespace orvendal {

/// Accessible names of parts that bear no text of their own.
struct AccessibleWords {
  const wchar_t* press;
  const wchar_t* choose;
  const wchar_t* edit;
  const wchar_t* minimize;
  const wchar_t* close;
};

/// In the language of the region; in English if we do not speak it.
const AccessibleWords& AccessibleWordsOf(const Region& region);

}  // namespace orvendal
