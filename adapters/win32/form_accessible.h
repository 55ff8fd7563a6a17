#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>

#include "adapters/win32/accessible_node.h"
#include "adapters/win32/windows_api.h"
#include "platform/forms/form.h"

namespace orvendal {

class AccessibleObject;
class Win32FormWindow;
class Win32WindowHost;

/// One form as assistive software sees it: the form with its controls as children, numbered by their order of
/// creation from 1; a grid and a title bar are objects of their own with their cells and buttons as children.
///
/// Objects that were given away outlive this one, and answer from then on that they are not connected.
/// What they are asked to do is done in the window's message loop, since it may open a dialog that the asking
/// program would have to wait for.
class FormAccessible final : public AccessibleNode {
 public:
  /// Message to the window: do what was asked for.
  static constexpr UINT kPerformMessage = WM_APP + 1;

  FormAccessible(Form& form, Win32FormWindow& window, Win32WindowHost& host);
  ~FormAccessible() override;

  /// The answer to WM_GETOBJECT: the whole form for OBJID_CLIENT, the object of the control with that number
  /// for a positive one; nothing if there is none.
  std::optional<LRESULT> Answer(LONG object, WPARAM wparam);
  /// Does what was asked for. The form may be gone afterwards.
  void Perform();

  // For the objects of the tree.
  Form& TheForm() const { return form_; }
  HWND Window() const;
  Win32WindowHost& Host() const { return host_; }
  AccessibleObject* Root() const { return root_; }
  void PerformLater(std::function<void()> action);
  RECT PixelsOf(const Rect& area) const;
  Point PlaceOnForm(POINT inside) const;
  /// A click, or two, at a place of the form, as by hand.
  void Click(Point place, bool twice);

  bool HasChild(LONG child) const override;
  std::vector<LONG> Children() const override;
  AccessibleObject* ObjectOf(LONG child) override;
  std::wstring Name(LONG child) const override;
  std::optional<std::wstring> Value(LONG child) const override;
  LONG Role(LONG child) const override;
  LONG State(LONG child) const override;
  RECT Place(LONG child) const override;
  std::optional<LONG> Focus() const override;
  std::vector<LONG> Selection() const override;
  LONG ChildAt(POINT inside) const override;
  std::wstring ActionName(LONG child) const override;
  std::function<void()> Action(LONG child) override;
  std::function<void()> FocusAction(LONG child) override;

 private:
  Control& ControlOf(LONG child) const { return *form_.Controls()[static_cast<std::size_t>(child - 1)]; }

  Form& form_;
  Win32FormWindow& window_;
  Win32WindowHost& host_;
  AccessibleObject* root_;  // one reference each is ours
  std::map<LONG, AccessibleObject*> objects_;
  std::deque<std::function<void()>> actions_;
};

/// The number of a control among the children of its form.
LONG AccessibleNumber(const Control& control);

}  // namespace orvendal
