#include <windows.h>

#include <stdexcept>

#include "tests/support/GuardedPages.h"

namespace brennet::test {
namespace {

std::size_t pageSize() {
  SYSTEM_INFO info{};
  GetSystemInfo(&info);
  return info.dwPageSize;
}

DWORD protectionOf(Access access) {
  switch (access) {
    case Access::Read:
      return PAGE_READONLY;
    case Access::Signal:
      return PAGE_READWRITE | PAGE_GUARD;
    case Access::None:
      break;
  }
  return PAGE_NOACCESS;
}

void protect(char* start, std::size_t size, Access access) {
  DWORD before = 0;
  if (VirtualProtect(start, size, protectionOf(access), &before) == FALSE) {
    throw std::runtime_error("VirtualProtect failed");
  }
}

}  // namespace

GuardedPages::GuardedPages(std::size_t writable, Access guard)
    : guardSize_(pageSize()),
      writable_(writable * guardSize_),
      start_(static_cast<char*>(VirtualAlloc(nullptr, writable_ + guardSize_,
                                             MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE))) {
  protect(boundary(), guardSize_, guard);
}

GuardedPages::~GuardedPages() {
  VirtualFree(start_, 0, MEM_RELEASE);
}

void GuardedPages::limit(Access access) const {
  protect(start_, writable_, access);
}

}  // namespace brennet::test
