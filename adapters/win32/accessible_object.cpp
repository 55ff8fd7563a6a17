#include "adapters/win32/accessible_object.h"

#include <algorithm>
#include <new>

#include "adapters/automation/com_ptr.h"
#include "adapters/win32/form_accessible.h"
#include "adapters/win32/thread_dpi.h"

namespace orvendal {
namespace {

// The system's type library of accessibility, version 1.1.
constexpr GUID kAccessibilityLibrary = {
    0x1ea4dbf0, 0x3c3b, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

HRESULT DescribeAccessible(ComPtr<ITypeInfo>& description) noexcept {
  ComPtr<ITypeLib> library;
  HRESULT result = LoadRegTypeLib(kAccessibilityLibrary, 1, 1, 0, library.Receive());
  if (FAILED(result)) result = LoadTypeLib(SystemFile(L"oleacc.dll").Path(), library.Receive());
  return FAILED(result) ? result : library->GetTypeInfoOfGuid(__uuidof(IAccessible), description.Receive());
}

HRESULT GiveText(const std::wstring& text, BSTR* result) {
  if (text.empty()) return S_FALSE;
  *result = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return *result == nullptr ? E_OUTOFMEMORY : S_OK;
}

HRESULT GiveNumber(LONG number, VARIANT* result) {
  result->vt = VT_I4;
  result->lVal = number;
  return S_OK;
}

}  // namespace

AccessibleObject::AccessibleObject(FormAccessible& tree, AccessibleNode& node) : tree_(&tree), node_(&node) {}

AccessibleObject::AccessibleObject(FormAccessible& tree, std::unique_ptr<AccessibleNode> node)
    : owned_(std::move(node)), tree_(&tree), node_(owned_.get()) {}

void AccessibleObject::Disconnect() {
  tree_ = nullptr;
  node_ = nullptr;
  owned_.reset();
  // Programs outside let go of it at once; those in this process keep an object that is not connected.
  CoDisconnectObject(static_cast<IAccessible*>(this), 0);
  Release();
}

HRESULT AccessibleObject::Ask(const Question& question) noexcept {
  if (node_ == nullptr) return CO_E_OBJNOTCONNECTED;
  const DpiScope sharp(DpiContext::Sharpest());
  try {
    return question();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

HRESULT AccessibleObject::AskChild(const VARIANT& child, const ChildQuestion& question) noexcept {
  return Ask([&] {
    LONG number = 0;
    if (child.vt == VT_I4) {
      number = child.lVal;
    } else if (child.vt == VT_I2) {
      number = child.iVal;
    } else {
      return E_INVALIDARG;
    }
    return node_->HasChild(number) ? question(number) : E_INVALIDARG;
  });
}

HRESULT AccessibleObject::Give(std::optional<LONG> child, VARIANT* result) {
  result->vt = VT_EMPTY;
  if (!child) return S_FALSE;
  if (*child != AccessibleNode::kSelf) {
    if (AccessibleObject* object = node_->ObjectOf(*child)) {
      object->AddRef();
      result->vt = VT_DISPATCH;
      result->pdispVal = static_cast<IAccessible*>(object);
      return S_OK;
    }
  }
  return GiveNumber(*child, result);
}

// IDispatch, by the system's own description of the interface.

HRESULT AccessibleObject::GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) noexcept {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  ComPtr<ITypeInfo> description;
  const HRESULT result = DescribeAccessible(description);
  *info = description.Detach();
  return result;
}

HRESULT AccessibleObject::NumbersOf(LPOLESTR* names, UINT count, DISPID* members) {
  ComPtr<ITypeInfo> description;
  const HRESULT result = DescribeAccessible(description);
  return FAILED(result) ? result : description->GetIDsOfNames(names, count, members);
}

HRESULT AccessibleObject::Call(const DispatchCall& call) {
  ComPtr<ITypeInfo> description;
  const HRESULT result = DescribeAccessible(description);
  if (FAILED(result)) return result;
  return CallByDescription(*description.Get(), static_cast<IAccessible*>(this), call);
}

// IAccessible.

HRESULT AccessibleObject::get_accParent(IDispatch** parent) noexcept {
  if (parent == nullptr) return E_POINTER;
  *parent = nullptr;
  return Ask([&] {
    if (AccessibleObject* outer = node_->Parent()) {
      outer->AddRef();
      *parent = static_cast<IAccessible*>(outer);
      return S_OK;
    }
    // Around the form there is the window, of which the system tells by itself.
    const auto of_window =
        SystemFunction<decltype(&AccessibleObjectFromWindow)>(L"oleacc.dll", "AccessibleObjectFromWindow");
    if (of_window == nullptr) return E_FAIL;
    return of_window(tree_->Window(), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                     reinterpret_cast<void**>(parent));
  });
}

HRESULT AccessibleObject::get_accChildCount(LONG* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return Ask([&] {
    *count = static_cast<LONG>(node_->Children().size());
    return S_OK;
  });
}

HRESULT AccessibleObject::get_accChild(VARIANT child, IDispatch** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  return AskChild(child, [&](LONG number) {
    AccessibleObject* found = number == AccessibleNode::kSelf ? this : node_->ObjectOf(number);
    if (found == nullptr) return S_FALSE;
    found->AddRef();
    *object = static_cast<IAccessible*>(found);
    return S_OK;
  });
}

HRESULT AccessibleObject::get_accName(VARIANT child, BSTR* name) noexcept {
  if (name == nullptr) return E_POINTER;
  *name = nullptr;
  return AskChild(child, [&](LONG number) { return GiveText(node_->Name(number), name); });
}

HRESULT AccessibleObject::get_accValue(VARIANT child, BSTR* value) noexcept {
  if (value == nullptr) return E_POINTER;
  *value = nullptr;
  return AskChild(child, [&](LONG number) {
    const std::optional<std::wstring> text = node_->Value(number);
    if (!text) return static_cast<HRESULT>(DISP_E_MEMBERNOTFOUND);
    *value = SysAllocStringLen(text->data(), static_cast<UINT>(text->size()));
    return *value == nullptr ? E_OUTOFMEMORY : S_OK;
  });
}

HRESULT AccessibleObject::get_accDescription(VARIANT child, BSTR* text) noexcept {
  if (text == nullptr) return E_POINTER;
  *text = nullptr;
  return AskChild(child, [](LONG) { return S_FALSE; });
}

HRESULT AccessibleObject::get_accRole(VARIANT child, VARIANT* role) noexcept {
  if (role == nullptr) return E_POINTER;
  role->vt = VT_EMPTY;
  return AskChild(child, [&](LONG number) { return GiveNumber(node_->Role(number), role); });
}

HRESULT AccessibleObject::get_accState(VARIANT child, VARIANT* state) noexcept {
  if (state == nullptr) return E_POINTER;
  state->vt = VT_EMPTY;
  return AskChild(child, [&](LONG number) { return GiveNumber(node_->State(number), state); });
}

HRESULT AccessibleObject::get_accHelp(VARIANT child, BSTR* text) noexcept {
  return get_accDescription(child, text);
}

HRESULT AccessibleObject::get_accHelpTopic(BSTR* file, VARIANT /*child*/, LONG* topic) noexcept {
  if (file == nullptr || topic == nullptr) return E_POINTER;
  *file = nullptr;
  *topic = 0;
  return Ask([] { return S_FALSE; });
}

HRESULT AccessibleObject::get_accKeyboardShortcut(VARIANT child, BSTR* key) noexcept {
  return get_accDescription(child, key);
}

HRESULT AccessibleObject::get_accFocus(VARIANT* focus) noexcept {
  if (focus == nullptr) return E_POINTER;
  focus->vt = VT_EMPTY;
  return Ask([&] { return Give(node_->Focus(), focus); });
}

HRESULT AccessibleObject::get_accSelection(VARIANT* selection) noexcept {
  if (selection == nullptr) return E_POINTER;
  selection->vt = VT_EMPTY;
  return Ask([&] {
    const std::vector<LONG> selected = node_->Selection();
    return Give(selected.empty() ? std::nullopt : std::optional<LONG>(selected.front()), selection);
  });
}

HRESULT AccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action) noexcept {
  if (action == nullptr) return E_POINTER;
  *action = nullptr;
  return AskChild(child, [&](LONG number) { return GiveText(node_->ActionName(number), action); });
}

HRESULT AccessibleObject::accSelect(LONG flags, VARIANT child) noexcept {
  return AskChild(child, [&](LONG number) {
    if ((flags & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) == 0) return E_INVALIDARG;
    std::function<void()> action = node_->FocusAction(number);
    if (!action) return static_cast<HRESULT>(DISP_E_MEMBERNOTFOUND);
    tree_->PerformLater(std::move(action));
    return S_OK;
  });
}

HRESULT AccessibleObject::accDoDefaultAction(VARIANT child) noexcept {
  return AskChild(child, [&](LONG number) {
    std::function<void()> action = node_->Action(number);
    if (!action) return static_cast<HRESULT>(DISP_E_MEMBERNOTFOUND);
    tree_->PerformLater(std::move(action));
    return S_OK;
  });
}

HRESULT AccessibleObject::accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                      VARIANT child) noexcept {
  if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) return E_POINTER;
  *left = *top = *width = *height = 0;
  return AskChild(child, [&](LONG number) {
    const RECT place = node_->Place(number);
    POINT corner{place.left, place.top};
    if (place.right <= place.left) return S_OK;
    ClientToScreen(tree_->Window(), &corner);
    *left = corner.x;
    *top = corner.y;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
  });
}

HRESULT AccessibleObject::accHitTest(LONG left, LONG top, VARIANT* child) noexcept {
  if (child == nullptr) return E_POINTER;
  child->vt = VT_EMPTY;
  return Ask([&] {
    POINT inside{left, top};
    ScreenToClient(tree_->Window(), &inside);
    const RECT whole = node_->Place(AccessibleNode::kSelf);
    if (!PtInRect(&whole, inside)) return S_FALSE;
    return Give(node_->ChildAt(inside), child);
  });
}

std::optional<LONG> AccessibleObject::Sibling(LONG child, LONG direction) {
  const std::vector<LONG> listed = node_->Children();
  if (listed.empty()) return std::nullopt;
  if (direction == NAVDIR_FIRSTCHILD) return listed.front();
  if (direction == NAVDIR_LASTCHILD) return listed.back();
  const auto found = std::find(listed.begin(), listed.end(), child);
  if (found == listed.end()) return std::nullopt;
  if (direction == NAVDIR_NEXT)
    return found + 1 == listed.end() ? std::nullopt : std::optional<LONG>(found[1]);
  return found == listed.begin() ? std::nullopt : std::optional<LONG>(found[-1]);
}

HRESULT AccessibleObject::accNavigate(LONG direction, VARIANT start, VARIANT* end) noexcept {
  if (end == nullptr) return E_POINTER;
  end->vt = VT_EMPTY;
  return AskChild(start, [&](LONG child) {
    const bool to_child = direction == NAVDIR_FIRSTCHILD || direction == NAVDIR_LASTCHILD;
    const bool to_sibling = direction == NAVDIR_NEXT || direction == NAVDIR_PREVIOUS;
    if (to_child) return child == AccessibleNode::kSelf ? Give(Sibling(child, direction), end) : S_FALSE;
    if (!to_sibling) return Give(node_->Neighbour(child, direction), end);
    if (child != AccessibleNode::kSelf) return Give(Sibling(child, direction), end);
    AccessibleObject* outer = node_->Parent();
    return outer == nullptr ? S_FALSE : outer->Give(outer->Sibling(node_->NumberInParent(), direction), end);
  });
}

HRESULT AccessibleObject::put_accName(VARIANT child, BSTR /*name*/) noexcept {
  return AskChild(child, [](LONG) { return static_cast<HRESULT>(DISP_E_MEMBERNOTFOUND); });
}

HRESULT AccessibleObject::put_accValue(VARIANT child, BSTR /*value*/) noexcept {
  return AskChild(child, [](LONG) { return static_cast<HRESULT>(DISP_E_MEMBERNOTFOUND); });
}

// IOleWindow.

HRESULT AccessibleObject::GetWindow(HWND* window) noexcept {
  if (window == nullptr) return E_POINTER;
  *window = nullptr;
  return Ask([&] {
    *window = tree_->Window();
    return S_OK;
  });
}

HRESULT AccessibleObject::ContextSensitiveHelp(BOOL /*enter*/) noexcept {
  return E_NOTIMPL;
}

// IEnumVARIANT.

HRESULT AccessibleObject::Next(ULONG count, VARIANT* children, ULONG* fetched) noexcept {
  if (fetched != nullptr) *fetched = 0;
  if (children == nullptr || (fetched == nullptr && count != 1)) return E_POINTER;
  return Ask([&] {
    const std::vector<LONG> listed = node_->Children();
    ULONG given = 0;
    for (; given < count && position_ < listed.size(); ++given, ++position_) {
      VariantInit(&children[given]);
      Give(listed[position_], &children[given]);
    }
    if (fetched != nullptr) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  });
}

HRESULT AccessibleObject::Skip(ULONG count) noexcept {
  return Ask([&] {
    const std::size_t all = node_->Children().size();
    const std::size_t left = all - std::min(position_, all);
    position_ += std::min<std::size_t>(count, left);
    return count <= left ? S_OK : S_FALSE;
  });
}

HRESULT AccessibleObject::Reset() noexcept {
  position_ = 0;
  return S_OK;
}

HRESULT AccessibleObject::Clone(IEnumVARIANT** copy) noexcept {
  if (copy == nullptr) return E_POINTER;
  *copy = nullptr;
  return E_NOTIMPL;
}

}  // namespace orvendal
