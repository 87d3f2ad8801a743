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

void* operator new(std::size_t size) {
  if (brennet::test::FailingAllocation::failsNow(__builtin_return_address(0))) {
    throw std::bad_alloc();
  }
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
