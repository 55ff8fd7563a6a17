#include "tests/adapters/com/text_balance.h"

#include <mutex>
#include <set>

#include "adapters/automation/com_headers.h"
#include "tests/support/wrapped_import.h"

namespace {

using AllocString = BSTR(WINAPI*)(const OLECHAR*);
using AllocStringLen = BSTR(WINAPI*)(const OLECHAR*, UINT);
using FreeString = void(WINAPI*)(BSTR);
using ClearVariant = HRESULT(WINAPI*)(VARIANTARG*);

std::mutex guard;
std::set<BSTR> live;

BSTR Entered(BSTR text) {
  const std::lock_guard<std::mutex> lock(guard);
  if (text) live.insert(text);
  return text;
}

void Left(BSTR text) {
  const std::lock_guard<std::mutex> lock(guard);
  live.erase(text);
}

}  // namespace

extern "C" {

extern AllocString real_alloc asm(IMPORT_REAL(SysAllocString, 4));
extern AllocStringLen real_alloc_length asm(IMPORT_REAL(SysAllocStringLen, 8));
extern FreeString real_free asm(IMPORT_REAL(SysFreeString, 4));
extern ClearVariant real_clear asm(IMPORT_REAL(VariantClear, 4));

static BSTR WINAPI CountedAlloc(const OLECHAR* text) {
  return Entered(real_alloc(text));
}
static BSTR WINAPI CountedAllocLength(const OLECHAR* text, UINT length) {
  return Entered(real_alloc_length(text, length));
}
static void WINAPI CountedFree(BSTR text) {
  Left(text);
  real_free(text);
}
static HRESULT WINAPI CountedClear(VARIANTARG* value) {
  if (V_VT(value) == VT_BSTR) Left(V_BSTR(value));
  return real_clear(value);
}

extern AllocString wrapped_alloc asm(IMPORT_WRAP(SysAllocString, 4));
extern AllocStringLen wrapped_alloc_length asm(IMPORT_WRAP(SysAllocStringLen, 8));
extern FreeString wrapped_free asm(IMPORT_WRAP(SysFreeString, 4));
extern ClearVariant wrapped_clear asm(IMPORT_WRAP(VariantClear, 4));
AllocString wrapped_alloc = CountedAlloc;
AllocStringLen wrapped_alloc_length = CountedAllocLength;
FreeString wrapped_free = CountedFree;
ClearVariant wrapped_clear = CountedClear;

}  // extern "C"

namespace orvendal {

std::size_t LiveTexts() {
  const std::lock_guard<std::mutex> lock(guard);
  return live.size();
}

void ForgetLiveTexts() {
  const std::lock_guard<std::mutex> lock(guard);
  live.clear();
}

}  // namespace orvendal
