#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "tests/faults/soak/Disturber.h"

namespace brennet::test {
namespace {

constexpr useconds_t kHold = 3'000;  // microseconds
constexpr useconds_t kPause =
    40'000;  // between two leases; whoever waits for one to end must find the file free

}  // namespace

void disturb(const std::filesystem::path& /*folder*/, const std::filesystem::path& file) {
  sigset_t asked;
  sigemptyset(&asked);
  sigaddset(&asked, SIGIO);
  sigprocmask(SIG_BLOCK, &asked, nullptr);
  constexpr timespec kPatience{0, 20'000'000};  // the file may have another name by then
  while (true) {
    const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor >= 0) {
      if (fcntl(descriptor, F_SETLEASE, F_RDLCK) == 0) {
        if (sigtimedwait(&asked, nullptr, &kPatience) > 0) usleep(kHold);
        fcntl(descriptor, F_SETLEASE, F_UNLCK);
      }
      close(descriptor);
    }
    usleep(kPause);
  }
}

}  // namespace brennet::test
