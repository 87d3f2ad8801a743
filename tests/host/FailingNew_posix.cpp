#include <execinfo.h>
#include <link.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "tests/host/FailingNew.h"

namespace brennet::test {
namespace {

// Where the code of this program and of the C++ library is. Asking allocates nothing.
struct Code {
  struct Range {
    std::uintptr_t begin = 0, end = 0;
    [[nodiscard]] bool holds(const void* address) const {
      const auto place = reinterpret_cast<std::uintptr_t>(address);
      return begin <= place && place < end;
    }
  };
  Range program, library;

  Code() { dl_iterate_phdr(take, this); }

  // The first object is the program itself, and has no name.
  static int take(dl_phdr_info* object, std::size_t /*size*/, void* code) {
    auto& found = *static_cast<Code*>(code);
    const bool isProgram = found.program.end == 0;
    if (!isProgram && std::strstr(object->dlpi_name, "/libstdc++.so") == nullptr) return 0;
    Range& range = isProgram ? found.program : found.library;
    for (int i = 0; i < object->dlpi_phnum; ++i) {
      const auto& segment = object->dlpi_phdr[i];
      if (segment.p_type != PT_LOAD || (segment.p_flags & PF_X) == 0) continue;
      range.begin = object->dlpi_addr + segment.p_vaddr;
      range.end = range.begin + segment.p_memsz;
    }
    return 0;
  }
};

}  // namespace

// The C++ library allocates for its callers, for example when strings grow.
bool isOurs(const void* caller) {
  static const Code code;
  if (!code.library.holds(caller)) return code.program.holds(caller);
  std::array<void*, 24> frames;
  const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
  const auto end = frames.begin() + count;
  const auto first = std::find(frames.begin(), end, caller);
  const auto behind =
      std::find_if(first, end, [](const void* frame) { return !code.library.holds(frame); });
  return behind != end && code.program.holds(*behind);
}

}  // namespace brennet::test
