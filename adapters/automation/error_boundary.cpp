#include "adapters/automation/error_boundary.h"

#include <exception>
#include <new>
#include <string>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"

namespace orvendal {
namespace {

constexpr std::uint32_t kAutomationErrors = 0x800A0000;
constexpr std::int32_t kLargestNumber = 0xFFFF;
constexpr std::int32_t kOutOfMemory = 7;

constinit const wchar_t* error_source = L"";

void LeaveErrorInformation(REFIID iid, const wchar_t* source, const std::string& description) {
  ComPtr<ICreateErrorInfo> made;
  if (FAILED(CreateErrorInfo(made.Receive()))) return;
  const BstrCell text(description);
  made->SetGUID(iid);
  made->SetSource(const_cast<LPOLESTR>(source));
  made->SetDescription(text.Get());
  if (const auto info = made.Query<IErrorInfo>(IID_IErrorInfo)) SetErrorInfo(0, info.Get());
}

std::string SystemDescription(HRESULT result) {
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
      static_cast<DWORD>(result), 0, reinterpret_cast<LPWSTR>(&text), 0, nullptr);
  std::wstring_view line(text ? text : L"", length);
  while (!line.empty() && (line.back() == L'\n' || line.back() == L'\r' || line.back() == L' ')) {
    line.remove_suffix(1);
  }
  const std::string description = line.empty() ? "Automation error" : Utf8Text(line);
  LocalFree(text);
  return description;
}

}  // namespace

void NameErrorSource(const wchar_t* name) noexcept {
  error_source = name;
}

const wchar_t* ErrorSource() noexcept {
  return error_source;
}

HRESULT HresultOfNumber(std::int32_t number) noexcept {
  if (number < 0) return number;
  if (number == 0 || number > kLargestNumber) number = error_number::kInternal;
  return static_cast<HRESULT>(kAutomationErrors + static_cast<std::uint32_t>(number));
}

std::int32_t NumberOfHresult(HRESULT result) noexcept {
  const auto bits = static_cast<std::uint32_t>(result);
  const bool automation = (bits & 0xFFFF0000U) == kAutomationErrors && (bits & 0xFFFFU) != 0;
  return automation ? static_cast<std::int32_t>(bits & 0xFFFFU) : result;
}

RuntimeError CurrentError() {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return RuntimeError(kOutOfMemory, "Out of memory");
  } catch (const std::exception& error) {
    return RuntimeError(error_number::kInternal, std::string("Internal error: ") + error.what());
  } catch (...) {
    return RuntimeError(error_number::kInternal, "Internal error");
  }
}

HRESULT ReportCurrentException(REFIID iid, const wchar_t* source) noexcept {
  try {
    const RuntimeError error = CurrentError();
    LeaveErrorInformation(iid, source, error.Description());
    return HresultOfNumber(error.Number());
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT FillExceptionInfo(EXCEPINFO* info, const wchar_t* source) noexcept {
  try {
    const RuntimeError error = CurrentError();
    if (info) {
      BSTR description = MakeBstr(error.Description());
      *info = {};
      info->scode = HresultOfNumber(error.Number());
      info->bstrSource = SysAllocString(source);
      info->bstrDescription = description;
    }
    return DISP_E_EXCEPTION;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

void ForgetErrorInformation() noexcept {
  SetErrorInfo(0, nullptr);
}

RuntimeError ErrorOfResult(HRESULT result) {
  const std::int32_t number = NumberOfHresult(result);
  ComPtr<IErrorInfo> info;
  BstrCell description;
  if (GetErrorInfo(0, info.Receive()) == S_OK && info) info->GetDescription(description.InOut());
  if (SysStringLen(description.Get()) > 0) return RuntimeError(number, description.Text());
  return number > 0 ? RuntimeError(number) : RuntimeError(number, SystemDescription(result));
}

void Check(HRESULT result) {
  if (FAILED(result)) throw ErrorOfResult(result);
}

}  // namespace orvendal
