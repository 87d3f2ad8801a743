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

// A text of any length in one short line, cut between characters.
inline QString shortened(const QString& text) {
  constexpr int kLongest = 24;
  QString line = text.simplified();
  if (line.size() <= kLongest) return line;
  const int whole = line.at(kLongest - 1).isHighSurrogate() ? kLongest - 1 : kLongest;
  return line.left(whole) + QChar(u'\u2026');
}

// What a field shows for a key; nothing for no key.
inline QString keyText(KeyWord key) {
  std::u16string text;
  formatKeyWord(key, text);
  return toQString(text);
}

// What messages call a key: its text, or its number, since not every key of a settings file has a
// text.
inline QString keyNameText(KeyWord key) {
  const QString text = keyText(key);
  return text.isEmpty() ? QString::number(key.raw()) : text;
}

// Both texts, a line each; an empty one takes none.
inline QString joinedLines(const QString& above, const QString& below) {
  const bool isOne = above.isEmpty() || below.isEmpty();
  return above + (isOne ? QString() : QString(QLatin1Char('\n'))) + below;
}

// A text as it is, for a tool tip. By itself, a tool tip renders whatever looks like markup,
// whoever wrote it, and reads the pictures that it names.
inline QString plainToolTip(const QString& text) {
  if (text.isEmpty()) return text;
  QString markup = text.toHtmlEscaped();
  markup.replace(QLatin1Char('\n'), QLatin1String("<br>"));
  return QStringLiteral("<p style='white-space: pre'>%1</p>").arg(markup);
}

}  // namespace brennet
