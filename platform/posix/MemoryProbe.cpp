#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

#include "platform/MemoryProbe.h"

namespace brennet::platform {
namespace {

// A pipe through which the kernel copies a byte out of the probed memory and back again. The kernel
// answers EFAULT where the process itself would fault.
class ProbePipe {
 public:
  ProbePipe() : open_(pipe2(ends_, O_CLOEXEC) == 0) {}
  ~ProbePipe() {
    if (!open_) return;
    close(ends_[0]);
    close(ends_[1]);
  }
  ProbePipe(const ProbePipe&) = delete;
  ProbePipe& operator=(const ProbePipe&) = delete;

  [[nodiscard]] bool isOpen() const { return open_; }

  Writability roundTrip(void* byte) {
    const Writability readable = moved([&] { return write(ends_[1], byte, 1); });
    return readable == Writability::Writable ? moved([&] { return read(ends_[0], byte, 1); })
                                             : readable;
  }

 private:
  template <class Call>
  static Writability moved(Call call) {
    ssize_t count = call();
    while (count < 0 && errno == EINTR) count = call();
    if (count == 1) return Writability::Writable;
    return count < 0 && errno == EFAULT ? Writability::NotWritable : Writability::Unknown;
  }

  int ends_[2] = {-1, -1};
  bool open_;
};

}  // namespace

Writability probeMemory(void* address, std::size_t size) {
  if (size == 0) return Writability::Writable;
  const auto first = reinterpret_cast<std::uintptr_t>(address);
  if (first == 0 || first + (size - 1) < first) return Writability::NotWritable;

  ProbePipe pipe;
  if (!pipe.isOpen()) return Writability::Unknown;
  const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  auto* const bytes = static_cast<char*>(address);
  // The first byte, then the first one of each further page.
  for (std::size_t at = 0; at < size; at += pageSize - (first + at) % pageSize) {
    const Writability byte = pipe.roundTrip(bytes + at);
    if (byte != Writability::Writable) return byte;
  }
  return Writability::Writable;
}

}  // namespace brennet::platform
