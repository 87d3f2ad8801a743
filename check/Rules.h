#pragma once

#include <array>
#include <cstddef>

namespace brennet::check {

// What the contract asks of a host, as far as it can be seen from inside its calls.
enum class Rule {
  Thread,
  Object,
  SaveBeforeLoad,
  DialogBeforeLoad,
  DialogBeforeDataFolder,
  NoApplication,
  Null,
  Text,
  Memory,
  SizeNotSet,
  SizeUnknown,
  Reserved,
  Reentry,
  DialogOpen,
  FloatingPoint,
  Unloaded,
};

struct RuleText {
  const char* name;      // as findings and docs/checking.md call it
  const char* broken;    // what a host did that breaks it
  const char* contract;  // what the contract says
  const char* mend;      // what to do about it
};

inline constexpr std::size_t kRules = 16;

// The texts of a rule, in English.
[[nodiscard]] const RuleText& textOf(Rule rule);

}  // namespace brennet::check
