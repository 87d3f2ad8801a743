#include "check/Findings.h"

#include <cstdlib>

namespace brennet::check {

std::string findingText(Rule rule, Slot slot, const std::string& detail) {
  const RuleText& text = textOf(rule);
  std::string line = "slot " + std::to_string(indexOf(slot)) + " " + kSlots[indexOf(slot)].name +
                     ": [" + text.name + "] " + text.broken;
  if (!detail.empty()) line += " (" + detail + ")";
  return line + ". Contract: " + text.contract + " Mend: " + text.mend;
}

void Findings::report(Rule rule, Slot slot, const std::string& detail) {
  {
    const std::scoped_lock lock(mutex_);
    ++count_;
    auto& count = counts_[static_cast<std::size_t>(rule)][indexOf(slot)];
    if (++count == 1) write_(findingText(rule, slot, detail));
  }
  // Under Windows this unloads libraries, and this one writes its summary then.
  if (stops_) std::abort();
}

unsigned long long Findings::count() const {
  const std::scoped_lock lock(mutex_);
  return count_;
}

void Findings::write(const std::string& line) {
  const std::scoped_lock lock(mutex_);
  write_(line);
}

}  // namespace brennet::check
