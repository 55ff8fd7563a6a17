#pragma once

#include <cstdint>
#include <utility>

#include "adapters/automation/com_headers.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

// Translation of errors between RuntimeError and HRESULT. Numbers 1 to 65535 are 0x800A0000 + n on the wire;
// the codes of data providers and of the system, negative as numbers, are the same on both sides.

/// What the errors of this module name as their source; for the rest of its life, before its first object is
/// made.
void NameErrorSource(const wchar_t* name) noexcept;
const wchar_t* ErrorSource() noexcept;

[[nodiscard]] HRESULT HresultOfNumber(std::int32_t number) noexcept;
[[nodiscard]] std::int32_t NumberOfHresult(HRESULT result) noexcept;

/// To be called while an exception is handled, whatever it is: the error that it stands for. 7 where memory
/// has run out, 51 for what nobody expected.
RuntimeError CurrentError();
/// To be called while an exception is handled: its HRESULT, with its source and description left as the
/// thread's error information for `iid`.
[[nodiscard]] HRESULT ReportCurrentException(REFIID iid, const wchar_t* source = ErrorSource()) noexcept;
/// The same for a client of Invoke: DISP_E_EXCEPTION with `info` filled, if there is one.
[[nodiscard]] HRESULT FillExceptionInfo(EXCEPINFO* info, const wchar_t* source) noexcept;

/// The body of a COM method: nothing that `body` throws gets out.
template <typename Body>
[[nodiscard]] HRESULT Guarded(REFIID iid, Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
    return S_OK;
  } catch (...) {
    return ReportCurrentException(iid);
  }
}

/// Forgets error information of an earlier call, so that it is not taken for the next one's.
void ForgetErrorInformation() noexcept;
/// The error that a failed call of ours stands for, with the thread's error information, which it uses up.
RuntimeError ErrorOfResult(HRESULT result);
/// Throws it if `result` is a failure.
void Check(HRESULT result);

}  // namespace orvendal
