#pragma once

#include "adapters/win32/windows_api.h"

#include <oleacc.h>

#include <functional>
#include <memory>

#include "adapters/automation/dual_object.h"
#include "adapters/win32/accessible_node.h"

namespace orvendal {

class FormAccessible;

/// One object of the accessible tree as COM sees it: checks what it is asked, asks its node, and lets no
/// exception out. The tree has one reference until it disconnects.
///
/// Invariant: after Disconnect every question is answered with CO_E_OBJNOTCONNECTED.
class AccessibleObject final : public DualObject<IAccessible, IOleWindow, IEnumVARIANT> {
 public:
  /// `node` outlives the connection.
  AccessibleObject(FormAccessible& tree, AccessibleNode& node);
  AccessibleObject(FormAccessible& tree, std::unique_ptr<AccessibleNode> node);

  /// The form is gone. Gives up the tree's reference.
  void Disconnect();

  [[nodiscard]] HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale,
                                                      ITypeInfo** info) noexcept override;

  // IAccessible
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* text) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child,
                                                           LONG* topic) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* key) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                                      VARIANT child) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start,
                                                      VARIANT* end) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) noexcept override;

  // IOleWindow
  [[nodiscard]] HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) noexcept override;

  // IEnumVARIANT over the listed children.
  [[nodiscard]] HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* children,
                                               ULONG* fetched) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE Reset() noexcept override;
  [[nodiscard]] HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) noexcept override;

 private:
  using Question = std::function<HRESULT()>;
  using ChildQuestion = std::function<HRESULT(LONG child)>;
  ~AccessibleObject() override = default;
  /// It explains no errors: no method of accessibility leaves error information.
  void* Find(REFIID id) noexcept override {
    return id == IID_ISupportErrorInfo ? nullptr : DualObject::Find(id);
  }
  HRESULT NumbersOf(LPOLESTR* names, UINT count, DISPID* members) override;
  HRESULT Call(const DispatchCall& call) override;

  HRESULT Ask(const Question& question) noexcept;
  HRESULT AskChild(const VARIANT& child, const ChildQuestion& question) noexcept;
  /// A child as clients get it: its object if it is one, else its number. S_FALSE and empty for nothing.
  HRESULT Give(std::optional<LONG> child, VARIANT* result);
  std::optional<LONG> Sibling(LONG child, LONG direction);

  std::unique_ptr<AccessibleNode> owned_;
  FormAccessible* tree_;
  AccessibleNode* node_;  // nullptr after Disconnect, like tree_
  std::size_t position_ = 0;
};

}  // namespace orvendal
