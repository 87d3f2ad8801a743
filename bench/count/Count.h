#pragma once

#include <valgrind/callgrind.h>

namespace brennet::bench {

// While it lives, the instructions of this process and its accesses to memory are counted, if
// valgrind runs it. The counts are then written with the name of the job; count.py reads them.
// Natively it does nothing.
class Count {
 public:
  // `job` has to outlive the object.
  explicit Count(const char* job) : job_(job) {
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
  }
  ~Count() {
    CALLGRIND_DUMP_STATS_AT(job_);
    CALLGRIND_STOP_INSTRUMENTATION;
  }
  Count(const Count&) = delete;
  Count& operator=(const Count&) = delete;

 private:
  const char* job_;
};

// Does `work` twice and counts the second time: what is made once, such as tables, is there then.
template <class Work>
void countAgain(const char* job, Work work) {
  work();
  const Count count(job);
  work();
}

}  // namespace brennet::bench
