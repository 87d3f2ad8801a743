#include "tests/host/FailingNew.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace brennet::test {
namespace {

FailingAllocation* current = nullptr;

}  // namespace

FailingAllocation::FailingAllocation(long number, Lasts lasts, Whose whose)
    : number_(number), lasts_(lasts), whose_(whose) {
  current = this;
}

FailingAllocation::~FailingAllocation() {
  current = nullptr;
}

bool FailingAllocation::failsNow(const void* caller) {
  if (current == nullptr || current->isSuspended_) return false;
  if (current->whose_ == Whose::Ours && !isOurs(caller)) return false;
  const long call = current->calls_++;
  return current->lasts_ == Lasts::Once ? call == current->number_ : call >= current->number_;
}

WithoutFailures::WithoutFailures() {
  if (current != nullptr) wasSuspended_ = std::exchange(current->isSuspended_, true);
}

WithoutFailures::~WithoutFailures() {
  if (current != nullptr) current->isSuspended_ = wasSuspended_;
}

}  // namespace brennet::test

namespace {

// Null if there is no memory.
void* allocate(std::size_t size, const void* caller) {
  if (brennet::test::FailingAllocation::failsNow(caller)) return nullptr;
  return std::malloc(size == 0 ? 1 : size);
}

void* allocateOrThrow(std::size_t size, const void* caller) {
  void* const memory = allocate(size, caller);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

// All forms: the sanitizers want memory to be freed by the counterpart of what allocated it.
void* operator new(std::size_t size) {
  return allocateOrThrow(size, __builtin_return_address(0));
}
void* operator new[](std::size_t size) {
  return allocateOrThrow(size, __builtin_return_address(0));
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return allocate(size, __builtin_return_address(0));
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return allocate(size, __builtin_return_address(0));
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}
