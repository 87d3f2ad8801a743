#pragma once

#include <string_view>
#include <vector>

#include "fuzz/grammar/TextGrammar.h"

namespace brennet::fuzz {

// The rules of the two files of a session, for grammars that have them inside other inputs. The
// rules for whole files are "settings file" and "preference file"; `lineEnd` stands at the end of a
// line.
[[nodiscard]] std::vector<Rule> settingsRules(std::string_view lineEnd);
[[nodiscard]] std::vector<Rule> preferencesRules(std::string_view lineEnd);

}  // namespace brennet::fuzz
