#pragma once

#include <memory>

#include "adapters/automation/dual_object.h"
#include "adapters/com/automation_call.h"
#include "adapters/com/automation_registry.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

/// One member of an automation object: what a get or a call does, with how many arguments, and what a put
/// does. Either may be missing.
template <typename Target>
struct AutomationMember {
  const wchar_t* name;
  void (*get)(Target& target, const AutomationCall& call);
  void (*put)(Target& target, const AutomationCall& call);
  UINT fewest = 0;
  UINT most = 0;
};

/// What our objects that are handed out have in common: members by name through Invoke, errors with number
/// and description. It never keeps alive what it stands for: after a form is gone, everything answers
/// error 91. From another thread than the form's everything answers RPC_E_WRONG_THREAD.
class AutomationObject : public DualObject<IDispatch, IOrvendalObject> {
 public:
  ObjectRef Target() override { return nullptr; }

  virtual bool IsGone() const = 0;

 protected:
  /// The member of that name; DISPID_UNKNOWN if there is none.
  virtual DISPID IdOf(const wchar_t* name) = 0;
  /// False if there is no such member, or none for that.
  virtual bool Get(DISPID member, const AutomationCall& call) = 0;
  virtual bool Put(DISPID member, const AutomationCall& call) = 0;
  /// Whether a client that passes it back in passes what it stands for (IOrvendalObject).
  virtual bool ComesBackAsItself() const { return false; }

  // For tables: the member at index n has the DISPID n + 1.
  template <typename Target, std::size_t kSize>
  static DISPID IdIn(const AutomationMember<Target> (&table)[kSize], const wchar_t* name) {
    for (std::size_t index = 0; index < kSize; ++index) {
      if (SameName(table[index].name, name)) return static_cast<DISPID>(index + 1);
    }
    return DISPID_UNKNOWN;
  }
  template <typename Target, std::size_t kSize>
  static bool GetIn(const AutomationMember<Target> (&table)[kSize], DISPID member, Target& target,
                    const AutomationCall& call) {
    const bool there = member >= 1 && static_cast<std::size_t>(member) <= kSize;
    if (!there || !table[member - 1].get) return false;
    call.Expect(table[member - 1].fewest, table[member - 1].most);
    table[member - 1].get(target, call);
    return true;
  }
  template <typename Target, std::size_t kSize>
  static bool PutIn(const AutomationMember<Target> (&table)[kSize], DISPID member, Target& target,
                    const AutomationCall& call) {
    const bool there = member >= 1 && static_cast<std::size_t>(member) <= kSize;
    if (!there || !table[member - 1].put) return false;
    call.Expect(1, 1);
    table[member - 1].put(target, call);
    return true;
  }
  static bool SameName(const wchar_t* left, const wchar_t* right);

 private:
  void* Find(REFIID iid) noexcept override;
  HRESULT NumbersOf(LPOLESTR* names, UINT count, DISPID* ids) override;
  HRESULT Call(const DispatchCall& call) override;
  bool IsAtHome() const { return GetCurrentThreadId() == home_; }

  const DWORD home_ = GetCurrentThreadId();
};

}  // namespace orvendal
