#include "KeyText.h"

namespace {

struct KeyName {
  std::uint8_t virtualKey;
  const char* name;
};

constexpr KeyName kNames[] = {
    {0x09, "Tab"},         {0x10, "Shift"},    {0x11, "Ctrl"},    {0x12, "Alt"},
    {0x13, "Pause"},       {0x14, "CapsLock"}, {0x1B, "Esc"},     {0x20, "Space"},
    {0x21, "PageUp"},      {0x22, "PageDown"}, {0x23, "End"},     {0x24, "Home"},
    {0x25, "Left"},        {0x26, "Up"},       {0x27, "Right"},   {0x28, "Down"},
    {0x2C, "PrintScreen"}, {0x2D, "Insert"},   {0x5B, "LeftWin"}, {0x6A, "Num*"},
    {0x6B, "Num+"},        {0x6D, "Num-"},     {0x6E, "Num."},    {0x6F, "Num/"},
    {0x90, "NumLock"},     {0xBA, ";"},        {0xBB, "="},       {0xBC, ","},
    {0xBD, "-"},           {0xBE, "."},        {0xBF, "/"},       {0xC0, "`"},
    {0xDB, "["},           {0xDC, "\\"},       {0xDD, "]"},       {0xDE, "'"},
};

QString virtualKeyText(std::uint8_t virtualKey) {
  const bool isDigit = virtualKey >= '0' && virtualKey <= '9';
  const bool isLetter = virtualKey >= 'A' && virtualKey <= 'Z';
  if (isDigit || isLetter) return QString(QLatin1Char(static_cast<char>(virtualKey)));
  if (virtualKey >= 0x60 && virtualKey <= 0x69) {
    return QStringLiteral("Num%1").arg(virtualKey - 0x60);
  }
  if (virtualKey >= 0x70 && virtualKey <= 0x87) {
    return QStringLiteral("F%1").arg(virtualKey - 0x70 + 1);
  }
  for (const KeyName& key : kNames) {
    if (key.virtualKey == virtualKey) return QLatin1String(key.name);
  }
  return QStringLiteral("key 0x%1").arg(virtualKey, 2, 16, QLatin1Char('0'));
}

}  // namespace

QString keyText(std::uint16_t key) {
  if (key == 0) return QStringLiteral("-");
  QString text;
  if ((key & 0x02U) != 0) text += QStringLiteral("Ctrl+");
  if ((key & 0x04U) != 0) text += QStringLiteral("Alt+");
  if ((key & 0x01U) != 0) text += QStringLiteral("Shift+");
  text += virtualKeyText(static_cast<std::uint8_t>(key >> 8U));
  if ((key & 0x08U) != 0) text += QStringLiteral(" (quick cast)");
  return text;
}
