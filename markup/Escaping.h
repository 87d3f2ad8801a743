#pragma once

#include <string>
#include <string_view>

namespace brennet {

// Whether `text` has any of the characters that appendEscaped() writes as entities.
[[nodiscard]] bool needsEscaping(std::u16string_view text);

// Appends `text` to `out` with the characters < > & " ' written as their five entities, so that it
// can stand in element content and in attribute values.
void appendEscaped(std::u16string_view text, std::u16string& out);

// Appends `text` to `out` with the named entities (see EntityTable.h) and the decimal and
// hexadecimal character references resolved. Invalid references stay as they are written: unknown
// names, references without ";", to 0, to surrogates and beyond U+10FFFF.
void appendUnescaped(std::u16string_view text, std::u16string& out);

// `text` with its references resolved like that.
[[nodiscard]] std::u16string unescaped(std::u16string_view text);

// Appends `text` to `out` as CDATA sections. "]]>" inside the text is split between two sections,
// so that every text can be read back.
void appendCData(std::u16string_view text, std::u16string& out);

}  // namespace brennet
