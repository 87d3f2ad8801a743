#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace brennet::test {

// Another process: `program`, started with arguments without blanks and quotes. Throws
// std::system_error.
class Process {
 public:
  Process(const char* program, const std::vector<std::string>& arguments);
  Process(Process&& other) noexcept;
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  // Ends the process if it has not ended.
  ~Process();

  // Waits for its end and returns the exit status.
  int wait();

 private:
  std::intptr_t handle_;  // the system's; 0 once wait() has returned
};

}  // namespace brennet::test
