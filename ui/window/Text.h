#pragma once

#include <QString>

#include <string_view>

#include "keys/KeyWordText.h"

namespace brennet {

// From the text type of the settings to that of the windows.
inline QString toQString(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<int>(text.size()));
}

// The reverse, without a copy: valid as long as `text` is.
inline std::u16string_view viewOf(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

// What a field shows for a key; nothing for no key.
inline QString keyText(KeyWord key) {
  std::u16string text;
  formatKeyWord(key, text);
  return toQString(text);
}

}  // namespace brennet
