#pragma once

#include <cstddef>

namespace brennet::test {

// Signal: on Windows the first access is reported and later ones are allowed; elsewhere as None.
enum class Access { None, Read, Signal };

// Writable pages in front of one with another protection, so that touching one byte too many shows.
class GuardedPages {
 public:
  // `writable` pages in a row, then one page with the access `guard`.
  GuardedPages(std::size_t writable, Access guard);
  ~GuardedPages();
  GuardedPages(const GuardedPages&) = delete;
  GuardedPages& operator=(const GuardedPages&) = delete;

  // The bytes from begin() to boundary() may be written; the guard starts at boundary().
  [[nodiscard]] char* begin() const { return start_; }
  [[nodiscard]] char* boundary() const { return start_ + writable_; }

  // Gives the pages before the boundary the given access.
  void limit(Access access) const;

 private:
  std::size_t guardSize_;
  std::size_t writable_;
  char* start_;
};

}  // namespace brennet::test
