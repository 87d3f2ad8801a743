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

  Writability read(const void* byte) {
    return moved([&] { return ::write(ends_[1], byte, 1); });
  }

  Writability roundTrip(void* byte) {
    const Writability readable = read(byte);
    return readable == Writability::Writable ? moved([&] { return ::read(ends_[0], byte, 1); })
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

// Probes the first byte, then the first one of each further page, with `probe`(pipe, offset).
template <class Probe>
Writability probePages(const void* address, std::size_t size, Probe probe) {
  if (size == 0) return Writability::Writable;
  const auto first = reinterpret_cast<std::uintptr_t>(address);
  if (first == 0 || first + (size - 1) < first) return Writability::NotWritable;

  ProbePipe pipe;
  if (!pipe.isOpen()) return Writability::Unknown;
  const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  for (std::size_t at = 0; at < size; at += pageSize - (first + at) % pageSize) {
    const Writability byte = probe(pipe, at);
    if (byte != Writability::Writable) return byte;
  }
  return Writability::Writable;
}

}  // namespace

Writability probeMemory(void* address, std::size_t size) {
  auto* const bytes = static_cast<char*>(address);
  return probePages(address, size, [bytes](ProbePipe& pipe, std::size_t at) {
    return pipe.roundTrip(bytes + at);
  });
}

bool isReadable(const void* address, std::size_t size) {
  const auto* const bytes = static_cast<const char*>(address);
  const Writability result = probePages(
      address, size, [bytes](ProbePipe& pipe, std::size_t at) { return pipe.read(bytes + at); });
  return result != Writability::NotWritable;
}

}  // namespace brennet::platform
