#pragma once

#include <string>
#include <string_view>

namespace brennet {

// The encoding that a document declares: the `encoding` of its XML declaration, or, for an HTML
// document, the charset of the `meta` element in `head` whose `http-equiv` is "Content-Type".
// A view into `text`; empty if none is declared in its first 65,536 units.
[[nodiscard]] std::u16string_view declaredEncoding(std::u16string_view text);

// The same for the bytes of a file of unknown encoding. Zero bytes are skipped, so that the
// declaration is also found in UTF-16 and UTF-32.
[[nodiscard]] std::u16string declaredEncodingOfBytes(std::string_view bytes);

}  // namespace brennet
