#include <sys/mman.h>
#include <unistd.h>

#include <stdexcept>

#include "tests/support/GuardedPages.h"

namespace brennet::test {
namespace {

void protect(char* start, std::size_t size, Access access) {
  if (mprotect(start, size, access == Access::Read ? PROT_READ : PROT_NONE) != 0) {
    throw std::runtime_error("mprotect failed");
  }
}

}  // namespace

GuardedPages::GuardedPages(std::size_t writable, Access guard)
    : guardSize_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
      writable_(writable * guardSize_),
      start_(static_cast<char*>(mmap(nullptr, writable_ + guardSize_, PROT_READ | PROT_WRITE,
                                     MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
  protect(boundary(), guardSize_, guard);
}

GuardedPages::~GuardedPages() {
  munmap(start_, writable_ + guardSize_);
}

void GuardedPages::limit(Access access) const {
  protect(start_, writable_, access);
}

}  // namespace brennet::test
