#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <system_error>
#include <utility>

#include "tests/support/Process.h"

namespace brennet::test {

Process::Process(const char* program, const std::vector<std::string>& arguments) {
  std::vector<char*> words{const_cast<char*>(program)};
  for (const std::string& argument : arguments)
    words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  pid_t child = 0;
  const int error = posix_spawn(&child, program, nullptr, nullptr, words.data(), environ);
  if (error != 0) throw std::system_error(error, std::generic_category());
  handle_ = child;
}

Process::Process(Process&& other) noexcept : handle_(std::exchange(other.handle_, 0)) {}

Process::~Process() {
  if (handle_ == 0) return;
  kill(static_cast<pid_t>(handle_), SIGKILL);
  wait();
}

int Process::wait() {
  int status = 0;
  waitpid(static_cast<pid_t>(std::exchange(handle_, 0)), &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace brennet::test
