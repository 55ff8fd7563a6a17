// Memory that was given back is filled with rubbish, so that whoever touches an object that is gone stumbles
// at once.

#include <cstdlib>
#include <cstring>
#include <new>

namespace {

// Far from any address and any sensible number.
constexpr int kRubbish = 0xDB;

void* Allocate(std::size_t size) {
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) {
  return Allocate(size);
}
void* operator new[](std::size_t size) {
  return Allocate(size);
}
void operator delete(void* memory) noexcept {
  if (memory != nullptr) std::memset(memory, kRubbish, _msize(memory));
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  operator delete(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  operator delete(memory);
}
void operator delete[](void* memory, std::size_t /*size*/) noexcept {
  operator delete(memory);
}
