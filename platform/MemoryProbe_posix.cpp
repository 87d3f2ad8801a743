#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

#include "platform/MemoryProbe.h"

namespace brennet::platform {
namespace {

// A pipe through which the kernel copies a byte out of the probed memory and back into it. The
// kernel answers EFAULT where the process itself would fault.
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

  bool roundTrip(void* byte) {
    if (!retried([&] { return write(ends_[1], byte, 1); })) return false;
    if (retried([&] { return read(ends_[0], byte, 1); })) return true;
    // A byte that could not be put back is still in the pipe, and would be the next one's.
    char rest = 0;
    retried([&] { return read(ends_[0], &rest, 1); });
    return false;
  }

 private:
  template <class Call>
  static bool retried(Call call) {
    ssize_t moved = call();
    while (moved < 0 && errno == EINTR) moved = call();
    return moved == 1;
  }

  int ends_[2] = {-1, -1};
  bool open_;
};

}  // namespace

bool isWritable(void* address, std::size_t size) {
  if (size == 0) return true;
  const auto first = reinterpret_cast<std::uintptr_t>(address);
  if (first == 0 || first + (size - 1) < first) return false;

  // Kept open: later there may be no free descriptor left to ask with.
  static ProbePipe pipe;
  if (!pipe.isOpen()) return false;
  const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  auto* const bytes = static_cast<char*>(address);
  // The first byte, then the first one of every further page.
  for (std::size_t at = 0; at < size; at += pageSize - (first + at) % pageSize) {
    if (!pipe.roundTrip(bytes + at)) return false;
  }
  return true;
}

}  // namespace brennet::platform
