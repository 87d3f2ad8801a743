#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "brennet/HotkeyBlock.h"
#include "tests/support/GuardedPages.h"

namespace brennet::fuzz {

// The memory in which a host hands over a record: as large as announced, with nothing behind it
// that could be touched unseen, or wrong in one of the ways in which hosts are.
class CallerMemory {
 public:
  CallerMemory();

  // Makes room for a record that announces `size` bytes and puts as much of `content` there as has
  // room. `kind`: "own" (also for any other word) and "odd", at an odd address, are good;
  // "edge" has a byte too few, "short" not even its size, "fixed" cannot be written, "null" is
  // none. Where there is not so much memory, a good one has too few bytes too.
  void prepare(std::string_view kind, std::uint32_t size, const HotkeyBlock& content);

  [[nodiscard]] HotkeyBlock* block() const { return reinterpret_cast<HotkeyBlock*>(start_); }

  // Whether `size` bytes of the record can be written.
  [[nodiscard]] bool hasRoomFor(std::size_t size) const;

  // What was announced and what is there now of the record, at most one record.
  [[nodiscard]] HotkeyBlock content() const;

  // Whether nothing was written in front of the record, nor behind the first `size` bytes of it.
  [[nodiscard]] bool isUntouchedBehind(std::size_t size) const;

 private:
  test::GuardedPages pages_;
  char* start_ = nullptr;
};

}  // namespace brennet::fuzz
