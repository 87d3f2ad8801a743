#include "fuzz/host/SessionFaults.h"

#include <sys/resource.h>

#include <csignal>
#include <cstdlib>
#include <new>

namespace brennet::fuzz {
namespace {

// Of one thread; libFuzzer's own allocations come while nothing is in force.
bool isCounting = false;
std::size_t allocationsLeft = 0;
bool staysExhausted = false;

bool shouldFail() {
  if (!isCounting) return false;
  if (allocationsLeft > 0) {
    --allocationsLeft;
    return false;
  }
  isCounting = staysExhausted;
  return true;
}

void limitFiles(rlim_t room) {
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = room < limit.rlim_max ? room : limit.rlim_max;
  setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

FaultsInForce::FaultsInForce(const Faults& faults) {
  std::signal(SIGXFSZ, SIG_IGN);
  if (faults.room) limitFiles(*faults.room);
  allocationsLeft = faults.failingAllocation.value_or(0);
  staysExhausted = faults.allFollowing;
  isCounting = faults.failingAllocation.has_value();
}

FaultsInForce::~FaultsInForce() {
  isCounting = false;
  limitFiles(RLIM_INFINITY);
}

}  // namespace brennet::fuzz

// All of them, because the sanitizer's own are told apart from these.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return brennet::fuzz::shouldFail() ? nullptr : std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
  void* memory = operator new(size, std::nothrow);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return operator new(size, std::nothrow);
}
void* operator new[](std::size_t size) {
  return operator new(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
