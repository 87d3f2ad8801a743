#include "tests/host/FailingNew.h"

#include <cstdlib>
#include <new>

namespace brennet::test {

long allocationsUntilFailure = -1;

}  // namespace brennet::test

void* operator new(std::size_t size) {
  long& left = brennet::test::allocationsUntilFailure;
  if (left >= 0 && left-- == 0) throw std::bad_alloc();
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
