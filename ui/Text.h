#pragma once

#include <QString>

#include <string>
#include <string_view>

#include "keys/KeyWordText.h"

namespace brennet {

// From the texts of the settings to those of the windows.
inline QString toQString(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<int>(text.size()));
}

// What a field shows of a key that is set; nothing for no key.
inline QString keyText(KeyWord key) {
  std::u16string text;
  formatKeyWord(key, text);
  return toQString(text);
}

}  // namespace brennet
