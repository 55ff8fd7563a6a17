#pragma once

#include "adapters/automation/com_headers.h"

namespace orvendal::ado_testing {

/// A class that this process, and it alone, knows under `class_id` as long as this lives.
class RegisteredClass {
 public:
  RegisteredClass(REFCLSID class_id, IUnknown* factory)
      : result_(
            CoRegisterClassObject(class_id, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_)) {}
  ~RegisteredClass() {
    if (SUCCEEDED(result_)) CoRevokeClassObject(cookie_);
  }
  RegisteredClass(const RegisteredClass&) = delete;
  RegisteredClass& operator=(const RegisteredClass&) = delete;
  HRESULT Result() const { return result_; }

 private:
  DWORD cookie_ = 0;
  HRESULT result_;
};

/// The thread's COM, for as long as this lives.
class ComThread {
 public:
  ComThread() { CoInitialize(nullptr); }
  ~ComThread() { CoUninitialize(); }
  ComThread(const ComThread&) = delete;
  ComThread& operator=(const ComThread&) = delete;
};

}  // namespace orvendal::ado_testing
