#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "DllOrvendal.h"
#include "adapters/headless/headless_host.h"
#include "adapters/headless/robot.h"
#include "form/frm_orvendalciales.h"
#include "tests/adapters/com/fake_host.h"
#include "tests/adapters/com/fake_library.h"
#include "tests/adapters/com/fake_store.h"
#include "tests/support/form_driver.h"

namespace orvendal {

/// The component behind its COM face in this process, on a window host without a display, with a counted host
/// and a counted library around it. When it goes, everything must have been given back.
class ComWorld : public testing::Test {
 protected:
  ComWorld();
  ~ComWorld() override;
  void TearDown() override;

  /// The host's filling at first: connection, reference size, dictionaries, chain.
  HRESULT FillSession(const FillArguments& session) const;
  /// Calls Orvendal through the vtable and expects it to return False.
  HRESULT Open(const wchar_t* branch = L"01", const wchar_t* workstation = L"P1",
               const wchar_t* shift = L"T1");
  /// The form that is up.
  FrmOrvendalciales& form() const { return static_cast<FrmOrvendalciales&>(*windows->ActiveForm()); }
  Robot hands() const { return Robot(form()); }
  void Click(std::string_view control) const { hands().Click(hands().Find(control)); }
  /// Closes the form by its title bar.
  void CloseForm() const;
  /// Picks the stylist and enters a line.
  void EnterLine(const std::string& code, const std::string& quantity) const;
  /// Calls that begin with `operation`.
  std::vector<std::string> CallsOf(const std::string& operation) const;
  /// Asks the module, which drops the component's state if it can go.
  bool CanModuleGo();
  /// Lets go of what the test itself holds and of the component's state; whether the module could go.
  bool LetEverythingGo();

  FormDriver source;  // gives store, dictionaries and clock; its own form stays closed
  LibraryBehaviour behaviour;
  std::optional<FakeLibrary> library;
  ComPtr<FakeHost> host;
  ComPtr<_ClassOrvendal> component;
  ComPtr<StoreHandle> connection;
  /// Made by the first call.
  HeadlessHost* windows = nullptr;
};

}  // namespace orvendal
