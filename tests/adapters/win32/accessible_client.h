#pragma once

#include "tests/adapters/win32/win32_fixture.h"

#include <oleacc.h>

#include <map>
#include <string>
#include <vector>

namespace orvendal {

/// COM for as long as it lives.
class ComApartment {
 public:
  ComApartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~ComApartment() { CoUninitialize(); }
};

inline VARIANT Child(LONG number) {
  VARIANT child;
  VariantInit(&child);
  child.vt = VT_I4;
  child.lVal = number;
  return child;
}

/// What a screen reader has in its hands: an accessible object and a child of it.
class Seen {
 public:
  Seen() = default;
  Seen(IAccessible* object, LONG child) : object_(object), child_(child) {}
  Seen(const Seen& other) : object_(other.object_), child_(other.child_) {
    if (object_ != nullptr) object_->AddRef();
  }
  Seen& operator=(Seen other) {
    std::swap(object_, other.object_);
    std::swap(child_, other.child_);
    return *this;
  }
  ~Seen() {
    if (object_ != nullptr) object_->Release();
  }

  /// The inside of a window.
  static Seen Of(HWND window) {
    IAccessible* object = nullptr;
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                               reinterpret_cast<void**>(&object));
    return {object, CHILDID_SELF};
  }
  /// What an answer of an object stands for: one of its children, or another object. Takes the answer over.
  Seen Answer(VARIANT& answer) const {
    if (answer.vt == VT_I4) {
      if (answer.lVal == CHILDID_SELF) return *this;
      object_->AddRef();
      return {object_, answer.lVal};
    }
    if (answer.vt != VT_DISPATCH) return {};
    IAccessible* object = nullptr;
    answer.pdispVal->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(&object));
    answer.pdispVal->Release();
    return {object, CHILDID_SELF};
  }

  bool Exists() const { return object_ != nullptr; }
  IAccessible* Object() const { return object_; }
  LONG Number() const { return child_; }

  std::wstring Name() const { return Text(&IAccessible::get_accName); }
  std::wstring Value() const { return Text(&IAccessible::get_accValue); }
  std::wstring Action() const { return Text(&IAccessible::get_accDefaultAction); }
  LONG Role() const { return Number(&IAccessible::get_accRole); }
  LONG State() const { return Number(&IAccessible::get_accState); }
  bool Is(LONG state) const { return (State() & state) != 0; }
  RECT Place() const {
    LONG left = 0, top = 0, width = 0, height = 0;
    EXPECT_EQ(object_->accLocation(&left, &top, &width, &height, Child(child_)), S_OK);
    return {left, top, left + width, top + height};
  }
  HRESULT Press() const { return object_->accDoDefaultAction(Child(child_)); }
  HRESULT TakeFocus() const { return object_->accSelect(SELFLAG_TAKEFOCUS, Child(child_)); }
  Seen Focus() const {
    VARIANT focus;
    object_->get_accFocus(&focus);
    const Seen seen = Answer(focus);
    // An object tells in turn which of its children has it.
    return seen.Exists() && seen.Object() != object_ && seen.Number() == CHILDID_SELF ? seen.Focus() : seen;
  }
  Seen Go(LONG direction) const {
    VARIANT end;
    if (object_->accNavigate(direction, Child(child_), &end) != S_OK) return {};
    // A sibling of an object that is a simple element is a child of the same parent.
    const bool is_sibling = direction == NAVDIR_NEXT || direction == NAVDIR_PREVIOUS;
    return is_sibling && child_ == CHILDID_SELF ? Parent().Answer(end) : Answer(end);
  }
  Seen Parent() const {
    VARIANT parent;
    VariantInit(&parent);
    if (object_->get_accParent(&parent.pdispVal) == S_OK) parent.vt = VT_DISPATCH;
    return Answer(parent);
  }
  Seen At(POINT on_screen) const {
    VARIANT hit;
    if (object_->accHitTest(on_screen.x, on_screen.y, &hit) != S_OK) return {};
    const Seen seen = Answer(hit);
    return seen.Exists() && seen.Object() != object_ ? seen.At(on_screen) : seen;
  }

  /// All children that are listed, as the system's helper gets them.
  std::vector<Seen> Children() const {
    LONG count = 0;
    object_->get_accChildCount(&count);
    std::vector<VARIANT> answers(static_cast<std::size_t>(count));
    LONG got = 0;
    AccessibleChildren(object_, 0, count, answers.data(), &got);
    std::vector<Seen> children;
    for (LONG i = 0; i < got; ++i) children.push_back(Answer(answers[static_cast<std::size_t>(i)]));
    return children;
  }
  Seen ChildNamed(const std::wstring& name, LONG role) const {
    for (const Seen& child : Children()) {
      if (child.Name() == name && child.Role() == role && !child.Is(STATE_SYSTEM_INVISIBLE)) return child;
    }
    return {};
  }

 private:
  std::wstring Text(HRESULT (STDMETHODCALLTYPE IAccessible::*member)(VARIANT, BSTR*)) const {
    BSTR text = nullptr;
    (object_->*member)(Child(child_), &text);
    const std::wstring copy(text == nullptr ? L"" : text, SysStringLen(text));
    SysFreeString(text);
    return copy;
  }
  LONG Number(HRESULT (STDMETHODCALLTYPE IAccessible::*member)(VARIANT, VARIANT*)) const {
    VARIANT number;
    VariantInit(&number);
    (object_->*member)(Child(child_), &number);
    return number.vt == VT_I4 ? number.lVal : -1;
  }

  IAccessible* object_ = nullptr;
  LONG child_ = CHILDID_SELF;
};

/// The events of the system that concern one window, while it lives.
class AccessibleListener {
 public:
  struct Event {
    DWORD kind;
    LONG object;
    LONG child;
    bool operator==(const Event&) const = default;
  };
  explicit AccessibleListener(HWND window) {
    window_ = window;
    events_.clear();
    hook_ = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_VALUECHANGE, nullptr, Note,
                            GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
  }
  ~AccessibleListener() { UnhookWinEvent(hook_); }

  /// Events of a kind so far, those of the window itself left out.
  std::vector<Event> Take(DWORD kind) {
    Pump();
    std::vector<Event> taken;
    for (const Event& event : events_) {
      if (event.kind == kind && event.child != CHILDID_SELF) taken.push_back(event);
    }
    events_.clear();
    return taken;
  }

 private:
  static void CALLBACK Note(HWINEVENTHOOK, DWORD kind, HWND window, LONG object, LONG child, DWORD, DWORD) {
    if (window == window_) events_.push_back({kind, object, child});
  }
  static inline HWND window_ = nullptr;
  static inline std::vector<Event> events_;
  HWINEVENTHOOK hook_;
};

}  // namespace orvendal
