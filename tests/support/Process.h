#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace brennet::test {

// Another process: `program`, started with arguments that have no blanks and no quotes. Throws
// std::system_error.
class Process {
 public:
  Process(const char* program, const std::vector<std::string>& arguments);
  Process(Process&& other) noexcept;
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  // Ends it, if it has not ended.
  ~Process();

  // Waits for the end, and gives the exit status.
  int wait();

 private:
  std::intptr_t handle_;  // of the system; 0 where it has been waited for
};

}  // namespace brennet::test
