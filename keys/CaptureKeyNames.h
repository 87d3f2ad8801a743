#pragma once

#include <string>
#include <string_view>

namespace brennet {

// The name of a key as the capture fields of the settings pages show it.
//
// `code` is a Windows virtual-key code; there are names from 0x08 to 0xDE, with gaps. Returns
// whether the code has a name: `out` then holds it, else `out` is left as it was.
bool getKeyName(int code, std::u16string& out);

// The same without a copy: empty for a code without a name.
[[nodiscard]] std::u16string_view keyName(int code);

}  // namespace brennet
