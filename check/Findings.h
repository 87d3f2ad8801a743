#pragma once

#include <array>
#include <functional>
#include <mutex>
#include <string>

#include "check/Rules.h"
#include "check/Slots.h"

namespace brennet::check {

// What a finding says, without a line end. `detail` is what was met, in a few words; may be empty.
[[nodiscard]] std::string findingText(Rule rule, Slot slot, const std::string& detail = {});

// What was found so far. Each rule is told once for each slot that broke it, and counted always.
// May be used on every thread.
class Findings {
 public:
  // Gets each line, without a line end, one at a time.
  using Write = std::function<void(const std::string& line)>;

  // With `stops`, the first finding ends the process (std::abort), so that a debugger shows the
  // host's call.
  Findings(Write write, bool stops) : write_(std::move(write)), stops_(stops) {}

  void report(Rule rule, Slot slot, const std::string& detail = {});

  // How often rules were broken, each time counted.
  [[nodiscard]] unsigned long long count() const;

  // Writes a line that is no finding.
  void write(const std::string& line);

 private:
  mutable std::mutex mutex_;
  Write write_;
  bool stops_;
  std::array<std::array<unsigned long long, kSlots.size()>, kRules> counts_{};
  unsigned long long count_ = 0;
};

}  // namespace brennet::check
