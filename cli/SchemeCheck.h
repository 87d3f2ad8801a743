#pragma once

#include <string>
#include <vector>

#include "cli/Finding.h"
#include "cli/TextPlaces.h"
#include "markup/MarkupDocument.h"
#include "model/LoadReport.h"

namespace brennet::cli {

// Appends what is missing, unknown, repeated or no sensible number in one scheme, and which of its
// choices cannot be made. The document's parent position is the element that holds the scheme,
// which begins at the unit `offset` of the text; the position is lost. `isOld` says that the scheme
// stands directly in the root, beside what the root has of its own. `report` is that of the load.
// `places` are those of the document's text.
void checkScheme(MarkupDocument& document, const TextPlaces& places, std::size_t offset, int scheme,
                 bool isOld, const LoadReport& report, std::vector<Finding>& findings);

// Appends a finding about a number from `from` to `to`, if `text` is none; empty text says nothing.
void checkNumber(std::u16string_view text, std::int64_t from, std::int64_t to,
                 TextPosition position, const std::string& where, std::vector<Finding>& findings);

}  // namespace brennet::cli
