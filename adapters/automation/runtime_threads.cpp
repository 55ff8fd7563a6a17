// What the C++ runtime asks of the system's threads, for modules that are unloaded: mutexes, one-time
// initialisation, values of a thread, and clocks. The toolchain's own layer keeps kernel handles, memory and
// a slot of the process for each load of a module, and of each thread that ever raised an error in it, and
// gives none of them back. What stands here lies in the module itself, and ReleaseThreadValues gives back the
// rest.
//
// The runtime's functions are found here first when a module is linked with this file. One that is missing
// shows at that moment, by functions that are defined twice.

#include "adapters/automation/runtime_threads.h"

#include <pthread.h>
#include <pthread_time.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <utility>

#include "adapters/automation/com_headers.h"

namespace orvendal {
namespace {

// A mutex or a condition of the runtime's is one word that tells what it is to be. It becomes a lock of the
// system's in the same place, whose first state is zero and which is never one of these small negative
// numbers.
static_assert(sizeof(pthread_mutex_t) == sizeof(void*) && sizeof(pthread_cond_t) == sizeof(void*));
static_assert(sizeof(SRWLOCK) == sizeof(void*) && sizeof(CONDITION_VARIABLE) == sizeof(void*));

void* const kUntouched = (void*)PTHREAD_MUTEX_INITIALIZER;
void* const kUntouchedRecursive = (void*)PTHREAD_RECURSIVE_MUTEX_INITIALIZER;

void** WordOf(void* object) {
  return static_cast<void**>(object);
}

template <typename Lock>
Lock* InPlace(void* object) {
  InterlockedCompareExchangePointer(WordOf(object), nullptr, kUntouched);
  return static_cast<Lock*>(object);
}

// The runtime has one recursive mutex, which keeps function-local statics from being made twice.
class RecursiveLock {
 public:
  bool IsBehind(const void* mutex) const { return mutex_ == mutex; }
  /// Whether it stands for `mutex` from here on, or did before.
  bool StandFor(void* mutex) {
    return InterlockedCompareExchangePointer(&mutex_, mutex, nullptr) == nullptr || mutex_ == mutex;
  }

  void Lock() {
    const DWORD self = GetCurrentThreadId();
    if (owner_.load(std::memory_order_relaxed) != self) {
      AcquireSRWLockExclusive(&lock_);
      owner_.store(self, std::memory_order_relaxed);
    }
    ++depth_;
  }
  void Unlock() {
    if (--depth_ > 0) return;
    owner_.store(0, std::memory_order_relaxed);
    ReleaseSRWLockExclusive(&lock_);
  }
  void Wait(CONDITION_VARIABLE* condition) {
    const unsigned depth = std::exchange(depth_, 0);
    const DWORD self = owner_.exchange(0, std::memory_order_relaxed);
    SleepConditionVariableSRW(condition, &lock_, INFINITE, 0);
    owner_.store(self, std::memory_order_relaxed);
    depth_ = depth;
  }

 private:
  void* volatile mutex_ = nullptr;
  SRWLOCK lock_ = SRWLOCK_INIT;
  std::atomic<DWORD> owner_{0};
  unsigned depth_ = 0;
};
constinit RecursiveLock recursive;

bool IsRecursive(pthread_mutex_t* mutex) {
  return recursive.IsBehind(mutex) || (*WordOf(mutex) == kUntouchedRecursive && recursive.StandFor(mutex));
}

// Values of a thread. The system calls back for each thread that ends, and for all of them when a slot is
// given back.
struct ThreadValue {
  std::atomic<DWORD> slot{FLS_OUT_OF_INDEXES};
  void (*destroy)(void*) = nullptr;
};
constexpr std::size_t kMostValues = 4;
constinit std::array<ThreadValue, kMostValues> values;
constinit std::atomic<std::size_t> values_in_use{0};

template <std::size_t Key>
void WINAPI Destroy(void* value) {
  if (value && values[Key].destroy) values[Key].destroy(value);
}
template <std::size_t... Keys>
constexpr std::array<PFLS_CALLBACK_FUNCTION, kMostValues> CallbacksOf(std::index_sequence<Keys...>) {
  return {Destroy<Keys>...};
}
constexpr auto kCallbacks = CallbacksOf(std::make_index_sequence<kMostValues>());

// One-time initialisation.
enum : LONG { kNotYet = 0, kRunning = 1, kDone = 2 };
constinit SRWLOCK once_lock = SRWLOCK_INIT;
constinit CONDITION_VARIABLE once_over = CONDITION_VARIABLE_INIT;

/// Sets the state of a one-time initialisation and wakes those that wait for it.
class OnceEnd {
 public:
  explicit OnceEnd(pthread_once_t* once) : once_(once) {}
  OnceEnd(const OnceEnd&) = delete;
  OnceEnd& operator=(const OnceEnd&) = delete;
  ~OnceEnd() {
    AcquireSRWLockExclusive(&once_lock);
    *once_ = state;
    ReleaseSRWLockExclusive(&once_lock);
    WakeAllConditionVariable(&once_over);
  }
  LONG state = kNotYet;  // what an exception leaves behind is tried again

 private:
  pthread_once_t* once_;
};

}  // namespace

void ReleaseThreadValues() noexcept {
  for (std::size_t key = 0; key < values_in_use; ++key) {
    const DWORD slot = values[key].slot.exchange(FLS_OUT_OF_INDEXES);
    if (slot != FLS_OUT_OF_INDEXES) FlsFree(slot);
  }
}

}  // namespace orvendal

using namespace orvendal;

extern "C" {

int pthread_mutexattr_init(pthread_mutexattr_t* attribute) {
  *attribute = PTHREAD_MUTEX_NORMAL;
  return 0;
}
int pthread_mutexattr_settype(pthread_mutexattr_t* attribute, int type) {
  *attribute = static_cast<pthread_mutexattr_t>(type);
  return 0;
}
int pthread_mutexattr_destroy(pthread_mutexattr_t* /*attribute*/) {
  return 0;
}

int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attribute) {
  *WordOf(mutex) = nullptr;
  if (!attribute || *attribute != PTHREAD_MUTEX_RECURSIVE) return 0;
  *WordOf(mutex) = kUntouchedRecursive;
  return recursive.StandFor(mutex) ? 0 : EAGAIN;
}
int pthread_mutex_destroy(pthread_mutex_t* /*mutex*/) {
  return 0;
}
int pthread_mutex_lock(pthread_mutex_t* mutex) {
  if (IsRecursive(mutex)) {
    recursive.Lock();
  } else {
    AcquireSRWLockExclusive(InPlace<SRWLOCK>(mutex));
  }
  return 0;
}
int pthread_mutex_trylock(pthread_mutex_t* mutex) {
  return TryAcquireSRWLockExclusive(InPlace<SRWLOCK>(mutex)) ? 0 : EBUSY;
}
int pthread_mutex_unlock(pthread_mutex_t* mutex) {
  if (IsRecursive(mutex)) {
    recursive.Unlock();
  } else {
    ReleaseSRWLockExclusive(InPlace<SRWLOCK>(mutex));
  }
  return 0;
}

int pthread_cond_init(pthread_cond_t* condition, const pthread_condattr_t* /*attribute*/) {
  *WordOf(condition) = nullptr;
  return 0;
}
int pthread_cond_destroy(pthread_cond_t* /*condition*/) {
  return 0;
}
int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex) {
  auto* const own = InPlace<CONDITION_VARIABLE>(condition);
  if (IsRecursive(mutex)) {
    recursive.Wait(own);
  } else {
    SleepConditionVariableSRW(own, InPlace<SRWLOCK>(mutex), INFINITE, 0);
  }
  return 0;
}
int pthread_cond_signal(pthread_cond_t* condition) {
  WakeConditionVariable(InPlace<CONDITION_VARIABLE>(condition));
  return 0;
}
int pthread_cond_broadcast(pthread_cond_t* condition) {
  WakeAllConditionVariable(InPlace<CONDITION_VARIABLE>(condition));
  return 0;
}

int pthread_once(pthread_once_t* once, void (*initialise)()) {
  AcquireSRWLockExclusive(&once_lock);
  while (*once == kRunning) SleepConditionVariableSRW(&once_over, &once_lock, INFINITE, 0);
  const bool mine = *once == kNotYet;
  if (mine) *once = kRunning;
  ReleaseSRWLockExclusive(&once_lock);
  if (mine) {
    OnceEnd end(once);
    initialise();
    end.state = kDone;
  }
  return 0;
}

int pthread_key_create(pthread_key_t* key, void (*destroy)(void*)) {
  const std::size_t own = values_in_use++;
  if (own >= kMostValues) {
    --values_in_use;
    return EAGAIN;
  }
  values[own].destroy = destroy;
  values[own].slot = FlsAlloc(kCallbacks[own]);
  *key = static_cast<pthread_key_t>(own);
  return values[own].slot == FLS_OUT_OF_INDEXES ? EAGAIN : 0;
}
int pthread_key_delete(pthread_key_t key) {
  values[key].destroy = nullptr;  // the slot goes with the module
  return 0;
}
void* pthread_getspecific(pthread_key_t key) {
  // Errors of the system are read after calls that may raise one of the runtime's here.
  const DWORD error = GetLastError();
  void* const value = FlsGetValue(values[key].slot);
  SetLastError(error);
  return value;
}
int pthread_setspecific(pthread_key_t key, const void* value) {
  return FlsSetValue(values[key].slot, const_cast<void*>(value)) ? 0 : ENOMEM;
}

// The layer's clocks come with all of its threads.
int clock_gettime(clockid_t clock, struct timespec* time) {
  constexpr LONGLONG kNanoseconds = 1'000'000'000;
  if (clock == CLOCK_MONOTONIC) {
    LARGE_INTEGER frequency, ticks;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&ticks);
    time->tv_sec = static_cast<time_t>(ticks.QuadPart / frequency.QuadPart);
    time->tv_nsec =
        static_cast<long>(ticks.QuadPart % frequency.QuadPart * kNanoseconds / frequency.QuadPart);
    return 0;
  }
  if (clock != CLOCK_REALTIME) {
    errno = EINVAL;
    return -1;
  }
  constexpr LONGLONG kTick = 100;  // nanoseconds, since 1601
  constexpr LONGLONG kTicks = kNanoseconds / kTick;
  constexpr LONGLONG kFrom1601To1970 = 11'644'473'600 * kTicks;
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  const LONGLONG ticks =
      static_cast<LONGLONG>(ULARGE_INTEGER{{now.dwLowDateTime, now.dwHighDateTime}}.QuadPart) -
      kFrom1601To1970;
  time->tv_sec = static_cast<time_t>(ticks / kTicks);
  time->tv_nsec = static_cast<long>(ticks % kTicks * kTick);
  return 0;
}

}  // extern "C"
